#include "ComboFixture.h"

#include <QMenu>

using namespace condtree;
using namespace condtree::test;

namespace {

using Closings = std::vector<int>;

class CommandComboClosing : public ComboFixture {
protected:
    CommandComboClosing()
    {
        offer({QStringLiteral("One"), QStringLiteral("Two"), QStringLiteral("Three")});
        combo->select(0);
    }

    /// What was told after the list was closed somehow.
    [[nodiscard]] Closings told()
    {
        letEventsPass();
        EXPECT_FALSE(combo->isDroppedDown());
        EXPECT_FALSE(view().isVisible());
        return closings;
    }
};

TEST_F(CommandComboClosing, AClickOnAnEntryChoosesIt)
{
    open();
    click(2);
    EXPECT_EQ(told(), Closings{2});
}

TEST_F(CommandComboClosing, TellsFromTheEventLoopOnly)
{
    open();
    combo->closeList();
    EXPECT_FALSE(combo->isDroppedDown());
    EXPECT_EQ(closings, Closings{});
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, ReturnChoosesTheCurrentEntry)
{
    for (const Qt::Key pressed : {Qt::Key_Return, Qt::Key_Enter}) {
        combo->select(0);
        closings.clear();
        open();
        key(Qt::Key_Down);
        key(pressed);
        EXPECT_EQ(told(), Closings{1});
    }
}

TEST_F(CommandComboClosing, ReturnWithoutACurrentEntryJustCloses)
{
    combo->select(-1);
    open();
    EXPECT_EQ(current(), -1);
    key(Qt::Key_Return);
    EXPECT_EQ(told(), Closings{-1});
}

TEST_F(CommandComboClosing, EscapeKeepsTheSelectionFromBefore)
{
    open();
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(current(), 2);
    key(Qt::Key_Escape);
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, KeysThatReachTheBoxWorkOnTheOpenList)
{
    open();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(current(), 1);
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(told(), Closings{1});
    open();
    QTest::keyClick(combo, Qt::Key_Escape);
    EXPECT_EQ(told(), (Closings{1, 1}));
}

TEST_F(CommandComboClosing, AClickElsewhereKeepsTheSelectionFromBefore)
{
    open();
    key(Qt::Key_Down);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, ChoosingTheSameEntryAgainTellsAsWell)
{
    open();
    click(0);
    EXPECT_EQ(told(), Closings{0});
    open();
    key(Qt::Key_Return);
    EXPECT_EQ(told(), (Closings{0, 0}));
}

TEST_F(CommandComboClosing, TheOwnerClosesIt)
{
    open();
    key(Qt::Key_Down);
    combo->closeList();
    combo->closeList();
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, ClosingAClosedListTellsNothing)
{
    combo->closeList();
    combo->hide();
    EXPECT_EQ(told(), Closings{});
}

TEST_F(CommandComboClosing, AnotherWindowBecomesActive)
{
    open();
    QWidget other;
    other.show();
    other.windowHandle()->requestActivate();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !combo->isDroppedDown(); }));
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, ItsOwnWindowsBecomingActiveDoesNotCloseIt)
{
    open();
    window->windowHandle()->requestActivate();
    letEventsPass();
    popup()->requestActivate();
    letEventsPass();
    EXPECT_TRUE(combo->isDroppedDown());
    EXPECT_EQ(closings, Closings{});
}

TEST_F(CommandComboClosing, TheWindowSystemClosesThePopup)
{
    open();
    popup()->close();
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, AnotherPopupOpens)
{
    open();
    QMenu menu;
    menu.addAction(QStringLiteral("x"));
    menu.popup(window->mapToGlobal(QPoint(5, 5)));
    EXPECT_EQ(told(), Closings{0});
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(CommandComboClosing, TheBoxOrItsWindowIsHidden)
{
    open();
    combo->hide();
    EXPECT_EQ(told(), Closings{0});
    open();
    window->hide();
    EXPECT_EQ(told(), (Closings{0, 0}));
}

TEST_F(CommandComboClosing, OpeningTwiceIsOnce)
{
    open();
    combo->dropDown();
    combo->showPopup();
    key(Qt::Key_Escape);
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, OpenedAgainAtOnceItTellsOfBothClosings)
{
    open();
    combo->closeList();
    open();
    letEventsPass();
    EXPECT_EQ(closings, Closings{0});
    EXPECT_TRUE(combo->isDroppedDown());
    key(Qt::Key_Escape);
    EXPECT_EQ(told(), (Closings{0, 0}));
}

TEST_F(CommandComboClosing, OpenedByAPressAReleaseOnTheBoxChoosesNothing)
{
    combo->show();
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, combo->geometry().center());
    ASSERT_TRUE(combo->isDroppedDown());
    QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, combo->geometry().center());
    letEventsPass();
    EXPECT_TRUE(combo->isDroppedDown());
    click(1);
    EXPECT_EQ(told(), Closings{1});
}

TEST_F(CommandComboClosing, OpenedByAPressAndMovedToAnEntryTheReleaseChooses)
{
    combo->show();
    QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, combo->geometry().center());
    ASSERT_TRUE(combo->isDroppedDown());
    QTest::mouseMove(popup(), placeOf(1));
    QTest::mouseMove(popup(), placeOf(2));
    QTest::mouseRelease(popup(), Qt::LeftButton, {}, placeOf(2));
    EXPECT_EQ(told(), Closings{2});
}

TEST_F(CommandComboClosing, AReleaseBesideTheEntriesChoosesNothing)
{
    open();
    typeText(QStringLiteral("tw"));
    EXPECT_EQ(shownTexts(), QStringList{QStringLiteral("Two")});
    const QPoint below = placeOf(1) + QPoint(0, view().rowHeight());
    QTest::mouseClick(popup(), Qt::LeftButton, {}, below);
    letEventsPass();
    EXPECT_TRUE(combo->isDroppedDown());
    key(Qt::Key_Escape);
    EXPECT_EQ(told(), Closings{0});
}

TEST_F(CommandComboClosing, AnEmptyListOpensOneRowHighAndClosesOnce)
{
    delete combo;
    make();
    open();
    EXPECT_GE(view().viewport()->height(), view().rowHeight());
    EXPECT_LT(view().viewport()->height(), 2 * view().rowHeight());
    EXPECT_EQ(popup()->position(), combo->mapToGlobal(QPoint(0, combo->height() - 1)));
    EXPECT_EQ(popup()->width(), combo->width());
    key(Qt::Key_Return);
    EXPECT_EQ(told(), Closings{-1});
    open();
    key(Qt::Key_Escape);
    EXPECT_EQ(told(), (Closings{-1, -1}));
    open();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(told(), (Closings{-1, -1, -1}));
}

TEST_F(CommandComboClosing, AnEmptyListAtTheScreensEdgeOpensAboveTheBox)
{
    delete combo;
    make();
    window->move(50, window->screen()->availableGeometry().bottom() - combo->geometry().bottom());
    open();
    EXPECT_EQ(popup()->geometry().bottom(), combo->mapToGlobal(QPoint(0, 0)).y());
}

} // namespace
