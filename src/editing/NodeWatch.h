#pragma once

#include <condtree/editing/EditedTree.h>

namespace condtree {

/// Whether a node is still there after the host was let in: who fetches a text, loads a list or
/// tells of a change looks again before it touches the node. A node outside the tree counts as
/// there for good.
class NodeWatch final {
public:
    NodeWatch(const EditedTree& tree, const VarTreeCtrlNode& node)
        : m_tree(tree)
        , m_node(node)
        , m_item(node.mhItem)
        , m_isRow(tree.node(node.mhItem) == &node)
    {
    }

    [[nodiscard]] bool isThere() const { return !m_isRow || m_tree.node(m_item) == &m_node; }
    /// The row that the node had at first.
    [[nodiscard]] HTREEITEM item() const { return m_item; }

private:
    const EditedTree& m_tree;
    const VarTreeCtrlNode& m_node;
    HTREEITEM m_item;
    bool m_isRow;
};

} // namespace condtree
