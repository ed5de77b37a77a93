#pragma once

#include <condtree/editing/KindList.h>

#include <variant>

namespace condtree {

/// The last entry with a code is selected; the first of all when there is none.
struct PreselectCode {
    LONG code;
    bool operator==(const PreselectCode&) const = default;
};

/// The entry that findStringExact finds from start is selected; none when there is none.
struct PreselectText {
    CString text;
    int start;
    bool operator==(const PreselectText&) const = default;
};

/// What an opened list begins with; monostate selects nothing.
using Preselection = std::variant<std::monostate, PreselectCode, PreselectText>;

/// What is selected in the list of kinds of a row, by its node code and name.
[[nodiscard]] Preselection kindPreselection(LONG nodeCode, const CString& name,
                                            const KindListFor& list, const StringSource& strings);

/// The text to find, from index 0, in a row's list of operators: the operator's name whose number
/// is the row's node code, not its operator. On most rows it is empty, which selects nothing.
[[nodiscard]] CString operatorPreselection(LONG nodeCode, const StringSource& strings);

} // namespace condtree
