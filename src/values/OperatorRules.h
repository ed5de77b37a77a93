#pragma once

#include <condtree/model/ComboCmd.h>

#include <span>

namespace condtree {

/// The operator that a card variable of a type starts with.
[[nodiscard]] ComboCmd defaultOperator(LONG variableType);

/// Whether a row of a type must give up an operator for its default one. A row of the first numeric
/// kind and a yes/no row always must.
[[nodiscard]] bool mustResetOperator(LONG argType, LONG command);

/// The operators that a row offers, in the order of its list.
[[nodiscard]] std::span<const ComboCmd> offeredOperators(LONG nodeCode, LONG argType);

} // namespace condtree
