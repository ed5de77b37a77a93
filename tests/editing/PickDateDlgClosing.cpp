#include "PickerFixture.h"

#include <QToolButton>

namespace condtree::test {
namespace {

class PickerClosing : public PickerFixture {
protected:
    /// A place in the tree, outside the picker, as the tree's window sees it.
    static constexpr QPoint kOutside{300, 20};

    void clickOutside(Qt::MouseButton button)
    {
        QTest::mouseClick(window->windowHandle(), button, {}, kOutside);
    }
};

TEST_F(PickerClosing, ADoubleClickOnADayClosesAndTheFirstClickStores)
{
    open(QString(), [&] {
        const QPoint day = hand().day(20);
        hand().click(day);
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-20"));
        node->mValue = QStringLiteral("as the first click left it");
        hand().press(day);
    });
    EXPECT_FALSE(isOpenAfterScript);
    EXPECT_EQ(node->mValue, QStringLiteral("as the first click left it"));
    EXPECT_EQ(stored, 1);
}

TEST_F(PickerClosing, TwoSlowClicksOnADayDoNot)
{
    expectStaysOpen("slow", [&] {
        const QPoint day = hand().day(20);
        hand().click(day);
        ports.tick += 501;
        hand().click(day);
    });
    EXPECT_EQ(stored, 2);
}

TEST_F(PickerClosing, ADoubleClickOnTheLineOfTodayClosesWithTodayStored)
{
    expectCloses("today", [&] {
        const QPoint today = hand().middleOf(hand().todayLink());
        hand().click(today);
        hand().press(today);
    });
    EXPECT_EQ(node->mValue, QStringLiteral("2024-03-05"));
}

TEST_F(PickerClosing, ADoubleClickOnADayOfAnotherMonthClosesWithThatDayStored)
{
    expectCloses("28 February", [&] {
        const QPoint day = hand().day(-1);
        QTest::mouseDClick(&hand().window(), Qt::LeftButton, {}, day);
    });
    EXPECT_EQ(node->mValue, QStringLiteral("2024-02-28"));
}

TEST_F(PickerClosing, APressOfAnyButtonOutsideClosesAndKeepsWhatWasStored)
{
    const MouseLog log(*tree);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        expectCloses("outside", [&] {
            hand().click(hand().day(20));
            clickOutside(button);
        });
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-20"));
    }
    EXPECT_EQ(log.presses, 0); // it does nothing else
}

// Presses and releases arrive one by one, and the picker is gone in between.
TEST_F(PickerClosing, TheReleaseAfterThePressThatClosesReachesNobody)
{
    const MouseLog log(*tree);
    expectCloses("outside", [&] {
        QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, kOutside);
        QCoreApplication::processEvents();
        EXPECT_FALSE(isOpen());
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, kOutside);
    });
    cell = {60, 10, 160, 30};
    expectCloses("twice on a day, over the tree", [&] {
        const QPoint day = hand().day(1);
        const QPoint below = window->mapFromGlobal(picker->mapToGlobal(day));
        hand().click(day);
        hand().press(day);
        QCoreApplication::processEvents();
        EXPECT_FALSE(isOpen());
        QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, below);
    });
    EXPECT_EQ(log.presses, 0);
    EXPECT_EQ(log.releases, 0);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, kOutside);
    EXPECT_EQ(log.presses, 1);
    EXPECT_EQ(log.releases, 1);
}

TEST_F(PickerClosing, APressOnTheBorderCloses)
{
    expectCloses("border", [&] { hand().press(QPoint(0, 50)); });
}

TEST_F(PickerClosing, APressOfAnotherButtonInsideDoesNot)
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        expectStaysOpen("inside", [&] {
            QTest::mouseClick(&hand().window(), button, {}, hand().day(20));
            QTest::mouseClick(&hand().window(), button, {}, hand().cell(0, 2));
            QTest::mouseClick(&hand().window(), button, {}, hand().middleOf(hand().todayLink()));
        });
    }
    EXPECT_EQ(stored, 0);
}

TEST_F(PickerClosing, APressOnTheNamesOfDaysOrTheBarDoesNot)
{
    expectStaysOpen("names and bar", [&] {
        hand().press(hand().cell(0, 2));
        ports.tick += 1000;
        hand().click(hand().middleOf(hand().part("qt_calendar_nextmonth")));
    });
}

TEST_F(PickerClosing, TheCalendarsOwnMenuDoesNot)
{
    expectStaysOpen("months", [&] {
        auto& months = dynamic_cast<QToolButton&>(hand().part("qt_calendar_monthbutton"));
        const CMonthCalCtrlEx& shown = calendar();
        QTimer::singleShot(0, [&] {
            QWidget* const menu = QApplication::activePopupWidget();
            EXPECT_NE(menu, picker);
            QCoreApplication::processEvents();
            EXPECT_TRUE(picker->isVisible());
            QTest::keyClick(menu, Qt::Key_Down);
            QTest::keyClick(menu, Qt::Key_Return);
        });
        months.showMenu();
        EXPECT_EQ(QApplication::activePopupWidget(), picker);
        EXPECT_EQ(shown.selectedDate(), QDate(2024, 3, 14));
    });
}

TEST_F(PickerClosing, ReturnAndEscapeCloseAndKeepWhatWasStored)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
        stored = 0;
        expectCloses("key", [&] {
            hand().key(Qt::Key_Right);
            hand().key(key);
        });
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-15"));
        EXPECT_EQ(stored, 1);
    }
}

TEST_F(PickerClosing, ReturnAndEscapeCloseAtTheLineOfTodayToo)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        expectCloses("key", [&] {
            hand().todayLink().setFocus(Qt::TabFocusReason);
            hand().key(key);
        });
    }
    EXPECT_EQ(stored, 0);
}

TEST_F(PickerClosing, ReturnInTheFieldOfTheYearDoesNot)
{
    expectStaysOpen("year", [&] {
        hand().click(hand().middleOf(hand().part("qt_calendar_yearbutton")));
        hand().key(Qt::Key_Up);
        hand().key(Qt::Key_Return);
        EXPECT_EQ(calendar().yearShown(), 2025);
    });
}

// The offscreen platform has no other application to change to, so this is what the toolkit says.
TEST_F(PickerClosing, AnotherApplicationThatBecomesActiveCloses)
{
    for (const Qt::ApplicationState state : {Qt::ApplicationInactive, Qt::ApplicationHidden}) {
        expectCloses("application", [&] {
            hand().click(hand().day(20));
            Q_EMIT qGuiApp->applicationStateChanged(state);
        });
        EXPECT_EQ(node->mValue, QStringLiteral("2024-03-20"));
    }
    expectStaysOpen("away and back at once", [&] {
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive);
        Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
    });
}

TEST_F(PickerClosing, AnotherWindowThatBecomesActiveCloses)
{
    QWidget other;
    other.setGeometry(500, 10, 100, 100);
    expectCloses("window", [&] {
        other.show();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
    });
}

TEST_F(PickerClosing, HidingTheTreeOrItsWindowCloses)
{
    expectCloses("tree", [&] { tree->hide(); });
    tree->show();
    expectCloses("window hidden", [&] { window->hide(); });
    window->show();
    expectCloses("window closed", [&] { window->close(); });
}

TEST_F(PickerClosing, TheOwnerMayCloseIt)
{
    expectCloses("close", [&] { picker->close(); });
}

TEST_F(PickerClosing, TheEndOfTheApplicationClosesIt)
{
    bool hasReturned = false;
    makePicker();
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [] { QApplication::exit(); });
        picker->DoModal();
        EXPECT_FALSE(picker->isVisible());
        hasReturned = true;
    });
    QApplication::exec();
    EXPECT_TRUE(hasReturned);
}

TEST_F(PickerClosing, OpeningItTwiceIsOpeningItOnce)
{
    expectStaysOpen("twice", [&] {
        picker->DoModal();
        EXPECT_TRUE(isOpen());
    });
}

} // namespace
} // namespace condtree::test
