#include "ClickDecision.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/ConditionKind.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TreeVocabulary.h>

namespace condtree {

namespace {

constexpr LONG kListHeight = 450;
// Between the row's picture and its text.
constexpr LONG kPictureGap = 4;

bool hasOperators(LONG nodeCode)
{
    return nodeCode > NodeOr;
}

bool hasExtra(LONG nodeCode)
{
    return isChildRefState(nodeCode) || nodeCode == NodeOtherName || nodeCode == NodeVariable;
}

} // namespace

bool opensAnything(unsigned flags)
{
    return flags == TVHT_ONITEMLABEL || flags == TVHT_ONITEMRIGHT || flags == TVHT_TORIGHT;
}

ClickAction decideClick(unsigned flags, const VarTreeCtrlNode* node, const VarTreeCtrlNode* top,
                        int column)
{
    if (!opensAnything(flags) || node == nullptr || node == top)
        return IgnoreClick{};
    switch (column) {
    case 0:
        return OpenKindList{};
    case 1:
        return hasOperators(node->mlCode) ? ClickAction(OpenOperatorList{}) : OpenNothing{};
    case 2:
        return OpenValueEditor{};
    case 3:
        return hasExtra(node->mlCode) ? ClickAction(OpenExtraEditor{}) : CloseExtraEditor{};
    default:
        return IgnoreClick{};
    }
}

RECT comboCell(RECT cell, int column, int smallIconWidth)
{
    if (column == 0)
        cell.left -= smallIconWidth + kPictureGap;
    if (column == 0 || column == 1)
        cell.bottom = cell.top + kListHeight;
    return cell;
}

} // namespace condtree
