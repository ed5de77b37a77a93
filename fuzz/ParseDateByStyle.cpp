#include "FuzzInput.h"

#include <condtree/platform/Automation.h>
#include <condtree/values/DateStyle.h>

#include <QLocale>

#include <bit>

namespace condtree::fuzz {

namespace {

std::uint64_t bitsOf(double number)
{
    return std::bit_cast<std::uint64_t>(number);
}

/// The date as the style that keeps it to the second writes it.
QString exactText(double date)
{
    QString text;
    require(FormatDateByStyle(text, date, 121), "a date is written");
    return text;
}

void checkDate(double date, std::uint32_t style)
{
    if (date == 0)
        return; // no date, or the day that is none
    SYSTEMTIME fields{};
    require(VariantTimeToSystemTime(date, fields), "what is read has fields");
    QString text;
    require(FormatDateByStyle(text, date, style), "what is read is written");

    const QString exact = exactText(date);
    double again = 0;
    require(ParseDateByStyle(exact, again, 121, QLocale::c()), "an exact text is read");
    require(again == 0 || exactText(again) == exact, "it is read as the same date");
}

void checkText(const QString& text, std::uint32_t style, const QLocale& locale)
{
    constexpr double kBefore = 4711.125;
    double first = kBefore;
    double second = -kBefore;
    const bool isRead = ParseDateByStyle(text, first, style, locale);
    const bool isReadAgain = ParseDateByStyle(text, second, style, locale);
    require(isRead == isReadAgain, "the answer is the same again");
    if (isRead) {
        require(bitsOf(first) == bitsOf(second), "the result is the same again");
        checkDate(first, style);
    } else {
        require(first == kBefore && second == -kBefore, "a refused text leaves the result alone");
    }
}

} // namespace

} // namespace condtree::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QLocale locale(QLocale::English, QLocale::UnitedKingdom);
    const condtree::fuzz::FuzzInput input({data, size});
    condtree::fuzz::checkText(input.text, input.choice, locale);
    return 0;
}
