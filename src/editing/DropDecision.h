#pragma once

#include <condtree/platform/TreeVocabulary.h>

#include <optional>

namespace condtree {

class VarTreeCtrlNode;

/// Whether a drag may begin where these TVHT_ flags were hit: on any part of a row but its button.
[[nodiscard]] bool beginsDrag(unsigned flags);

/// Whether a row with this node code is dragged: a condition. None is a row without a node.
[[nodiscard]] bool isDraggable(std::optional<LONG> code);

/// Where a row that is let go would be moved: the hit row when it is a group or has no node (no
/// code), TVI_ROOT when nothing is hit (null), which is the top level; null is nowhere.
[[nodiscard]] HTREEITEM dropTarget(HTREEITEM hit, std::optional<LONG> code);

/// How a drag ends when the button is released.
enum class DropEnd { OnItself, Nowhere, IntoItself, Moves };

/// How a drag of a row ends over a target as dropTarget gives it; targetNode is the target's, null
/// when it has none. Only a drag that Moves is told to the host.
[[nodiscard]] DropEnd decideDrop(HTREEITEM dragged, HTREEITEM target,
                                 const VarTreeCtrlNode* targetNode);

} // namespace condtree
