#pragma once

#include <array>
#include <cstdint>

namespace condtree {

/// What a date is written with.
enum class DatePart : std::uint8_t {
    None,
    Year,
    YearOfCentury,
    Month,
    ShortMonth,
    LongMonth,
    Day,
    Hour,
    Hour12,
    Minute,
    Second,
    Marker ///< AM or PM
};

/// What a date is read by, one after the other.
enum class ReadStep : std::uint8_t {
    None,
    Year,
    Month,
    MonthName,
    Day,
    Hyphen, ///< The very next character, or the text is refused.
    CompactDate2,
    CompactDate4,
    Time12,
    Time24
};

/// Ends with the first None.
using ReadOrder = std::array<ReadStep, 6>;

/// How the dates of a style code are written and read.
struct DateLayout {
    std::uint32_t style;
    /// A format of FormatInto, and what it is filled with.
    const char16_t* format;
    std::array<DatePart, 7> parts;
    /// Empty for a style whose dates are read by locale alone.
    ReadOrder order;
};

/// The layout of a style code. An unknown code writes as 113 does and reads nothing.
[[nodiscard]] const DateLayout& dateLayout(std::uint32_t style);

} // namespace condtree
