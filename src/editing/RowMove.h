#pragma once

#include <condtree/editing/EditedTree.h>

namespace condtree {

/// Moves a row without children to the end of a target's children: the row is deleted, and a new
/// one made with its code, texts, operator, edited column and ids. Argument type and object type
/// are 0 in the new one. TVI_ROOT is the top node, as the target and as the row.
///
/// The new row; null when the row has children, when either handle names nothing, when a row would
/// be moved into itself, and when the host, let in meanwhile, has deleted the target.
HTREEITEM moveRow(EditedTree& tree, HTREEITEM item, HTREEITEM target);

/// Puts the untouched placeholders of a row's level behind the row again, so that they end the
/// level and saving reaches the row. A handle that names no row does nothing.
void putPlaceholderLast(EditedTree& tree, HTREEITEM item);

} // namespace condtree
