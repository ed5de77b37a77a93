#include "ItemTable.h"

#include <algorithm>

namespace condtree {

namespace {

// A handle is the generation above 32 bits and the slot's number, counted from 1, below.
static_assert(sizeof(std::uintptr_t) == 8);

// Handles stay below those of TVI_ROOT and its like; a slot that reaches the limit is not used
// again.
constexpr std::uint32_t kLastGeneration = 0x7FFFFFFF;

HTREEITEM makeHandle(std::uint32_t generation, std::size_t slot)
{
    return reinterpret_cast<HTREEITEM>((std::uintptr_t{generation} << 32U) | (slot + 1));
}

} // namespace

const ItemTable::Slot* ItemTable::find(HTREEITEM item) const
{
    const auto handle = reinterpret_cast<std::uintptr_t>(item);
    const std::size_t number = handle & 0xFFFFFFFFU;
    if (number == 0 || number > m_slots.size())
        return nullptr;
    const Slot& slot = m_slots[number - 1];
    return slot.node != nullptr && slot.generation == handle >> 32U ? &slot : nullptr;
}

HTREEITEM ItemTable::add(VarTreeCtrlNode& node, int image, int place)
{
    std::size_t index = m_slots.size();
    if (m_free.empty()) {
        m_slots.emplace_back();
    } else {
        index = m_free.back();
        m_free.pop_back();
    }
    Slot& slot = m_slots[index];
    slot.node = &node;
    slot.image = image;
    slot.place = place;
    return makeHandle(slot.generation, index);
}

void ItemTable::remove(HTREEITEM item)
{
    if (find(item) == nullptr)
        return;
    const auto index =
        static_cast<std::uint32_t>((reinterpret_cast<std::uintptr_t>(item) & 0xFFFFFFFFU) - 1);
    Slot& slot = m_slots[index];
    slot.node = nullptr;
    if (slot.generation == kLastGeneration)
        return;
    ++slot.generation;
    m_free.push_back(index);
}

VarTreeCtrlNode* ItemTable::node(HTREEITEM item) const
{
    const Slot* slot = find(item);
    return slot == nullptr ? nullptr : slot->node;
}

int ItemTable::image(HTREEITEM item) const
{
    const Slot* slot = find(item);
    return slot == nullptr ? -1 : slot->image;
}

void ItemTable::setImage(HTREEITEM item, int image)
{
    if (const Slot* slot = find(item))
        m_slots[static_cast<std::size_t>(slot - m_slots.data())].image = image;
}

void ItemTable::setPlace(HTREEITEM item, int place)
{
    if (const Slot* slot = find(item))
        m_slots[static_cast<std::size_t>(slot - m_slots.data())].place = place;
}

int ItemTable::place(HTREEITEM item, const std::vector<VarTreeCtrlNode*>& siblings)
{
    const Slot* found = find(item);
    if (found == nullptr || siblings.empty())
        return -1;
    Slot& slot = m_slots[static_cast<std::size_t>(found - m_slots.data())];
    const int last = static_cast<int>(siblings.size()) - 1;
    const int start = std::min(slot.place, last);
    const auto isAt = [&](int place) {
        return place >= 0 && place <= last
               && siblings[static_cast<std::size_t>(place)] == slot.node;
    };
    for (int distance = 0; distance <= last; ++distance) {
        for (const int place : {start - distance, start + distance}) {
            if (isAt(place))
                return slot.place = place;
        }
    }
    return -1;
}

} // namespace condtree
