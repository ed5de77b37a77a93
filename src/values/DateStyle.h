#pragma once

#include <condtree/values/LocaleDate.h>

#include <cstdint>

// Dates as text, laid out by a date style code: codes below 100 write the year with two digits,
// those from 100 on with four. Dates are automation dates (platform/Automation.h).
namespace condtree {

/// Writes a date, to the second at most. False, with target untouched, for exactly 0, which is no
/// date. A date outside what Automation.h can take apart has fields of -1 and no month's name. An
/// unknown code writes as 113 does.
[[nodiscard]] CONDTREE_EXPORT bool FormatDateByStyle(CString& target, double date,
                                                     std::uint32_t style);

/// Reads a date as a style writes it, whatever the separators; text behind it is not looked at.
/// What does not fit the style is read by locale. False, with result untouched, for a text that is
/// no date in either way; style 121 refuses one without hyphens in the date outright.
///
/// A day that its month does not have runs on into the next month. A date that runs on behind the
/// year 9999 is 0, which is no date.
[[nodiscard]] CONDTREE_EXPORT bool ParseDateByStyle(const CString& text, double& result,
                                                    std::uint32_t style, const QLocale& locale);

/// The same in the user's locale.
[[nodiscard]] CONDTREE_EXPORT bool ParseDateByStyle(const CString& text, double& result,
                                                    std::uint32_t style);

} // namespace condtree
