#pragma once

#include "DateTokens.h"

#include <QDate>

#include <span>

namespace condtree {

/// The day that the numbers and words of a date name; an invalid date when there is none such.
///
/// Three numbers are tried in the locale's order, then in the other ones. With two, one that can be
/// no day is the year, and the day is the first of the month; else the year is the current one. The
/// name of a month settles its place. A weekday may stand at either end and is not compared. Years
/// below 50 are those from 2000, those below 100 are those from 1950.
[[nodiscard]] QDate dateOfElements(std::span<const DateToken> elements, FieldOrder order,
                                   int currentYear);

} // namespace condtree
