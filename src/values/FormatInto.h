#pragma once

#include <condtree/platform/WinTypes.h>

#include <span>
#include <variant>

namespace condtree {

using FormatArgument = std::variant<int, const char16_t*>;

/// Replaces the target with a text formatted as printf does. The format may hold %02d, %04d (any
/// one-digit width) and %s, for which the arguments stand in their order; surplus arguments are
/// left out. A minus sign counts as one of the digits: -1 is "-1" and "-001".
void FormatInto(CString& target, const char16_t* format, std::span<const FormatArgument> arguments);

} // namespace condtree
