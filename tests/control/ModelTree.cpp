#include "TreeText.h"

#include <condtree/control/ModelTree.h>

#include <condtree/presentation/ConditionImages.h>

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QSignalSpy>

#include <vector>

namespace condtree {
namespace {

CString asDefault(LONG, const char16_t*, const char16_t*, const char16_t* text)
{
    return CString::fromUtf16(text);
}

std::unique_ptr<VarTreeCtrlNode> makeNode(LONG code)
{
    return std::make_unique<VarTreeCtrlNode>(code);
}

/// A top with a group of three rows, and a row behind the group.
class ModelTreeTest : public testing::Test {
protected:
    ModelTreeTest()
    {
        model.setTop(makeNode(NodeAnd));
        group = tree.add(*model.top(), makeNode(NodeOr), false);
        for (const LONG code : {FilePath, Revision, User})
            tree.add(*tree.node(group), makeNode(code), false);
        last = tree.add(*model.top(), makeNode(Group), false);
    }

    StringSource strings = asDefault;
    ConditionImages images;
    ConditionModel model{strings, images};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    ModelTree tree{model};
    HTREEITEM group = nullptr;
    HTREEITEM last = nullptr;
};

TEST_F(ModelTreeTest, RowsGoBehindTheOthersAndStayTheSame)
{
    QSignalSpy changed(&model, &QAbstractItemModel::layoutChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    VarTreeCtrlNode& level = *tree.node(group);
    const std::vector<VarTreeCtrlNode*> before = level.mChildren;
    const QPersistentModelIndex first = model.indexOf(before[0]->mhItem);
    const QPersistentModelIndex second = model.indexOf(before[1]->mhItem);
    const auto revision = tree.revision();
    const auto isPath = [](const VarTreeCtrlNode& node) { return node.mlCode == FilePath; };
    tree.moveLast(level, isPath);
    EXPECT_EQ(level.mChildren, (std::vector<VarTreeCtrlNode*>{before[1], before[2], before[0]}));
    EXPECT_EQ(first.row(), 2);
    EXPECT_EQ(second.row(), 0);
    EXPECT_EQ(model.itemOf(first), before[0]->mhItem);
    EXPECT_EQ(model.indexOf(before[2]->mhItem).row(), 1);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(reset.count(), 0) << "open groups would close";
    EXPECT_NE(tree.revision(), revision);
    tree.moveLast(level, isPath);
    EXPECT_EQ(changed.count(), 1) << "they are there already";
}

TEST_F(ModelTreeTest, ANewTopTakesThePlaceOfEverything)
{
    tree.setTop(makeNode(NodeAnd));
    EXPECT_EQ(tree.node(group), nullptr);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.top()->mhItem, TVI_ROOT);
}

TEST_F(ModelTreeTest, RemovingChildrenLeavesOtherRowsAlone)
{
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    const HTREEITEM child = tree.node(group)->mChildren.front()->mhItem;
    const auto before = tree.revision();
    tree.removeChildren(*tree.node(group));
    EXPECT_EQ(removed.count(), 1);
    EXPECT_EQ(reset.count(), 0) << "open groups would close";
    EXPECT_TRUE(tree.node(group)->mChildren.empty());
    EXPECT_EQ(tree.node(child), nullptr);
    EXPECT_NE(tree.node(last), nullptr);
    EXPECT_NE(tree.revision(), before);
    tree.removeChildren(*tree.node(group));
    EXPECT_EQ(removed.count(), 1);
}

TEST_F(ModelTreeTest, APictureChangesForItsRowAlone)
{
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    tree.setImage(last, 3);
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed.at(0).at(0).toModelIndex(), model.indexOf(last));
    EXPECT_EQ(changed.at(0).at(1).toModelIndex(), model.indexOf(last));
    tree.setImage(last, 3);
    tree.setImage(nullptr, 3);
    tree.setImage(TVI_ROOT, 3);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(ModelTreeTest, RowsComeGoAndOpen)
{
    QSignalSpy opened(&model, &ConditionModel::expandRequested);
    QSignalSpy texts(&model, &ConditionModel::textsChanged);
    const HTREEITEM first = tree.add(*model.top(), makeNode(NodePlaceholder), true);
    EXPECT_EQ(model.top()->mChildren.front(), tree.node(first));
    EXPECT_FALSE(tree.hasParentItem(first));
    EXPECT_TRUE(tree.hasParentItem(tree.node(group)->mChildren.front()->mhItem));
    tree.expand(group);
    EXPECT_EQ(opened.count(), 1);
    tree.invalidate();
    EXPECT_EQ(texts.count(), 1);
    tree.remove(first);
    EXPECT_EQ(tree.node(first), nullptr);
    EXPECT_EQ(tree.node(TVI_ROOT), model.top());
}

} // namespace
} // namespace condtree
