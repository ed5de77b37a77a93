#include "FuzzInput.h"

#include <condtree/platform/Automation.h>
#include <condtree/values/LocaleDate.h>

#include <QLocale>
#include <QString>

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace condtree::fuzz {

namespace {

constexpr double kUntouched = -4711.125;

/// A mixture of orders, separators and words.
const QLocale& localeOf(std::uint32_t choice)
{
    static const std::array<QLocale, 15> locales{
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
        QLocale(QLocale::Danish, QLocale::Denmark),
        QLocale(QLocale::Bulgarian, QLocale::Bulgaria),
        QLocale(QLocale::French, QLocale::Canada),
    };
    return locales[choice % locales.size()];
}

void checkText(const QString& text, const QLocale& locale)
{
    double date = kUntouched;
    if (!ParseDateByLocale(text, date, locale)) {
        require(date == kUntouched, "a refused text leaves the result alone");
        return;
    }
    SYSTEMTIME fields{};
    double again = 0;
    require(VariantTimeToSystemTime(date, fields), "what is read has fields");
    require(SystemTimeToVariantTime(fields, again) && std::fabs(again - date) < 1e-9,
            "they are those of the same date");
}

} // namespace

} // namespace condtree::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const condtree::fuzz::FuzzInput input({data, size});
    condtree::fuzz::checkText(input.text, condtree::fuzz::localeOf(input.choice));
    return 0;
}
