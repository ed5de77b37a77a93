#pragma once

#include "LocaleDateRules.h"

#include <condtree/platform/WinTypes.h>

#include <QStringView>

#include <optional>

namespace condtree {

/// The calendar fields that a text names: a date, a time, or both in either order. A date without a
/// time is at midnight, a time without a date on 30 December 1899; a day without a year is of the
/// current one. The day of the week is left 0. What stands behind a null is not looked at.
[[nodiscard]] std::optional<SYSTEMTIME>
calendarFieldsOf(QStringView text, const LocaleDateRules& rules, int currentYear);

} // namespace condtree
