#include <condtree/control/ItemTable.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace condtree {
namespace {

TEST(ItemTable, AHandleFindsItsNodeAndPicture)
{
    ItemTable table;
    VarTreeCtrlNode node(NodeVariable);
    const HTREEITEM item = table.add(node, 3, 0);
    EXPECT_NE(item, nullptr);
    EXPECT_EQ(table.node(item), &node);
    EXPECT_EQ(table.image(item), 3);
}

TEST(ItemTable, NoHandleAndForeignHandlesNameNothing)
{
    ItemTable table;
    VarTreeCtrlNode node(NodeVariable);
    table.add(node, 0, 0);
    for (const HTREEITEM item : {HTREEITEM{nullptr}, TVI_ROOT, TVI_FIRST, TVI_LAST,
                                 reinterpret_cast<HTREEITEM>(std::uintptr_t{77})}) {
        EXPECT_EQ(table.node(item), nullptr);
        EXPECT_EQ(table.image(item), -1);
        EXPECT_NO_FATAL_FAILURE(table.remove(item));
    }
}

TEST(ItemTable, AHandleWhoseRowIsGoneNeverNamesTheRowThatTookItsSlot)
{
    ItemTable table;
    VarTreeCtrlNode first(NodeVariable);
    VarTreeCtrlNode second(NodeVariable);
    const HTREEITEM gone = table.add(first, 0, 0);
    table.remove(gone);
    const HTREEITEM alive = table.add(second, 0, 0);
    EXPECT_NE(gone, alive);
    EXPECT_EQ(table.node(gone), nullptr);
    EXPECT_EQ(table.node(alive), &second);
    table.remove(gone);
    EXPECT_EQ(table.node(alive), &second);
}

TEST(ItemTable, APlaceIsFoundWhereverTheRowHasMoved)
{
    ItemTable table;
    std::vector<VarTreeCtrlNode*> level;
    for (int i = 0; i < 20; ++i) {
        level.push_back(new VarTreeCtrlNode(NodeVariable));
        level.back()->mhItem = table.add(*level.back(), 0, 0);
    }
    for (int round = 0; round < 20; ++round) {
        for (std::size_t i = 0; i < level.size(); ++i)
            EXPECT_EQ(table.place(level[i]->mhItem, level), static_cast<int>(i));
        std::rotate(level.begin(), level.begin() + 7, level.end());
    }
    EXPECT_EQ(table.place(level.front()->mhItem, {}), -1);
    for (const VarTreeCtrlNode* node : level)
        delete node;
}

} // namespace
} // namespace condtree
