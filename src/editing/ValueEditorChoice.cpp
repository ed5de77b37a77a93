#include "ValueEditorChoice.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/VarTreeCtrlNode.h>

namespace condtree {

namespace {

constexpr LONG kLowered = 100;
constexpr LONG kLoweredForStates = 450;

ValueEditorChoice whenManaged(bool hasManager, const ValueEditorChoice& choice)
{
    return hasManager ? choice : ValueEditorChoice{};
}

ValueEditorChoice chooseStateEditor(LONG op)
{
    if (op == TextCompare)
        return OpenInPlaceEditor{};
    return OpenValueList{ValueList::States, kLoweredForStates};
}

bool isDateOperator(LONG op)
{
    return op >= DateEqualTo && op <= DateBiggerOrEqual;
}

} // namespace

ValueEditorChoice chooseValueEditor(LONG nodeCode, LONG op, KiroVaultType vaultType,
                                    bool hasManager)
{
    const bool isStandard = vaultType == VaultTypeStandard;
    // In this order: on these three the kind decides, whatever the operator.
    if (nodeCode == ObjectType)
        return OpenValueList{ValueList::ObjectTypes, kLowered};
    if (nodeCode == User)
        return OpenValueList{isStandard ? ValueList::Users : ValueList::NoUsers, kLowered};
    if (nodeCode == Group)
        return OpenValueList{isStandard ? ValueList::Groups : ValueList::NoGroups, kLowered};
    if (op == BinaryEqualTo)
        return OpenValueList{ValueList::YesNo, kLowered};
    if (nodeCode == Category)
        return whenManaged(hasManager, OpenValueList{ValueList::DocumentTypes, kLowered});
    if (nodeCode == ChildRefState || nodeCode == NodeHistoricState)
        return whenManaged(hasManager, chooseStateEditor(op));
    if (isDateOperator(op))
        return OpenDatePicker{};
    return OpenInPlaceEditor{};
}

} // namespace condtree
