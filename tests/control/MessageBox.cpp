// The box of a message: how it looks, what it blocks, and that it never stacks.
#include "MessageBoxScript.h"

#include <QAccessible>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <memory>

namespace condtree::test {
namespace {

const QString kFirst = QStringLiteral("The folder does not have a parent.");
const QString kSecond = QStringLiteral("You tried to log in twice.");

QPushButton* onlyButton(const QDialog& box)
{
    const auto buttons = box.findChildren<QPushButton*>();
    return buttons.size() == 1 ? buttons.front() : nullptr;
}

/// The real message while nothing else happens.
class MessageBoxes : public testing::Test {
protected:
    void show(const std::function<void(QDialog&)>& script, const QString& text = kFirst)
    {
        showMessageDuring(&window, text, script);
    }
    ClickedWindow window;
};

TEST_F(MessageBoxes, HaveTheApplicationsNamePlainTextAndOkAlone)
{
    QApplication::setApplicationDisplayName(QStringLiteral("The Host"));
    window.show();
    show(
        [](QDialog& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("The Host"));
            EXPECT_EQ(shownText(box), QStringLiteral("<b>text</b>\nand more"));
            ASSERT_NE(onlyButton(box), nullptr);
            EXPECT_EQ(onlyButton(box)->text().remove(QLatin1Char('&')), QStringLiteral("OK"));
            EXPECT_TRUE(box.findChildren<QLabel*>().empty()); // which an icon would be
        },
        QStringLiteral("<b>text</b>\nand more"));
    QApplication::setApplicationDisplayName({});
}

TEST_F(MessageBoxes, WrapLongTextsAndLongWords)
{
    for (const char* part : {"Nothing of this long text may be lost. ", "averylongword"}) {
        show(
            [](QDialog& box) {
                EXPECT_LE(box.width(), box.screen()->availableSize().width() * 4 / 5);
                EXPECT_GT(textOf(box).height(), 5 * box.fontMetrics().height());
                EXPECT_FALSE(textOf(box).verticalScrollBar()->isVisible());
                EXPECT_EQ(textOf(box).horizontalScrollBar()->maximum(), 0);
            },
            QString::fromUtf8(part).repeated(40));
    }
}

TEST_F(MessageBoxes, ScrollTextsThatAreTooLongForTheScreen)
{
    show(
        [](QDialog& box) {
            EXPECT_LE(box.height(), box.screen()->availableSize().height() * 3 / 4);
            EXPECT_TRUE(textOf(box).verticalScrollBar()->isVisible());
            EXPECT_EQ(textOf(box).horizontalScrollBar()->maximum(), 0);
        },
        QStringLiteral("Nothing of this long text may be lost. ").repeated(300));
}

TEST_F(MessageBoxes, AreAsSmallAsTheirText)
{
    show([](QDialog& box) {
        EXPECT_FALSE(textOf(box).verticalScrollBar()->isVisible());
        EXPECT_LE(textOf(box).height(), 2 * box.fontMetrics().height());
        EXPECT_EQ(textOf(box).x(), box.width() - 1 - textOf(box).geometry().right());
    });
}

TEST_F(MessageBoxes, StayOnTheScreenWhenATextJoins)
{
    window.setGeometry(window.screen()->availableGeometry().adjusted(0, 600, 0, 0));
    window.show();
    show([&](QDialog& box) {
        const QRect room = box.screen()->availableGeometry();
        box.move(box.x(), room.bottom() - box.frameGeometry().height());
        joinMessage(&window, QStringLiteral("One more line.\n").repeated(8));
        EXPECT_TRUE(room.contains(box.frameGeometry()));
        joinMessage(&window, QStringLiteral("Of many lines.\n").repeated(80));
        EXPECT_TRUE(room.contains(box.frameGeometry()));
    });
}

TEST_F(MessageBoxes, AreClosedByOkEscapeReturnAndTheCloseButton)
{
    window.show();
    const std::vector<std::function<void(QDialog&)>> ways = {
        [](QDialog& box) {
            const QWidget* ok = onlyButton(box);
            QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {},
                              ok->mapTo(&box, ok->rect().center()));
        },
        [](QDialog& box) { QTest::keyClick(box.windowHandle(), Qt::Key_Escape); },
        [](QDialog& box) { QTest::keyClick(box.windowHandle(), Qt::Key_Return); },
        [](QDialog& box) { box.windowHandle()->close(); }};
    for (const auto& way : ways) {
        show([&](QDialog& box) {
            EXPECT_EQ(openBoxes(), std::vector<QDialog*>{&box});
            way(box);
            EXPECT_TRUE(openBoxes().empty());
        });
    }
}

TEST_F(MessageBoxes, LetTheirTextBeSelectedAndCopiedByKeyboardAndMouse)
{
    window.show();
    show([](QDialog& box) {
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
        QTest::keyClick(box.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box.windowHandle(), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), kFirst);

        QTextEdit& text = textOf(box);
        text.moveCursor(QTextCursor::Start);
        const QPoint left = text.mapTo(&box, QPoint(0, text.height() / 2));
        const QPoint right = left + QPoint(text.width() - 1, 0);
        QTest::mousePress(box.windowHandle(), Qt::LeftButton, {}, left);
        QTest::mouseMove(box.windowHandle(), right);
        QTest::mouseRelease(box.windowHandle(), Qt::LeftButton, {}, right);
        EXPECT_EQ(text.textCursor().selectedText(), kFirst);
    });
}

TEST_F(MessageBoxes, BlockTheirWindowAlone)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QDialog& box) {
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        EXPECT_EQ(other.clicksAfterOneMore(), 1);
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
        EXPECT_TRUE(box.isVisible());
    });
    EXPECT_EQ(window.clicksAfterOneMore(), 1);
}

TEST_F(MessageBoxes, BlockTheWindowOfAWidgetDeepInsideAndStandOverItsMiddle)
{
    window.setGeometry(300, 300, 400, 400);
    window.showActive();
    showMessageDuring(&window.button, kFirst, [&](QDialog& box) {
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        EXPECT_LE((box.geometry().center() - window.geometry().center()).manhattanLength(), 60);
    });
}

TEST_F(MessageBoxes, BlockAWindowThatIsShownOrMadeAnewMeanwhile)
{
    show([&](QDialog&) {
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
    });
    EXPECT_EQ(window.clicksAfterOneMore(), 1);
}

TEST_F(MessageBoxes, MayBeUsedOverADialogThatIsModalItself)
{
    QDialog dialog;
    bool wasClosed = false;
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
        showMessageDuring(&dialog, kFirst, [&](QDialog& box) {
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
            wasClosed = openBoxes().empty();
        });
        dialog.accept();
    });
    dialog.exec();
    EXPECT_TRUE(wasClosed);
}

TEST_F(MessageBoxes, WithoutAnOwnerBlockTheWholeApplication)
{
    window.show();
    showMessageDuring(nullptr, kFirst, [&](QDialog& box) {
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        joinMessage(nullptr, kSecond);
        EXPECT_EQ(shownText(box), kFirst + QStringLiteral("\n\n") + kSecond);
    });
    EXPECT_EQ(window.clicksAfterOneMore(), 1);
}

TEST_F(MessageBoxes, DoNotSayTwiceOverAWindowWhatIsThereToRead)
{
    window.show();
    show([&](QDialog& box) {
        joinMessage(&window, kFirst);
        joinMessage(&window.button, kFirst);
        EXPECT_EQ(openBoxes(), std::vector<QDialog*>{&box});
        EXPECT_EQ(shownText(box), kFirst);
    });
    show([](QDialog& box) { EXPECT_EQ(shownText(box), kFirst); });
}

TEST_F(MessageBoxes, TakeFurtherTextsOfTheirWindowInEachOnce)
{
    window.show();
    show([&](QDialog& box) {
        const int height = box.height();
        // Part of what is there, but not one of the texts.
        const QString third = QStringLiteral("log in");
        for (const QString& text : {kSecond, kFirst, third, kSecond})
            joinMessage(&window, text);
        EXPECT_EQ(openBoxes(), std::vector<QDialog*>{&box});
        EXPECT_EQ(
            shownText(box),
            QStringLiteral(
                "The folder does not have a parent.\n\nYou tried to log in twice.\n\nlog in"));
        EXPECT_GE(box.height(), height + 4 * box.fontMetrics().height());
        EXPECT_GE(textOf(box).height(), 5 * box.fontMetrics().height());
    });
}

TEST_F(MessageBoxes, AreTwoOverTwoWindows)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QDialog& first) {
        showMessageDuring(&other, kFirst, [&](QDialog& second) {
            EXPECT_NE(&first, &second);
            EXPECT_EQ(openBoxes().size(), 2U);
            EXPECT_EQ(window.clicksAfterOneMore() + other.clicksAfterOneMore(), 0);
            joinMessage(&window, kSecond);
            EXPECT_EQ(shownText(second), kFirst);
            EXPECT_EQ(shownText(first), kFirst + QStringLiteral("\n\n") + kSecond);
        });
        EXPECT_EQ(other.clicksAfterOneMore(), 1);
    });
}

TEST_F(MessageBoxes, ThatWereClosedTakeNothingInWhileAnotherKeepsThemWaiting)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QDialog& first) {
        showMessageDuring(&other, kFirst, [&](QDialog&) {
            first.accept();
            show([&](QDialog& again) { EXPECT_EQ(shownText(again), kSecond); }, kSecond);
        });
        EXPECT_EQ(shownText(first), kFirst);
    });
}

TEST_F(MessageBoxes, TellScreenReadersTheirText)
{
    window.show();
    show([&](QDialog& box) {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&box);
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(reader->role(), QAccessible::Dialog);
        EXPECT_EQ(reader->text(QAccessible::Description), kFirst);
        joinMessage(&window, kSecond);
        EXPECT_EQ(reader->text(QAccessible::Description),
                  kFirst + QStringLiteral("\n\n") + kSecond);
    });
}

TEST_F(MessageBoxes, TakeTheFocusToOkAndGiveItBack)
{
    QLineEdit edit(&window);
    ClickedWindow other({400, 400});
    other.show();
    window.showActive();
    edit.setFocus();
    ASSERT_TRUE(edit.hasFocus());
    for (QWidget* owner : {static_cast<QWidget*>(&window), static_cast<QWidget*>(&other)}) {
        showMessageDuring(owner, kFirst, [&](QDialog& box) {
            EXPECT_EQ(QApplication::focusWidget(), onlyButton(box));
            QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
        });
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_TRUE(edit.hasFocus());
    }
}

TEST_F(MessageBoxes, LeaveTheFocusWhereTheUserHasTakenItMeanwhile)
{
    ClickedWindow other({400, 400});
    other.show();
    window.showActive();
    show([&](QDialog& box) {
        other.showActive();
        box.accept();
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(other.isActiveWindow());
}

} // namespace
} // namespace condtree::test
