#pragma once

#include <QStringView>

#include <optional>

namespace condtree {

struct CompactDate {
    int year, month, day;
};

struct TimeOfDay {
    int hour = 0, minute = 0, second = 0, millisecond = 0;
};

/// A cursor in a text, from which the fields of a date are read one after the other.
///
/// Each operation named Read... skips any run of separators first. One that finds no such field
/// gives none; it may have passed characters all the same. Digits are 0 to 9 and letters A to Z in
/// either case; no other could be part of a field.
class DateReader final {
public:
    explicit DateReader(QStringView text)
        : m_rest(text)
    {
    }

    /// A whole run of digits as a number; none when it lies outside low to high.
    [[nodiscard]] std::optional<int> ReadNumberInRange(int low, int high);
    /// A run of exactly four digits, or of two, which are a year from 1950 to 2049.
    [[nodiscard]] std::optional<int> ReadYear();
    /// The number of a month by its short name in any case, which must be the whole word.
    [[nodiscard]] std::optional<int> ReadMonthName();
    /// A date of digits alone: the year in as many digits as given (2 or 4, read as by ReadYear),
    /// month and day in two each. Digits behind it are not looked at.
    [[nodiscard]] std::optional<CompactDate> ReadCompactDate(int yearDigits);
    /// Hours from 1 to 12 with AM or PM behind the time; all zero without. 12 PM is midnight, 12 AM
    /// noon.
    [[nodiscard]] TimeOfDay ReadTime12();
    /// Hours from 0 to 23; all zero unless hour and minute are there. Seconds and then milliseconds
    /// may be left out. A minute and a second may be 60.
    [[nodiscard]] TimeOfDay ReadTime24();

    /// Passes the very next character if it is the given one.
    [[nodiscard]] bool pass(char16_t character);

private:
    void skipSeparators();
    [[nodiscard]] QStringView takeDigits();
    [[nodiscard]] std::optional<int> takeTwoDigits(int low, int high);
    [[nodiscard]] std::optional<TimeOfDay> readTime(int firstHour, int lastHour);

    QStringView m_rest;
};

} // namespace condtree
