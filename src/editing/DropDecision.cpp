#include "DropDecision.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/VarTreeCtrlNode.h>

namespace condtree {

namespace {

constexpr unsigned kHolds = TVHT_ONITEMICON | TVHT_ONITEMLABEL | TVHT_ONITEMINDENT
                            | TVHT_ONITEMRIGHT | TVHT_ONITEMSTATEICON;

/// The last code that is none of a condition.
constexpr LONG kLastUndragged = 2;

// The placeholder's code is negative, and as an unsigned number beyond all groups.
bool isGroup(LONG code)
{
    return static_cast<DWORD>(code) <= DWORD{NodeOr};
}

bool isBelow(const VarTreeCtrlNode& node, HTREEITEM item)
{
    for (const VarTreeCtrlNode* above = node.mpParent; above != nullptr; above = above->mpParent) {
        if (above->mhItem == item)
            return true;
    }
    return false;
}

} // namespace

bool beginsDrag(unsigned flags)
{
    return (flags & kHolds) != 0;
}

bool isDraggable(std::optional<LONG> code)
{
    return code && *code > kLastUndragged;
}

HTREEITEM dropTarget(HTREEITEM hit, std::optional<LONG> code)
{
    if (hit == nullptr)
        return TVI_ROOT;
    return !code || isGroup(*code) ? hit : nullptr;
}

DropEnd decideDrop(HTREEITEM dragged, HTREEITEM target, const VarTreeCtrlNode* targetNode)
{
    if (target == dragged)
        return DropEnd::OnItself;
    if (target == nullptr)
        return DropEnd::Nowhere;
    if (target != TVI_ROOT && targetNode != nullptr && isBelow(*targetNode, dragged))
        return DropEnd::IntoItself;
    return DropEnd::Moves;
}

} // namespace condtree
