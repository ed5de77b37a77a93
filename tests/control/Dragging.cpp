// Rows that are dragged with real presses, movements and releases.
#include "DragFixture.h"

#include <QItemSelectionModel>
#include <QScrollBar>

namespace condtree::test {
namespace {

class Dragging : public DragFixture {};

const std::string kGroup = "1 Or\n"
                           "  1000 Author | a op=100 arg=1\n"
                           "  1000 Title | b op=101 arg=1\n";
const std::string kClosed = "1 Or\n"
                            "  1000 Weight | 7 op=121 arg=2\n"
                            "  "
                            + kPlaceholderRow;
const std::string kBefore = kGroup + "  " + kPlaceholderRow
                            + "1000 Author | x | note op=100 arg=1\n"
                              "1000 Cost | 5 op=120 arg=3\n"
                            + kClosed + kPlaceholderRow;

TEST_F(Dragging, ARowIsMovedToTheEndOfAGroup)
{
    ASSERT_EQ(text(), kBefore);
    pick({1});
    EXPECT_NE(image(), nullptr);
    EXPECT_EQ(text(), kBefore) << "nothing moves before the drop";
    move(at({0}));
    release(at({0}));
    EXPECT_EQ(text(), kGroup + "  1000 Author | x | note op=100 object=0\n  " + kPlaceholderRow
                          + "1000 Cost | 5 op=120 arg=3\n" + kClosed + kPlaceholderRow);
    EXPECT_EQ(tree->currentIndex(), index({0, 2})) << "the new row is selected";
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(dialog->told, 1);
    EXPECT_EQ(tree->clicks, 0) << "a drag is no click";
    expectNoDrag();
}

TEST_F(Dragging, AClosedGroupIsOpenedByTheDrop)
{
    drag({1}, at({3}));
    EXPECT_TRUE(tree->isExpanded(index({2})));
    EXPECT_EQ(node({2, 1})->mValue, QStringLiteral("x"));
    EXPECT_EQ(tree->currentIndex(), index({2, 1}));
}

TEST_F(Dragging, AClosedGroupIsOpenedAlsoWhereTheViewDoesNotFollowTheSelection)
{
    tree->setAutoScroll(false);
    drag({1}, at({3}));
    EXPECT_TRUE(tree->isExpanded(index({2})));
}

TEST_F(Dragging, ARowIsMovedOutOfItsGroupToTheTopLevel)
{
    drag({0, 0}, below());
    EXPECT_EQ(text(), "1 Or\n  1000 Title | b op=101 arg=1\n  " + kPlaceholderRow
                          + "1000 Author | x | note op=100 arg=1\n"
                            "1000 Cost | 5 op=120 arg=3\n"
                          + kClosed + "1000 Author | a op=100 object=0\n" + kPlaceholderRow);
    EXPECT_EQ(tree->currentIndex(), index({4}));
    EXPECT_EQ(changes, 1);
}

TEST_F(Dragging, ARowIsMovedFromGroupToGroup)
{
    drag({0, 1}, at({3}));
    EXPECT_EQ(node({0})->mChildren.size(), 2U);
    EXPECT_EQ(node({3, 1})->mValue, QStringLiteral("b"));
    EXPECT_EQ(node({3, 2})->mlCode, -1);
}

TEST_F(Dragging, TheRecordsDifferByTheMoveOnly)
{
    drag({1}, at({0}));
    EXPECT_EQ(records(), "0: kind 2 type 0 '' '' '' arg 0 op 0\n"
                         "1: kind 4 type 2 'Author' '' 'a' arg 1 op 100\n"
                         "2: kind 4 type 2 'Title' '' 'b' arg 1 op 101\n"
                         "3: kind 4 type 2 'Author' 'note' 'x' arg 1 op 100\n"
                         "4: kind 3 type 2 'Cost' '' '5' arg 3 op 120\n"
                         "5: kind 2 type 0 '' '' '' arg 0 op 0\n"
                         "6: kind 4 type 2 'Weight' '' '7' arg 2 op 121\n");
}

TEST_F(Dragging, MovingAtOnceDragsNothingUntilTheHoldTimerHasFired)
{
    press(at({1}));
    EXPECT_EQ(running, (std::map<std::uintptr_t, unsigned>{{1000, 70}}));
    for (int x = 0; x < 30; ++x)
        move(at({1}) + QPoint(x, 0));
    EXPECT_EQ(image(), nullptr);
    fire(1000);
    EXPECT_EQ(tree->timers, std::vector<std::uintptr_t>{1000});
    EXPECT_EQ(image(), nullptr) << "the next movement begins the drag";
    move(at({1}) + QPoint(30, 1));
    EXPECT_NE(image(), nullptr);
    release(at({1}));
    EXPECT_EQ(text(), kBefore) << "dropped on itself";
}

TEST_F(Dragging, ARealTimerAllowsTheDrag)
{
    Services ports = services();
    DragCtrl other(nullptr, ports);
    other.mvInitialize(library.get(), 120, {}, {});
    other.mvLoad({record(3, 2, "Author", "x", 1, 100)});
    other.resize(400, 200);
    other.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&other));
    const QPoint on =
        other.viewport()->mapTo(&other, other.visualRect(other.model()->index(0, 0)).center());
    QTest::mousePress(other.windowHandle(), Qt::LeftButton, {}, {50, on.y()});
    QTest::mouseMove(other.windowHandle(), {70, on.y()});
    QTest::mouseMove(other.windowHandle(), {71, on.y()});
    EXPECT_EQ(imageIn(other), nullptr);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !other.timers.empty(); }));
    QTest::mouseMove(other.windowHandle(), {72, on.y()});
    EXPECT_NE(imageIn(other), nullptr);
    QTest::mouseRelease(other.windowHandle(), Qt::LeftButton, {}, {72, on.y()});
    EXPECT_EQ(imageIn(other), nullptr);
}

TEST_F(Dragging, OnlyTheFirstColumnArms)
{
    const int width = tree->viewport()->width();
    const int first = tree->miGetColumnSize(0, width);
    const int y = at({1}).y();
    struct {
        int x;
        bool arms;
    } const rows[]{{0, true},          {first - 1, true},      {first, false},
                   {first + 1, false}, {2 * first + 5, false}, {width - 1, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.x);
        press({row.x, y});
        EXPECT_EQ(running.count(1000), row.arms ? 1U : 0U);
        fire(1000);
        for (int step = 0; step < 20; ++step)
            move({row.x + step, y});
        EXPECT_EQ(image() != nullptr, row.arms);
        release({row.x, y});
        EXPECT_EQ(text(), kBefore);
    }
}

TEST_F(Dragging, AnArmedPressIsTakenBackByOneInAnotherColumn)
{
    const QPoint elsewhere(tree->viewport()->width() - 30, at({1}).y());
    press(at({1}));
    release(at({1}));
    press(elsewhere);
    TimerMessage late(1000);
    QCoreApplication::sendEvent(tree, &late);
    move(elsewhere + QPoint(0, 30));
    move(elsewhere + QPoint(0, 31));
    EXPECT_EQ(image(), nullptr);
}

TEST_F(Dragging, GroupsAndPlaceholdersAreNotDragged)
{
    for (const std::vector<int>& path : {std::vector<int>{0}, {3}, {4}, {0, 2}}) {
        drag(path, below());
        EXPECT_EQ(text(), kBefore);
        EXPECT_EQ(changes, 0);
        EXPECT_EQ(image(), nullptr);
    }
    EXPECT_EQ(dialog->told, 4) << "the button was released all the same";
}

TEST_F(Dragging, ADropOnAConditionOrAPlaceholderOnlyRepaints)
{
    for (const std::vector<int>& path : {std::vector<int>{2}, {4}, {0, 0}, {0, 2}}) {
        pick({1});
        move(at(path));
        QCoreApplication::processEvents();
        tree->painted = {};
        release(at(path));
        QCoreApplication::processEvents();
        EXPECT_EQ(tree->painted, QRegion(tree->viewport()->rect()));
        EXPECT_EQ(text(), kBefore);
        expectNoDrag();
    }
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(dialog->told, 0) << "such drops are not told";
    EXPECT_EQ(tree->clicks, 0);
}

TEST_F(Dragging, ADropOnItselfChangesNothing)
{
    drag({1}, at({1}));
    EXPECT_EQ(text(), kBefore);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(dialog->told, 0);
    EXPECT_EQ(tree->clicks, 0) << "near the press, but after a drag";
    expectNoDrag();
}

TEST_F(Dragging, ADropOnItsOwnGroupPutsTheRowLast)
{
    drag({0, 0}, at({0}));
    EXPECT_EQ(node({0, 0})->mValue, QStringLiteral("b"));
    EXPECT_EQ(node({0, 1})->mValue, QStringLiteral("a"));
    EXPECT_EQ(node({0, 2})->mlCode, -1);
    EXPECT_EQ(changes, 1);
}

TEST_F(Dragging, ASlowClickIsAClickAndNoDrag)
{
    press(at({1}));
    fire(1000);
    for (const QPoint& by : {QPoint(4, 0), QPoint(0, 4), QPoint(-4, -4), QPoint(4, 4)})
        move(at({1}) + by);
    EXPECT_EQ(image(), nullptr);
    release(at({1}) + QPoint(2, 2));
    EXPECT_EQ(tree->clicks, 1);
    EXPECT_EQ(dialog->told, 1);
    EXPECT_EQ(text(), kBefore);
}

TEST_F(Dragging, TheFirstMovementBeyondAClickBeginsTheDrag)
{
    move(at({1}));
    press(at({1}));
    fire(1000);
    move(at({1}) + QPoint(4, 0));
    EXPECT_EQ(image(), nullptr);
    move(at({1}) + QPoint(5, 0));
    EXPECT_NE(image(), nullptr);
    release(at({1}));
    EXPECT_EQ(tree->clicks, 0);
}

TEST_F(Dragging, TheOtherButtonsDragNothing)
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(dialog->windowHandle(), button, {}, inWindow(at({1})));
        EXPECT_TRUE(running.empty());
        fire(1000);
        move(at({1}) + QPoint(20, 0));
        move(at({1}) + QPoint(21, 0));
        EXPECT_EQ(image(), nullptr);
        QTest::mouseRelease(dialog->windowHandle(), button, {}, inWindow(at({1})));
    }
    EXPECT_EQ(dialog->told, 0);
}

TEST_F(Dragging, PassingOverRowsWithTheButtonHeldSelectsNone)
{
    press(at({1}));
    EXPECT_EQ(tree->currentIndex(), index({1}));
    move(at({2}));
    move(at({3}));
    EXPECT_EQ(tree->currentIndex(), index({1}));
    EXPECT_EQ(tree->selectionModel()->selectedIndexes(), QModelIndexList{index({1})});
    release(at({3}));
}

TEST_F(Dragging, APressRepaintsTheTree)
{
    QCoreApplication::processEvents();
    tree->painted = {};
    press(at({1}));
    QCoreApplication::processEvents();
    EXPECT_EQ(tree->painted, QRegion(tree->viewport()->rect()));
    release(at({1}));
}

TEST_F(Dragging, TheSecondPressOfADoubleClickBeginsNoDrag)
{
    press(at({1}));
    release(at({1}));
    QTest::mouseDClick(dialog->windowHandle(), Qt::LeftButton, {}, inWindow(at({1})));
    EXPECT_TRUE(running.empty());
}

TEST_F(Dragging, AHostWithoutParentsIsToldNothing)
{
    tree->setParent(nullptr);
    tree->resize(400, 300);
    tree->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(tree));
    tree->OnLButtonUp(0, {0, 0});
    EXPECT_EQ(dialog->told, 0);
    delete tree;
}

TEST_F(Dragging, TheHandlersWorkWhenTheyAreCalled)
{
    tree->OnLButtonDown(MK_LBUTTON, point(at({1})));
    tree->OnTimer(1000);
    tree->OnMouseMove(MK_LBUTTON, point(at({1})));
    EXPECT_EQ(image(), nullptr) << "the first movement of all arms the target";
    tree->OnMouseMove(MK_LBUTTON, point(at({1})));
    EXPECT_NE(image(), nullptr);
    tree->OnMouseMove(0, point(at({0})));
    EXPECT_NE(image(), nullptr);
    tree->OnLButtonUp(0, point(at({0})));
    EXPECT_EQ(node({0, 2})->mValue, QStringLiteral("x"));
    EXPECT_EQ(changes, 1);
    expectNoDrag();
}

TEST_F(Dragging, ADragCanBeBegunByCode)
{
    tree->mvBegindrag(point(at({0})));
    EXPECT_EQ(image(), nullptr) << "a group";
    tree->mvBegindrag({-5, at({1}).y()});
    EXPECT_EQ(image(), nullptr) << "outside";
    tree->mvBegindrag(point(at({1})));
    EXPECT_NE(image(), nullptr);
    tree->mvBegindrag(point(at({2})));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(dialog->findChildren<DragImage*>().size(), 1);
    tree->OnMouseMove(0, point(at({0})));
    tree->OnLButtonUp(0, point(at({0})));
    EXPECT_EQ(node({0, 2})->mValue, QStringLiteral("5"));
}

TEST_F(Dragging, APressFinishesTheInPlaceEditor)
{
    auto* editing = new OpenCtrl(tree->parentWidget(), services());
    tree->parentWidget()->layout()->addWidget(editing);
    editing->mvInitialize(library.get(), 120, {}, {});
    editing->mvLoad({record(3, 1, "", "path", 1, 100), record(3, 1, "", "other", 1, 100)});
    QCoreApplication::processEvents();
    const QModelIndex first = editing->model()->index(0, 0);
    const QPoint value(editing->miGetColumnSize(0, editing->viewport()->width()) * 2 + 20,
                       editing->visualRect(first).center().y());
    const auto inDialog = [&](const QPoint& at) { return editing->viewport()->mapTo(dialog, at); };
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, inDialog(value));
    QWidget* editor = QApplication::focusWidget();
    ASSERT_NE(editor, nullptr);
    ASSERT_TRUE(editing->viewport()->isAncestorOf(editor));
    QTest::keyClicks(editor, QStringLiteral("new"));
    QTest::mousePress(
        dialog->windowHandle(), Qt::LeftButton, {},
        inDialog({20, editing->visualRect(editing->model()->index(1, 0)).center().y()}));
    EXPECT_EQ(editing->mpoGetNode(TVI_ROOT)->mChildren[0]->mValue, QStringLiteral("new"));
    QTest::mouseRelease(dialog->windowHandle(), Qt::LeftButton, {}, {0, 0});
}

} // namespace
} // namespace condtree::test
