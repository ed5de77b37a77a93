// What the host may do inside the calls that a drag makes.
#include "DragFixture.h"

#include <QItemSelectionModel>

namespace condtree::test {
namespace {

class DraggingReentrancy : public DragFixture {};

TEST_F(DraggingReentrancy, ToldOfTheReleaseItMayDeleteEverything)
{
    dialog->whenTold = [this] { delete tree; };
    pick({1});
    tree->OnMouseMove(MK_LBUTTON, point(at({0})));
    tree->OnLButtonUp(0, point(at({0})));
    EXPECT_TRUE(tree.isNull());
    EXPECT_EQ(changes, 0) << "nobody is left to tell";
}

TEST_F(DraggingReentrancy, ToldOfTheChangeItMayDeleteEverything)
{
    whenChanged = [this] { delete tree; };
    pick({1});
    tree->OnMouseMove(MK_LBUTTON, point(at({0})));
    tree->OnLButtonUp(0, point(at({0})));
    EXPECT_TRUE(tree.isNull());
    EXPECT_EQ(changes, 1);
}

TEST_F(DraggingReentrancy, ToldOfAClicksReleaseItMayClearTheTree)
{
    dialog->whenTold = [this] { tree->mvDeleteNode(TVI_ROOT); };
    press(at({1}));
    release(at({1}));
    EXPECT_EQ(tree->mpoGetNode(TVI_ROOT), nullptr);
    EXPECT_EQ(tree->clicks, 1);
}

TEST_F(DraggingReentrancy, ToldThatTheRowWentItMayDeleteTheTarget)
{
    QObject::connect(tree->model(), &QAbstractItemModel::rowsRemoved, tree,
                     [this, isDone = false]() mutable {
                         if (!std::exchange(isDone, true))
                             tree->mvDeleteNode(node({0})->mhItem);
                     });
    drag({1}, at({0}));
    EXPECT_EQ(node({0})->mValue, QStringLiteral("5"));
    EXPECT_EQ(changes, 0);
    expectNoDrag();
}

TEST_F(DraggingReentrancy, ToldThatTheRowCameItMayDeleteIt)
{
    QObject::connect(tree->model(), &QAbstractItemModel::rowsInserted, tree,
                     [this](const QModelIndex& parent, int first) {
                         const HTREEITEM item = node({parent.row(), first})->mhItem;
                         tree->mvDeleteNode(item);
                     });
    drag({1}, at({0}));
    EXPECT_EQ(node({0})->mChildren.size(), 3U);
    EXPECT_EQ(node({1})->mValue, QStringLiteral("5"));
    expectNoDrag();
}

TEST_F(DraggingReentrancy, ToldOfTheSelectionItMayClearTheTree)
{
    pick({1});
    QObject::connect(tree->selectionModel(), &QItemSelectionModel::currentChanged, tree,
                     [this](const QModelIndex& current) {
                         if (current.parent().isValid())
                             QMetaObject::invokeMethod(
                                 tree, [this] { tree->mvLoad({}); }, Qt::DirectConnection);
                     });
    move(at({0}));
    release(at({0}));
    EXPECT_EQ(text(), kPlaceholderRow);
    expectNoDrag();
}

TEST_F(DraggingReentrancy, ARowThatGoesWhileItsPictureIsDrawnIsNotDragged)
{
    press(at({1}));
    fire(1000);
    tree->beforePainting = [this] { tree->mvDeleteNode(node({1})->mhItem); };
    tree->mvBegindrag(point(at({1})));
    ASSERT_FALSE(tree->beforePainting) << "the picture was drawn";
    EXPECT_EQ(image(), nullptr);
    const std::string rows = text();
    move(at({2}));
    release(at({2}));
    EXPECT_FALSE(tree->isExpanded(index({2}))) << "nothing was dropped on the group";
    EXPECT_EQ(text(), rows);
    EXPECT_EQ(changes, 0);
    expectNoDrag();
}

TEST_F(DraggingReentrancy, ARowIsSelectedAlthoughTheHostSavesMeanwhile)
{
    std::string savedMeanwhile;
    whenChanged = [&] { savedMeanwhile = records(); };
    drag({1}, at({0}));
    EXPECT_EQ(savedMeanwhile, records());
    EXPECT_NE(savedMeanwhile.find("'note' 'x'"), std::string::npos);
}

} // namespace
} // namespace condtree::test
