#pragma once

#include <condtree/editing/EditedTree.h>
#include <condtree/platform/TextRef.h>

namespace condtree {

/// Makes a node a group (code 0 or 1), or takes over an operator or a fixed value's code (2 and
/// above), and keeps its children, name and picture in step: a group has at least its placeholder
/// and is opened, everything else has no children. A node that has the code already is left alone.
/// A placeholder becomes a variable's row first, behind which its level gets a fresh placeholder;
/// one without a parent leaves none behind.
///
/// False when the host, let in for a text or by what the tree tells, has deleted the node: nothing
/// was done to it from then on. Rows are not drawn anew: that is for the caller to ask for.
bool changeNodeType(VarTreeCtrlNode& node, LONG code, EditedTree& tree,
                    const StringSource& strings);

} // namespace condtree
