#include "DateLayout.h"

#include <algorithm>

namespace condtree {

namespace {

using enum DatePart;

constexpr ReadOrder kByLocale{};
constexpr ReadOrder kMonthDayYear{ReadStep::Month, ReadStep::Day, ReadStep::Year};
constexpr ReadOrder kYearMonthDay{ReadStep::Year, ReadStep::Month, ReadStep::Day};
constexpr ReadOrder kDayMonthYear{ReadStep::Day, ReadStep::Month, ReadStep::Year};
constexpr ReadOrder kDayNameYear{ReadStep::Day, ReadStep::MonthName, ReadStep::Year};
constexpr ReadOrder kNameDayYear{ReadStep::MonthName, ReadStep::Day, ReadStep::Year};
constexpr ReadOrder kCompact2{ReadStep::CompactDate2};
constexpr ReadOrder kCompact4{ReadStep::CompactDate4};
constexpr ReadOrder kNameDayYearTime{ReadStep::MonthName, ReadStep::Day, ReadStep::Year,
                                     ReadStep::Time12};
constexpr ReadOrder kDayNameYearTime{ReadStep::Day, ReadStep::MonthName, ReadStep::Year,
                                     ReadStep::Time24};
constexpr ReadOrder kHyphenatedTime{ReadStep::Year,   ReadStep::Hyphen, ReadStep::Month,
                                    ReadStep::Hyphen, ReadStep::Day,    ReadStep::Time24};

/// What is not listed. Written like 113.
constexpr DateLayout kUnknown{0xFFFFFFFF,
                              u"%02d %s %04d %02d:%02d:%02d:000",
                              {Day, LongMonth, Year, Hour, Minute, Second},
                              kByLocale};

constexpr std::array<DateLayout, 26> kLayouts{{
    {0, u"%s %02d %04d %02d:%02d %s", {ShortMonth, Day, Year, Hour12, Minute, Marker}, kByLocale},
    {1, u"%02d/%02d/%02d", {Month, Day, YearOfCentury}, kMonthDayYear},
    {2, u"%02d.%02d.%02d", {YearOfCentury, Month, Day}, kYearMonthDay},
    {3, u"%02d/%02d/%02d", {Day, Month, YearOfCentury}, kDayMonthYear},
    {4, u"%02d.%02d.%02d", {Day, Month, YearOfCentury}, kDayMonthYear},
    {5, u"%02d-%02d-%02d", {Day, Month, YearOfCentury}, kDayMonthYear},
    {6, u"%02d %s %02d", {Day, ShortMonth, YearOfCentury}, kDayNameYear},
    {7, u"%s %02d, %02d", {ShortMonth, Day, YearOfCentury}, kNameDayYear},
    {10, u"%02d-%02d-%02d", {Month, Day, YearOfCentury}, kMonthDayYear},
    {11, u"%02d/%02d/%02d", {YearOfCentury, Month, Day}, kYearMonthDay},
    {12, u"%02d%02d%02d", {YearOfCentury, Month, Day}, kCompact2},
    {100,
     u"%s %02d %04d %02d:%02d %s",
     {ShortMonth, Day, Year, Hour12, Minute, Marker},
     kNameDayYearTime},
    {101, u"%02d/%02d/%04d", {Month, Day, Year}, kMonthDayYear},
    {102, u"%04d.%02d.%02d", {Year, Month, Day}, kYearMonthDay},
    {103, u"%02d/%02d/%04d", {Day, Month, Year}, kDayMonthYear},
    {104, u"%02d.%02d.%04d", {Day, Month, Year}, kDayMonthYear},
    {105, u"%02d-%02d-%04d", {Day, Month, Year}, kDayMonthYear},
    // Read with the month as a number, though written with its name.
    {106, u"%02d %s %04d", {Day, ShortMonth, Year}, kDayMonthYear},
    {107, u"%s %02d, %04d", {ShortMonth, Day, Year}, kNameDayYear},
    {109,
     u"%s %02d %04d %02d:%02d:%02d:000 %s",
     {ShortMonth, Day, Year, Hour12, Minute, Second, Marker},
     kNameDayYearTime},
    {110, u"%02d-%02d-%04d", {Month, Day, Year}, kMonthDayYear},
    {111, u"%04d/%02d/%02d", {Year, Month, Day}, kYearMonthDay},
    {112, u"%04d%02d%02d", {Year, Month, Day}, kCompact4},
    {113, kUnknown.format, kUnknown.parts, kDayNameYearTime},
    {120, u"%04d-%02d-%02d", {Year, Month, Day}, kYearMonthDay},
    {121,
     u"%04d-%02d-%02d %02d:%02d:%02d.000",
     {Year, Month, Day, Hour, Minute, Second},
     kHyphenatedTime},
}};

static_assert(std::ranges::is_sorted(kLayouts, {}, &DateLayout::style));

} // namespace

const DateLayout& dateLayout(std::uint32_t style)
{
    const auto* found = std::ranges::lower_bound(kLayouts, style, {}, &DateLayout::style);
    return found != kLayouts.end() && found->style == style ? *found : kUnknown;
}

} // namespace condtree
