#pragma once

#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/TreeVocabulary.h>

#include <cstdint>
#include <vector>

namespace condtree {

/// The rows of the tree by their handles. A handle carries the generation of its slot, so that one
/// whose row is gone names nothing, also when the slot serves another row.
class ItemTable {
public:
    /// Makes a row for a node. image is its index in the row image list, place its place among its
    /// siblings.
    HTREEITEM add(VarTreeCtrlNode& node, int image, int place);
    /// Forgets a row; a handle that names none does nothing.
    void remove(HTREEITEM item);

    /// Null for a handle that names no row.
    [[nodiscard]] VarTreeCtrlNode* node(HTREEITEM item) const;
    /// The index of the row's picture; -1 for a handle that names no row.
    [[nodiscard]] int image(HTREEITEM item) const;
    /// Changes the index of the row's picture; a handle that names no row does nothing.
    void setImage(HTREEITEM item, int image);
    /// Remembers the row's place; a handle that names no row does nothing.
    void setPlace(HTREEITEM item, int place);
    /// The row's place among siblings, which must hold its node. Remembers it: the next question
    /// costs as many steps as the row has moved since.
    int place(HTREEITEM item, const std::vector<VarTreeCtrlNode*>& siblings);

private:
    struct Slot {
        VarTreeCtrlNode* node = nullptr;
        std::uint32_t generation = 0;
        int image = -1;
        int place = 0;
    };
    [[nodiscard]] const Slot* find(HTREEITEM item) const;

    std::vector<Slot> m_slots;
    std::vector<std::uint32_t> m_free;
};

} // namespace condtree
