#include "RowMove.h"

#include <condtree/model/ComboCmd.h>

#include <utility>

namespace condtree {

namespace {

std::unique_ptr<VarTreeCtrlNode> movedNode(const VarTreeCtrlNode& node)
{
    auto moved = std::make_unique<VarTreeCtrlNode>(node.mlCode);
    moved->mName = node.mName;
    moved->mValue = node.mValue;
    moved->mExtra = node.mExtra;
    moved->mlEditColumn = node.mlEditColumn;
    moved->mlOperator = node.mlOperator;
    moved->mlStateId = node.mlStateId;
    moved->mlUserOrGroupId = node.mlUserOrGroupId;
    moved->mlObjectType = 0;
    return moved;
}

bool isUntouchedPlaceholder(const VarTreeCtrlNode& node)
{
    return node.mlCode == NodePlaceholder && node.mlOperator == -1;
}

} // namespace

HTREEITEM moveRow(EditedTree& tree, HTREEITEM item, HTREEITEM target)
{
    const VarTreeCtrlNode* node = tree.node(item);
    if (node == nullptr || !node->mChildren.empty() || tree.node(target) == nullptr)
        return nullptr;
    auto moved = movedNode(*node);
    if (item == TVI_ROOT) { // alone in the tree, so that it is the target too
        tree.setTop(std::move(moved));
        return TVI_ROOT;
    }
    if (item == target)
        return nullptr;
    tree.remove(item);
    // Who is told that the row went may have deleted the target.
    VarTreeCtrlNode* parent = tree.node(target);
    return parent == nullptr ? nullptr : tree.add(*parent, std::move(moved), false);
}

void putPlaceholderLast(EditedTree& tree, HTREEITEM item)
{
    const VarTreeCtrlNode* node = tree.node(item);
    if (node != nullptr && node->mpParent != nullptr)
        tree.moveLast(*node->mpParent, isUntouchedPlaceholder);
}

} // namespace condtree
