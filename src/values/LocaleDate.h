#pragma once

#include <condtree/platform/WinTypes.h>

class QLocale;

namespace condtree {

/// Reads a date, a time or both as users of a locale write them. False, with result untouched, for
/// a text that is none. The result is an automation date (platform/Automation.h).
[[nodiscard]] CONDTREE_EXPORT bool ParseDateByLocale(const CString& text, double& result,
                                                     const QLocale& locale);

/// The same with the year of a day that is written without one, for hosts with a clock of their
/// own.
[[nodiscard]] CONDTREE_EXPORT bool ParseDateByLocale(const CString& text, double& result,
                                                     const QLocale& locale, int currentYear);

/// The same in the user's locale.
[[nodiscard]] CONDTREE_EXPORT bool ParseDateByLocale(const CString& text, double& result);

} // namespace condtree
