#include "Automation.h"

#include <cmath>

namespace condtree {

namespace {

constexpr int kSecondsPerDay = 24 * 60 * 60;
/// From 1 March of the year 0 to 30 December 1899.
constexpr int kEpoch = 693899;
constexpr int kDaysPer400Years = 146097;

struct Day {
    int year, month, day;
};

// Both count from 1 March of the year 0, so that a leap day is the last one of its year. From March
// on, every five months have 153 days, and (153 * month + 2) / 5 is how many go before a month.
// Back from days, the leap days that are over are taken off first, which makes every year one of
// 365. For years that are not negative.

constexpr int daysFromMarch(Day date)
{
    const int year = date.month <= 2 ? date.year - 1 : date.year;
    const int month = (date.month + 9) % 12;
    const int dayOfYear = (153 * month + 2) / 5 + date.day - 1;
    return 365 * year + year / 4 - year / 100 + year / 400 + dayOfYear;
}

constexpr Day dayFromMarch(int days)
{
    const int era = days / kDaysPer400Years;
    const int dayOfEra = days % kDaysPer400Years;
    const int yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / (kDaysPer400Years - 1)) / 365;
    const int dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const int month = (5 * dayOfYear + 2) / 153;
    const int year = yearOfEra + era * 400 + (month >= 10 ? 1 : 0);
    return {year, month < 10 ? month + 3 : month - 9, dayOfYear - (153 * month + 2) / 5 + 1};
}

static_assert(daysFromMarch({1899, 12, 30}) == kEpoch);

constexpr int fullYear(int year)
{
    if (year >= 100)
        return year;
    return year < 50 ? 2000 + year : 1900 + year;
}

constexpr bool isDate(double date)
{
    return date > kBeforeFirstDate && date < kBehindLastDate;
}

std::uint16_t field(int value)
{
    return static_cast<std::uint16_t>(value);
}

} // namespace

bool VariantTimeToSystemTime(double date, SYSTEMTIME& out)
{
    if (!isDate(date))
        return false;
    int days = static_cast<int>(date);
    int seconds = static_cast<int>(std::floor(std::fabs(date - days) * kSecondsPerDay + 0.5));
    if (seconds == kSecondsPerDay) {
        seconds = 0;
        ++days;
    }
    if (!isDate(days))
        return false;
    const Day day = dayFromMarch(days + kEpoch);
    // 30 December 1899 was a Saturday.
    const int dayOfWeek = (days + kEpoch + 3) % 7;
    out = {field(day.year),       field(day.month),         field(dayOfWeek),    field(day.day),
           field(seconds / 3600), field(seconds / 60 % 60), field(seconds % 60), 0};
    return true;
}

bool SystemTimeToVariantTime(const SYSTEMTIME& in, double& out)
{
    if (in.wMonth < 1 || in.wMonth > 12 || in.wDay > 31 || in.wYear > 9999)
        return false;
    int days = daysFromMarch({fullYear(in.wYear), in.wMonth, in.wDay}) - kEpoch;
    int seconds = (in.wHour * 60 + in.wMinute) * 60 + in.wSecond;
    days += seconds / kSecondsPerDay;
    seconds %= kSecondsPerDay;
    if (!isDate(days))
        return false;
    const double time = static_cast<double>(seconds) / kSecondsPerDay;
    out = days < 0 ? days - time : days + time;
    return true;
}

} // namespace condtree
