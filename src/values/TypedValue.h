#pragma once

#include <condtree/model/ComboCmd.h>
#include <condtree/platform/WinTypes.h>

// A value as text that carries its operator in front, such as ">=5" or "%pump%".
namespace condtree {

/// What a parser answers for "!" that no "=" follows: no operator.
inline constexpr auto kNoOperator = static_cast<ComboCmd>(-1);

/// Takes the operator off a text; an operator on texts, or kNoOperator.
ComboCmd parseString(CString& text);
/// Takes the operator off a text; an operator on numbers.
ComboCmd parseNumber(CString& text);
/// Takes the operator off a text; an operator on dates.
ComboCmd parseDate(CString& text);

/// Takes the operator off a value as its row's type prescribes; the operator that fits the row.
/// With StringEqualTo or TextCompare as the current operator the text stays untouched.
ComboCmd compareType(CString& text, LONG argType, ComboCmd current);

/// Puts an operator in front of a bare value (and behind it, where it has a suffix). Operators
/// without a text form leave it as it is.
void alterArgument(CString& text, LONG command);

} // namespace condtree
