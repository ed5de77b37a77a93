#pragma once

#include <condtree/platform/SpStr.h>
#include <condtree/platform/WinTypes.h>

namespace condtree {

/// What a record is and where it hangs. Persisted; append only.
enum RowKind : LONG {
    RowKindGroup = 2,  ///< An OR group.
    RowKindTop = 3,    ///< A condition directly under the top-level AND.
    RowKindInGroup = 4 ///< A condition inside the most recent OR group before it.
};

/// One record of a condition as hosts keep it. A condition is a flat, ordered vector of records: an
/// implicit top-level AND of rows and OR groups, each group followed by its rows.
struct TransCond {
    /// The host's own; loading does not read it, saving writes 0.
    LONG lHostTag = 0;
    /// The record's position in the vector that it was saved into; loading ignores it.
    LONG lIndex = 0;
    /// A RowKind.
    LONG lRowKind = 0;
    /// The kind of condition, 1 to 10 (ConditionKind.h); 0 in a group's record.
    LONG lCondType = 0;
    /// The first column: the label of a fixed kind, or the card variable's name.
    SpStr oName;
    /// The fourth column, carried unchanged.
    SpStr oExtra;
    /// The value, encoded by the kind of condition: a text, an id in decimal, "Yes" or "No".
    SpStr oValue;
    /// An ArgType; 0 in a group's record.
    LONG lArgType = 0;
    /// A ComboCmd.
    LONG lOperator = 0;
};

} // namespace condtree
