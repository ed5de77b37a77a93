#pragma once

#include <condtree/model/ComboCmd.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TextRef.h>

#include <optional>
#include <span>

namespace condtree {

/// What the value of a kind of condition holds.
enum class ValueKind { Text, ObjectType, ChildRefState, User, Group };

/// A kind of condition: the number in its records and the code of its nodes. Persisted; append
/// only.
struct ConditionKind {
    LONG condType;
    LONG nodeCode;
    /// The first column; none where the record's name is shown.
    std::optional<TextRef> label;
    ValueKind value;
};

/// The ten kinds, in the order of their record numbers.
[[nodiscard]] std::span<const ConditionKind> conditionKinds();

/// The kind of a record; null for a number outside 1 to 10.
[[nodiscard]] const ConditionKind* kindOfRecord(LONG condType);

/// The lCondType that a node is saved as; none for a code that is no condition's.
/// Wider than conditionKinds(): it also takes codes that loading never makes.
[[nodiscard]] std::optional<LONG> recordTypeOfNode(LONG nodeCode);

/// Whether a record of this type is dropped when a reduced vault loads it.
[[nodiscard]] constexpr bool isDroppedOnReducedLoad(LONG condType)
{
    return condType == 4 || condType == 7 || condType == 10;
}

/// Whether a node of this kind is dropped when a reduced vault saves it. Users and groups are
/// loaded there, but never saved; that asymmetry is meant.
[[nodiscard]] constexpr bool isDroppedOnReducedSave(LONG nodeCode)
{
    return nodeCode == Category || nodeCode == ChildRefState || nodeCode == NodeHistoricState
           || nodeCode == User || nodeCode == Group;
}

/// Whether a node is a condition on the state of a child reference, present or past.
[[nodiscard]] constexpr bool isChildRefState(LONG nodeCode)
{
    return nodeCode == ChildRefState || nodeCode == NodeHistoricState;
}

} // namespace condtree
