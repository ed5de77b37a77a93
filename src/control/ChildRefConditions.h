#pragma once

#include <condtree/model/VarTreeCtrlNode.h>

namespace condtree {

class ConditionModel;

/// Whether a condition on a child reference's state lies below node, directly or in an OR group.
[[nodiscard]] bool hasChildRefConditions(const VarTreeCtrlNode* node);

/// Deletes the conditions on a child reference's state below node, directly and in OR groups. The
/// groups stay, also when they become empty. Null does nothing.
void removeChildRefConditions(ConditionModel& model, VarTreeCtrlNode* node);

} // namespace condtree
