#include "NodeChange.h"

#include <condtree/editing/NodeWatch.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/values/CommandCatalogue.h>

namespace condtree {

namespace {

constexpr bool isObjectType(LONG code)
{
    return code >= ObjectTypeFile && code <= ObjectTypeItem;
}

/// What a node remembers of a choice among the object types; -1 for every other choice.
constexpr LONG objectTypeOf(LONG code)
{
    return isObjectType(code) ? code - ObjectTypeFile : -1;
}

/// Whether a choice is the operator from now on. Fixed values are none, and an OR group has none.
constexpr bool isTakenAsOperator(LONG code)
{
    return code != NodeOr && code != DocTypeChoice && code != StateChoice && !isObjectType(code);
}

HTREEITEM addPlaceholder(EditedTree& tree, VarTreeCtrlNode& parent)
{
    return tree.add(parent, std::make_unique<VarTreeCtrlNode>(NodePlaceholder), false);
}

bool leavePlaceholderBehind(VarTreeCtrlNode& node, const NodeWatch& watch, EditedTree& tree)
{
    if (node.mpParent != nullptr)
        addPlaceholder(tree, *node.mpParent);
    if (!watch.isThere())
        return false;
    node.mlCode = NodeVariable;
    return true;
}

bool becomeGroup(VarTreeCtrlNode& node, const NodeWatch& watch, EditedTree& tree,
                 const StringSource& strings)
{
    node.mValue.clear();
    if (const TextRef* label = typeLabel(node.mlCode)) {
        const CString name = label->from(strings);
        if (!watch.isThere())
            return false;
        node.mName = name;
    }
    if (!node.mChildren.empty())
        return true;
    addPlaceholder(tree, node);
    if (watch.isThere())
        tree.expand(watch.item());
    return watch.isThere();
}

} // namespace

bool changeNodeType(VarTreeCtrlNode& node, LONG code, EditedTree& tree, const StringSource& strings)
{
    if (node.mlCode == code)
        return true;
    const NodeWatch watch(tree, node);
    if (node.mlCode == NodePlaceholder && !leavePlaceholderBehind(node, watch, tree))
        return false;
    node.mlObjectType = objectTypeOf(code);
    if (code == NodeOr)
        node.mlCode = NodeOr;
    else if (isTakenAsOperator(code))
        node.mlOperator = code;

    if (code <= NodeOr) {
        if (!becomeGroup(node, watch, tree, strings))
            return false;
    } else {
        tree.removeChildren(node);
    }
    if (!watch.isThere())
        return false;
    tree.setImage(watch.item(), rowImageIndex(node.mlCode));
    return watch.isThere();
}

} // namespace condtree
