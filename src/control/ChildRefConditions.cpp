#include "ChildRefConditions.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/model/ConditionKind.h>

#include <algorithm>

namespace condtree {

bool hasChildRefConditions(const VarTreeCtrlNode* node)
{
    return node != nullptr
           && std::any_of(node->mChildren.begin(), node->mChildren.end(),
                          [](const VarTreeCtrlNode* child) {
                              return child->mlCode == NodeOr ? hasChildRefConditions(child)
                                                             : isChildRefState(child->mlCode);
                          });
}

void removeChildRefConditions(ConditionModel& model, VarTreeCtrlNode* node)
{
    if (!hasChildRefConditions(node))
        return;
    const ConditionModel::Bulk bulk(model);
    for (VarTreeCtrlNode* child : node->mChildren) {
        if (child->mlCode == NodeOr)
            removeChildRefConditions(model, child);
    }
    model.removeChildren(
        *node, [](const VarTreeCtrlNode& child) { return isChildRefState(child.mlCode); });
}

} // namespace condtree
