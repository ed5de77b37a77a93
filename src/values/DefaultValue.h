#pragma once

#include <condtree/platform/WinTypes.h>

#include <cstdint>
#include <optional>

namespace condtree {

/// The value that a row with an operator starts with: for an operator on dates the time given, as
/// the date style code writes it. None for other operators, and for fields that are no date.
[[nodiscard]] std::optional<CString> defaultSearchValue(LONG op, const SYSTEMTIME& now,
                                                        std::uint32_t style);

} // namespace condtree
