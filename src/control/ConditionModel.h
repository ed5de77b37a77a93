#pragma once

#include <condtree/control/ItemTable.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/TreeVocabulary.h>

#include <QAbstractItemModel>

#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <vector>

namespace condtree {

class ConditionImages;

/// The tree of nodes as an item model, in which a row is a node's place. It owns the nodes and
/// keeps the rows in step with them: nodes come and go through it alone.
///
/// A row has no text of its own, since the control draws its columns; it has a picture, and its
/// columns as the text that assistive tools read.
class ConditionModel final : public QAbstractItemModel {
    Q_OBJECT
public:
    using NodePtr = std::unique_ptr<VarTreeCtrlNode>;

    /// While it lives, changes are told to the views together, as one reset at its end.
    class Bulk {
    public:
        explicit Bulk(ConditionModel& model);
        Bulk(const Bulk&) = delete;
        Bulk& operator=(const Bulk&) = delete;
        ~Bulk();

    private:
        ConditionModel& m_model;
    };

    /// How many rows a level holds at most: its rows are counted by ints.
    static constexpr std::size_t kRoomOfLevel = std::numeric_limits<int>::max();

    /// strings and images must outlive the model.
    ConditionModel(const StringSource& strings, const ConditionImages& images,
                   std::size_t roomOfLevel = kRoomOfLevel);
    ~ConditionModel() override;

    /// The invisible top; null when there is none.
    [[nodiscard]] VarTreeCtrlNode* top() const { return m_top.get(); }
    /// The node of a row; the top for TVI_ROOT, null for a handle that names no row.
    [[nodiscard]] VarTreeCtrlNode* node(HTREEITEM item) const;
    /// Whether a row lies under another row, not directly under the top.
    [[nodiscard]] bool hasParentItem(HTREEITEM item) const;
    /// The index of a row; invalid for TVI_ROOT and for a handle that names no row.
    [[nodiscard]] QModelIndex indexOf(HTREEITEM item) const;
    [[nodiscard]] HTREEITEM itemOf(const QModelIndex& index) const;

    /// Makes a node the top; the one before it comes back, out of the tree.
    NodePtr setTop(NodePtr node);
    /// Adds a node with its subtree as the first or last child of parent. Its row; null when parent
    /// is not in the tree, and when it has left it while texts were fetched: then the node is
    /// deleted. Throws std::length_error when the parent has no room.
    HTREEITEM add(VarTreeCtrlNode& parent, NodePtr node, bool first);
    /// Makes node the top when parent is null, giving the top before it back to the caller, else
    /// adds it. Takes ownership of node; null does nothing. The node's row.
    HTREEITEM attach(VarTreeCtrlNode* parent, VarTreeCtrlNode* node, bool first);
    /// Adds nodes with their subtrees behind the children of parent, at one go. parent must be in
    /// the tree.
    void append(VarTreeCtrlNode& parent, std::vector<NodePtr> nodes);
    /// Deletes a row with its subtree; with TVI_ROOT everything.
    void remove(HTREEITEM item);
    /// Deletes the children of parent that a test picks, with their subtrees.
    void removeChildren(VarTreeCtrlNode& parent,
                        const std::function<bool(const VarTreeCtrlNode&)>& picked);

    /// Puts the children of level that a test picks behind the others, each kind in the order in
    /// which it was. Nothing is told when that changes nothing.
    void moveLast(VarTreeCtrlNode& level,
                  const std::function<bool(const VarTreeCtrlNode&)>& picked);

    /// Deletes all children of parent with their subtrees, first to last. Other rows are not
    /// touched.
    void clearChildren(VarTreeCtrlNode& parent);

    /// Gives a row another picture, by its index in the row image list; a handle that names no row
    /// does nothing.
    void setImage(HTREEITEM item, int image);
    /// Sets the label of a placeholder or group from its code; other nodes keep theirs.
    void updateTypeName(VarTreeCtrlNode& node) const;
    /// Asks the views to open a row; TVI_ROOT is always open.
    void expand(HTREEITEM item);
    /// Tells the views that texts of nodes were changed in place.
    void tellTextsChanged();
    /// Grows with every node that comes or goes: who lets the host in between two steps sees from
    /// it whether the tree is still the one that the step before saw.
    [[nodiscard]] std::uint64_t revision() const { return m_revision; }

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

Q_SIGNALS:
    /// A row wants to be open.
    void expandRequested(const QModelIndex& index);
    /// Rows show other texts than before.
    void textsChanged();

private:
    [[nodiscard]] VarTreeCtrlNode* nodeOf(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex indexOfNode(const VarTreeCtrlNode& node) const;
    [[nodiscard]] bool holds(const VarTreeCtrlNode& node) const;
    [[nodiscard]] QVariant picture(int image) const;
    [[nodiscard]] CString spokenText(const VarTreeCtrlNode& node) const;
    [[nodiscard]] bool isShown(const VarTreeCtrlNode& node) const;
    void enter(VarTreeCtrlNode& node, VarTreeCtrlNode& parent, int place,
               const std::vector<CString>& labels);
    void enterChildren(VarTreeCtrlNode& node, const std::vector<CString>& labels);
    void leave(VarTreeCtrlNode& node);
    [[nodiscard]] std::vector<CString> typeLabels() const;

    const StringSource& m_strings;
    const ConditionImages& m_images;
    std::size_t m_roomOfLevel;
    std::uint64_t m_revision = 0;
    int m_bulks = 0;
    NodePtr m_top;
    // Remembering a row's place is no change that anyone can see.
    mutable ItemTable m_items;
    mutable std::vector<QVariant> m_pictures;
};

} // namespace condtree
