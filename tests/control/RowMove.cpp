// Moving rows by code: what is copied, what is refused, and where placeholders stand afterwards.
#include "DragFixture.h"
#include "EditedRows.h"

#include <condtree/editing/RowMove.h>

namespace condtree::test {
namespace {

class RowMoving : public EditedRows {
protected:
    VarTreeCtrlNode& addGroup()
    {
        VarTreeCtrlNode& group = add({NodeOr});
        addTo(group, {NodePlaceholder});
        return group;
    }
};

TEST_F(RowMoving, AllIsCopiedButArgumentTypeAndObjectType)
{
    VarTreeCtrlNode& group = addGroup();
    VarTreeCtrlNode& row = add({NodeVariable, "Due", "value", "extra", 133, 5, 12, 7, 2});
    row.mlEditColumn = 3;
    const HTREEITEM before = row.mhItem;
    const HTREEITEM item = moveRow(tree, before, group.mhItem);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(tree.node(before), nullptr) << "the old row is deleted";
    const VarTreeCtrlNode& moved = *tree.node(item);
    EXPECT_EQ(moved.mlCode, NodeVariable);
    EXPECT_EQ(moved.mName, QStringLiteral("Due"));
    EXPECT_EQ(moved.mValue, QStringLiteral("value"));
    EXPECT_EQ(moved.mExtra, QStringLiteral("extra"));
    EXPECT_EQ(moved.mlOperator, 133);
    EXPECT_EQ(moved.mlStateId, 12);
    EXPECT_EQ(moved.mlUserOrGroupId, 7);
    EXPECT_EQ(moved.mlEditColumn, 3);
    EXPECT_EQ(moved.mlArgType, 0);
    EXPECT_EQ(moved.mlObjectType, 0);
    EXPECT_EQ(moved.mhItem, item);
    EXPECT_EQ(moved.mpParent, &group);
    EXPECT_TRUE(moved.mChildren.empty());
}

TEST_F(RowMoving, TheRowGoesToTheVeryEnd)
{
    VarTreeCtrlNode& group = addGroup();
    const VarTreeCtrlNode& row = add({FilePath, "p", "v"});
    ASSERT_NE(moveRow(tree, row.mhItem, group.mhItem), nullptr);
    EXPECT_EQ(rows(), "1 Or img=2\n  -1 <Click here to add a condition> img=0\n"
                      "  5 p | v object=0 img=5\n"
                          + kEnd);
}

TEST_F(RowMoving, ThePlaceholderGoesBehindTheRowAgain)
{
    VarTreeCtrlNode& group = addGroup();
    const HTREEITEM placeholder = group.mChildren[0]->mhItem;
    const HTREEITEM item = moveRow(tree, add({FilePath, "p", "v"}).mhItem, group.mhItem);
    putPlaceholderLast(tree, item);
    EXPECT_EQ(rows(), "1 Or img=2\n  5 p | v object=0 img=5\n" + kChildEnd + kEnd);
    EXPECT_EQ(group.mChildren[1]->mhItem, placeholder) << "it is the same row";
    putPlaceholderLast(tree, item);
    EXPECT_EQ(group.mChildren[1]->mhItem, placeholder);
}

TEST_F(RowMoving, AllUntouchedPlaceholdersGoBehindTheRowInTheirOrder)
{
    clear();
    VarTreeCtrlNode& top = *model.top();
    addTo(top, {NodePlaceholder, "", "second"});
    addTo(top, {NodePlaceholder, "", "touched", "", 100});
    const HTREEITEM row = addTo(top, {FilePath, "p"}).mhItem;
    const QPersistentModelIndex first = model.index(0, 0);
    const QPersistentModelIndex last = model.index(3, 0);
    putPlaceholderLast(tree, row);
    EXPECT_EQ(rows(), "-1 <Click here to add a condition> | touched op=100 img=0\n"
                      "5 p img=5\n"
                          + kEnd + "-1 <Click here to add a condition> | second img=0\n");
    EXPECT_EQ(first.row(), 2);
    EXPECT_EQ(last.row(), 1);
}

TEST_F(RowMoving, WhatCannotBeMovedStays)
{
    VarTreeCtrlNode& group = addGroup();
    VarTreeCtrlNode& row = add({FilePath, "p"});
    VarTreeCtrlNode& dead = add({FilePath, "dead"});
    const HTREEITEM gone = dead.mhItem;
    tree.remove(gone);
    const std::string before = rows();
    struct {
        const char* name;
        HTREEITEM item, target;
    } const cases[]{
        {"a row with children", group.mhItem, TVI_ROOT},
        {"the top with its rows", TVI_ROOT, TVI_ROOT},
        {"no row", nullptr, group.mhItem},
        {"a dead row", gone, group.mhItem},
        {"nowhere", row.mhItem, nullptr},
        {"a dead target", row.mhItem, gone},
        {"itself", row.mhItem, row.mhItem},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(moveRow(tree, one.item, one.target), nullptr);
        EXPECT_EQ(rows(), before);
    }
    putPlaceholderLast(tree, nullptr);
    putPlaceholderLast(tree, gone);
    putPlaceholderLast(tree, TVI_ROOT);
    EXPECT_EQ(rows(), before);
}

TEST_F(RowMoving, AnEmptyGroupAndAPlaceholderCanBeMovedByCode)
{
    VarTreeCtrlNode& group = addGroup();
    VarTreeCtrlNode& empty = add({NodeOr});
    EXPECT_NE(moveRow(tree, empty.mhItem, group.mhItem), nullptr);
    EXPECT_EQ(rows(), "1 Or img=2\n" + kChildEnd + "  1 Or object=0 img=2\n" + kEnd);
    EXPECT_NE(moveRow(tree, group.mChildren[0]->mhItem, TVI_ROOT), nullptr);
    EXPECT_EQ(rows(), "1 Or img=2\n  1 Or object=0 img=2\n" + kEnd
                          + "-1 <Click here to add a condition> object=0 img=0\n");
}

TEST_F(RowMoving, ATopWithoutRowsIsMadeAnew)
{
    auto top = makeNode({NodeAnd, "", "kept", "", -1, 4});
    model.setTop(std::move(top));
    EXPECT_EQ(moveRow(tree, TVI_ROOT, TVI_ROOT), TVI_ROOT);
    ASSERT_NE(model.top(), nullptr);
    EXPECT_EQ(toText(*model.top()), "0 And | kept object=0");
    EXPECT_EQ(model.top()->mhItem, TVI_ROOT);
}

TEST_F(RowMoving, ARowMayBeMovedBelowACondition)
{
    const VarTreeCtrlNode& target = add({FilePath, "target"});
    const VarTreeCtrlNode& row = add({FilePath, "row"});
    ASSERT_NE(moveRow(tree, row.mhItem, target.mhItem), nullptr);
    EXPECT_EQ(rows(), "5 target img=5\n  5 row object=0 img=5\n" + kEnd);
}

class ControlMoving : public DragFixture {};

TEST_F(ControlMoving, TheControlMovesRowsByTheSameRules)
{
    const HTREEITEM first = node({0, 0})->mhItem;
    const HTREEITEM item = tree->mhMoveItem(node({1})->mhItem, node({0})->mhItem, first);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(node({0, 3})->mhItem, item) << "the row to go behind is not looked at";
    EXPECT_EQ(node({0, 3})->mValue, QStringLiteral("x"));
    EXPECT_EQ(node({0, 2})->mlCode, -1) << "only a drop puts the placeholder last";
    EXPECT_EQ(tree->mhMoveItem(node({0})->mhItem, TVI_ROOT, TVI_LAST), nullptr);
    EXPECT_EQ(changes, 0) << "no user did it";
}

} // namespace
} // namespace condtree::test
