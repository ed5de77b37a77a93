#include <condtree/platform/Automation.h>
#include <condtree/values/LocaleDate.h>

#include <QLocale>
#include <QString>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace condtree;

constexpr double kUntouched = -4711.125;

/// A mixture of orders, separators and words.
const QLocale& localeOf(std::uint8_t choice)
{
    static const std::array<QLocale, 12> locales{
        QLocale(QLocale::English, QLocale::UnitedStates),
        QLocale(QLocale::English, QLocale::UnitedKingdom),
        QLocale(QLocale::German, QLocale::Germany),
        QLocale(QLocale::French, QLocale::France),
        QLocale(QLocale::Swedish, QLocale::Sweden),
        QLocale(QLocale::Japanese, QLocale::Japan),
        QLocale(QLocale::Korean, QLocale::SouthKorea),
        QLocale(QLocale::Portuguese, QLocale::Brazil),
        QLocale(QLocale::Italian, QLocale::Italy),
        QLocale(QLocale::Hungarian, QLocale::Hungary),
        QLocale(QLocale::Chinese, QLocale::China),
        QLocale(QLocale::Russian, QLocale::Russia),
    };
    return locales[choice % locales.size()];
}

void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace

/// The first byte chooses the locale; the rest is UTF-16, so that halves of pairs occur.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    QString text(static_cast<qsizetype>((size - 1) / sizeof(char16_t)), Qt::Uninitialized);
    if (!text.isEmpty())
        std::memcpy(text.data(), data + 1,
                    static_cast<std::size_t>(text.size()) * sizeof(char16_t));

    double date = kUntouched;
    if (!ParseDateByLocale(text, date, localeOf(data[0]))) {
        require(date == kUntouched);
        return 0;
    }
    SYSTEMTIME fields{};
    double again = 0;
    require(VariantTimeToSystemTime(date, fields));
    require(SystemTimeToVariantTime(fields, again) && std::fabs(again - date) < 1e-9);
    return 0;
}
