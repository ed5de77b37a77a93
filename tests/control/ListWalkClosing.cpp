// An open list that is closed without a choice: what was selected counts once.
#include "ClickFixture.h"

#include <QScrollBar>

namespace condtree::test {
namespace {

constexpr RowBefore kUser{User, "User", "jones", "e", 101, 0, -1, 8};

class ListWalkClosing : public ClickFixture {
protected:
    ListWalkClosing()
    {
        for (int i = 0; i < 40; ++i)
            filler.push_back(record(3, 2, "Author", "a", 1, 106));
    }

    /// Sixty rows, and the list of kinds of a user's row, in which User is selected.
    VarTreeCtrlNode& openKinds()
    {
        closeAll();
        loaded(filler);
        VarTreeCtrlNode& row = add(kUser);
        control->scrollToTop();
        letEventsPass();
        changes = 0;
        control->closeUps = 0;
        click(row, 0);
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(selected(), "User");
        return row;
    }
    /// The selected kind was applied, once.
    void expectApplied(const VarTreeCtrlNode& row)
    {
        letEventsPass();
        EXPECT_EQ(control->closeUps, 1);
        EXPECT_EQ(toText(row), "9 User | smith op=101 id=7") << "as if User were chosen again";
        EXPECT_EQ(changes, 1);
        EXPECT_EQ(combo(), nullptr);
    }

    std::vector<TransCond> filler;
};

TEST_F(ListWalkClosing, WhateverClosesItTheSelectedKindIsAppliedOnce)
{
    start(KiroVaultType{0}, TreeTypeUsersAndGroups);
    QWidget other;
    const std::vector<std::pair<const char*, std::function<void()>>> ways = {
        {"Escape", [&] { key(Qt::Key_Escape); }},
        {"Escape after walking",
         [&] {
             key(Qt::Key_Down);
             key(Qt::Key_Down);
             key(Qt::Key_Escape);
         }},
        {"a click on the host's field",
         [&] {
             QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                               hostField->geometry().center());
         }},
        {"a click into the tree's indent",
         [&] {
             click({2, itemRect(topRow(5)).center().y()});
         }},
        {"another window",
         [&] {
             other.show();
             other.activateWindow();
             ASSERT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
         }},
        {"scrolling", [&] { control->verticalScrollBar()->setValue(30); }},
        {"resizing", [&] { window.resize(window.width() + 10, window.height()); }},
        {"hiding the window", [&] { window.hide(); }},
    };
    for (const auto& [name, way] : ways) {
        SCOPED_TRACE(name);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        const VarTreeCtrlNode& row = openKinds();
        way();
        expectApplied(row);
    }
}

TEST_F(ListWalkClosing, AListWithNothingSelectedIsOnlyHidden)
{
    start();
    const VarTreeCtrlNode& row = only({User, "User", "jones", "e", 101, 0, -1, 8});
    const std::string before = rows();
    for (const int column : {1, 2}) {
        const int closeUpsBefore = control->closeUps;
        click(row, column);
        ASSERT_TRUE(isOpen());
        key(Qt::Key_Down);
        key(Qt::Key_Escape);
        letEventsPass();
        EXPECT_EQ(control->closeUps - closeUpsBefore, 1);
        EXPECT_EQ(combo(), nullptr);
    }
    EXPECT_EQ(rows(), before);
    EXPECT_EQ(changes, 0);
}

TEST_F(ListWalkClosing, AnEmptyListCloses)
{
    start();
    const VarTreeCtrlNode& row = only({NodeVariable, "Odd", "", "", 100, 9});
    click(row, 1);
    ASSERT_TRUE(isOpen());
    key(Qt::Key_Return);
    letEventsPass();
    EXPECT_EQ(control->closeUps, 1);
    EXPECT_EQ(combo(), nullptr);
    EXPECT_EQ(changes, 0);
}

TEST_F(ListWalkClosing, AClickOnAnotherCellClosesTheListAndTheNextOpensAnother)
{
    start();
    const VarTreeCtrlNode& path = add({FilePath, "FilePath", "", "", 120});
    const VarTreeCtrlNode& text = add({NodeVariable, "Author", "b", "", 106, 1});
    click(path, 0);
    ASSERT_TRUE(isOpen());
    click(text, 1);
    letEventsPass();
    EXPECT_EQ(toText(path), "5 FilePath op=106") << "what was selected is applied to its own row";
    EXPECT_EQ(toText(text), "1000 Author | b op=106 arg=1");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(control->closeUps, 1);
    click(text, 1);
    EXPECT_EQ(combos(), 1);
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(combo()->entryCount(), 21);
}

// The desktop calls the second of two quick presses a double click, also where the first one went
// to a list, which it closed.
TEST_F(ListWalkClosing, TheQuickSecondClickAfterTheOneThatClosedAListIsAClick)
{
    start();
    const VarTreeCtrlNode& path = add({FilePath, "FilePath", "a", "", 106});
    click(path, 1);
    ASSERT_TRUE(isOpen());
    control->clicks = 0;
    const QPoint at = placeOf(path, 2);
    key(Qt::Key_Escape);
    letEventsPass();
    // What the window system makes of a press that follows one on a list, which it closed.
    const QPoint global = viewport->mapToGlobal(at);
    QMouseEvent second(QEvent::MouseButtonDblClick, at, global, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(viewport, &second);
    QMouseEvent released(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, {}, {});
    QCoreApplication::sendEvent(viewport, &released);
    EXPECT_EQ(control->clicks, 1);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(ListWalkClosing, AListIsTakenAwayWithoutApplyingAnything)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 120});
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->mvClearCombo();
    letEventsPass();
    EXPECT_EQ(combos(), 0);
    EXPECT_EQ(control->closeUps, 0);
    EXPECT_EQ(toText(row), "5 FilePath op=120");
}

TEST_F(ListWalkClosing, ASubclassMayApplyNothing)
{
    start();
    const VarTreeCtrlNode& row = only({FilePath, "FilePath", "", "", 120});
    click(row, 0);
    ASSERT_TRUE(isOpen());
    control->appliesCloseUps = false;
    key(Qt::Key_Escape);
    letEventsPass();
    EXPECT_EQ(control->closeUps, 1);
    EXPECT_EQ(toText(row), "5 FilePath op=120");
    EXPECT_NE(combo(), nullptr) << "hiding it is part of the control's own handler";
}

} // namespace
} // namespace condtree::test
