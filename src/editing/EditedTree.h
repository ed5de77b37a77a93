#pragma once

#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TreeVocabulary.h>

#include <cstdint>
#include <functional>
#include <memory>

namespace condtree {

/// The tree that the editors change: its nodes with their rows. It owns the nodes.
class EditedTree {
public:
    EditedTree() = default;
    EditedTree(const EditedTree&) = delete;
    EditedTree& operator=(const EditedTree&) = delete;
    virtual ~EditedTree();

    /// The node of a row; the top node for TVI_ROOT, null for a handle that names no row.
    [[nodiscard]] virtual VarTreeCtrlNode* node(HTREEITEM item) const = 0;
    /// Whether a row lies under another row, not directly under the top.
    [[nodiscard]] virtual bool hasParentItem(HTREEITEM item) const = 0;
    /// Grows with every node that comes or goes: who lets the host in between two steps sees from
    /// it whether the tree is still the one that the step before saw.
    [[nodiscard]] virtual std::uint64_t revision() const = 0;

    /// Adds a node as the first or last child of parent, which must be in the tree. Its row; null
    /// when the host deleted the parent while its texts were fetched.
    virtual HTREEITEM add(VarTreeCtrlNode& parent, std::unique_ptr<VarTreeCtrlNode> node,
                          bool first) = 0;
    /// Deletes a row with its subtree; with TVI_ROOT everything. A handle that names no row does
    /// nothing.
    virtual void remove(HTREEITEM item) = 0;
    /// Deletes everything below a node, first to last.
    virtual void removeChildren(VarTreeCtrlNode& node) = 0;
    /// Makes a node the top; the one before it, if any, is deleted with everything below it.
    virtual void setTop(std::unique_ptr<VarTreeCtrlNode> node) = 0;
    /// Puts the rows of a level that a test picks behind its others, each kind in the order in
    /// which it was. The rows stay the same.
    virtual void moveLast(VarTreeCtrlNode& level,
                          const std::function<bool(const VarTreeCtrlNode&)>& picked) = 0;
    /// Opens a row.
    virtual void expand(HTREEITEM item) = 0;
    /// Gives a row another picture, by its index in the row image list.
    virtual void setImage(HTREEITEM item, int image) = 0;
    /// Texts of nodes were changed in place: all rows are drawn anew.
    virtual void invalidate() = 0;
};

} // namespace condtree
