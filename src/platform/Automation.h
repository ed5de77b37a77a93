#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

// Automation dates: days since 30 December 1899, the time being the fraction without its sign
// (-1.25 is 29 December 1899, 06:00), in the Gregorian calendar throughout.

/// The ends of what a date can be; neither is one.
inline constexpr double kBeforeFirstDate = -657435;
inline constexpr double kBehindLastDate = 2958466;

/// The calendar fields of a date, to the nearest second, which may be one of the next day;
/// milliseconds are 0. False, with out untouched, for what lies outside the years 100 to 9999 and
/// for what is no number.
[[nodiscard]] CONDTREE_EXPORT bool VariantTimeToSystemTime(double date, SYSTEMTIME& out);

/// The date of calendar fields. Years 0 to 49 are those from 2000, 50 to 99 those from 1950; a day
/// of 0 is the last one of the month before, and days, hours, minutes and seconds that are too many
/// run on into what follows. The day of the week and the milliseconds are not looked at. False,
/// with out untouched, for a month outside 1 to 12, a day above 31, a year above 9999, and for what
/// then lies outside the years 100 to 9999.
[[nodiscard]] CONDTREE_EXPORT bool SystemTimeToVariantTime(const SYSTEMTIME& in, double& out);

} // namespace condtree
