// The box of a message: how it looks, what it blocks, and that it never stacks.
#include "MessageBoxScript.h"

#include <QAccessible>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextDocument>
#include <QWindow>

#include <memory>

namespace condtree::test {
namespace {

const QString kFirst = QStringLiteral("The folder does not have a parent.");
const QString kSecond = QStringLiteral("You tried to log in twice.");
const QString kBreak(QChar(0x200B)); // a place to break a line at, which has no width

QPushButton* onlyButton(const QMessageBox& box)
{
    const auto buttons = box.buttons();
    return buttons.size() == 1 ? qobject_cast<QPushButton*>(buttons.front()) : nullptr;
}

/// A click through the window system at the place of OK, which must be on the screen.
void clickOk(QMessageBox& box)
{
    const QWidget* ok = onlyButton(box);
    EXPECT_TRUE(
        box.screen()->availableGeometry().contains(QRect(ok->mapToGlobal(QPoint()), ok->size())));
    QTest::mouseClick(box.windowHandle(), Qt::LeftButton, {}, ok->mapTo(&box, ok->rect().center()));
}

/// What scrolls the text, if anything does.
QScrollArea* areaOf(const QMessageBox& box)
{
    return box.findChild<QScrollArea*>();
}

/// The whole text is laid out within its label, the label within the box.
void expectNothingIsCutOff(const QMessageBox& box)
{
    const QLabel& text = textOf(box);
    const auto* laidOut = text.findChild<QTextDocument*>();
    ASSERT_NE(laidOut, nullptr);
    EXPECT_LE(laidOut->size().width(), text.width());
    EXPECT_LE(laidOut->idealWidth(), text.width());
    EXPECT_LE(laidOut->size().height(), text.height());
    EXPECT_TRUE(box.rect().contains(QRect(text.mapTo(&box, QPoint()), text.size())));
    EXPECT_LE(box.width(), box.screen()->availableSize().width());
}

/// The real message while nothing else happens.
class MessageBoxes : public testing::Test {
protected:
    void show(const std::function<void(QMessageBox&)>& script, const QString& text = kFirst)
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
        [](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), QStringLiteral("The Host"));
            EXPECT_EQ(box.text(), QStringLiteral("<b>text</b>\nand more"));
            ASSERT_NE(onlyButton(box), nullptr);
            EXPECT_EQ(onlyButton(box)->text().remove(QLatin1Char('&')), QStringLiteral("OK"));
            EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
            EXPECT_EQ(box.escapeButton(), onlyButton(box));
            EXPECT_EQ(box.defaultButton(), onlyButton(box));
            EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
        },
        QStringLiteral("<b>text</b>\nand more"));
    QApplication::setApplicationDisplayName({});
}

TEST_F(MessageBoxes, WrapLongTextsAndLongWords)
{
    for (const char* part : {"Nothing of this long text may be lost. ", "averylongword"}) {
        const QString text = QString::fromUtf8(part).repeated(40);
        show(
            [&](QMessageBox& box) {
                EXPECT_EQ(box.text().remove(kBreak), text);
                EXPECT_GE(textOf(box).height(), 4 * box.fontMetrics().height());
                EXPECT_EQ(areaOf(box), nullptr);
                expectNothingIsCutOff(box);
            },
            text);
    }
}

TEST_F(MessageBoxes, ChangeNothingInAWordThatALineTakes)
{
    const QString word(60, u'w');
    const QString longer(125, u'w');
    for (const QString& text : {word, word + u'\n' + word + u' ' + word}) {
        show([&](QMessageBox& box) { EXPECT_EQ(box.text(), text); }, text);
    }
    show(
        [&](QMessageBox& box) {
            EXPECT_EQ(box.text(), word + kBreak + word + kBreak + QStringLiteral("wwwww"));
            joinMessage(&window, longer);
            EXPECT_EQ(box.text().count(kBreak), 2);
            EXPECT_EQ(box.accessibleDescription(), longer);
        },
        longer);
}

TEST_F(MessageBoxes, ScrollTextsThatAreTooLongForTheScreen)
{
    for (const char* part :
         {"Nothing of this long text may be lost. ", "line\n", "averylongword"}) {
        const QString text = QString::fromUtf8(part).repeated(300);
        show(
            [&](QMessageBox& box) {
                const QSize room = box.screen()->availableSize();
                EXPECT_EQ(box.text().remove(kBreak), text);
                EXPECT_LE(box.width(), room.width());
                EXPECT_LE(box.height(), room.height() * 3 / 4);
                QCoreApplication::processEvents();
                ASSERT_NE(areaOf(box), nullptr);
                EXPECT_EQ(areaOf(box)->widget(), &textOf(box));
                EXPECT_EQ(areaOf(box)->horizontalScrollBar()->maximum(), 0);
                EXPECT_GT(areaOf(box)->verticalScrollBar()->maximum(), room.height() / 4);
                clickOk(box);
                EXPECT_TRUE(openBoxes().empty());
            },
            text);
    }
}

TEST_F(MessageBoxes, ThatScrollAreReadAndClosedByKeyboard)
{
    window.show();
    show(
        [&](QMessageBox& box) {
            ASSERT_NE(areaOf(box), nullptr);
            const QScrollBar& bar = *areaOf(box)->verticalScrollBar();
            EXPECT_EQ(QApplication::focusWidget(), onlyButton(box));
            QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), &textOf(box));
            QTest::keyClick(box.windowHandle(), Qt::Key_PageDown);
            EXPECT_GE(bar.value(), box.height() / 2);
            QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
            EXPECT_EQ(QApplication::focusWidget(), onlyButton(box));
            QTest::keyClick(box.windowHandle(), Qt::Key_Backtab, Qt::ShiftModifier);
            QTest::keyClick(box.windowHandle(), Qt::Key_Return);
            EXPECT_TRUE(openBoxes().empty());
        },
        QStringLiteral("line\n").repeated(300));
}

TEST_F(MessageBoxes, ScrollOnceFurtherTextsAreTooMuchForTheScreen)
{
    window.show();
    show([&](QMessageBox& box) {
        joinMessage(&window, QStringLiteral("line\n").repeated(100));
        QScrollArea* area = areaOf(box);
        ASSERT_NE(area, nullptr);
        EXPECT_LE(box.height(), box.screen()->availableSize().height() * 3 / 4);
        joinMessage(&window, QStringLiteral("Nothing of this long text may be lost. ").repeated(9));
        EXPECT_EQ(areaOf(box), area);
        EXPECT_TRUE(box.text().startsWith(kFirst));
        EXPECT_TRUE(textOf(box).isVisible());
        QApplication::processEvents();
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        clickOk(box);
        EXPECT_TRUE(openBoxes().empty());
    });
}

TEST_F(MessageBoxes, AreAsSmallAsTheirText)
{
    show([](QMessageBox& box) {
        EXPECT_EQ(areaOf(box), nullptr);
        EXPECT_LE(textOf(box).height(), 2 * box.fontMetrics().height());
        EXPECT_LE(box.width(), box.fontMetrics().horizontalAdvance(kFirst) * 3 / 2);
        expectNothingIsCutOff(box);
    });
}

TEST_F(MessageBoxes, StayOnTheScreenWhenATextJoins)
{
    window.setGeometry(window.screen()->availableGeometry().adjusted(0, 600, 0, 0));
    window.show();
    show([&](QMessageBox& box) {
        const QRect room = box.screen()->availableGeometry();
        box.move(box.x(), room.bottom() - box.frameGeometry().height());
        joinMessage(&window, QStringLiteral("One more line.\n").repeated(8));
        EXPECT_TRUE(room.contains(box.frameGeometry()));
        box.move(room.right() - box.frameGeometry().width(), box.y());
        joinMessage(&window, QStringLiteral("A line that is longer than those before. ") + kFirst);
        EXPECT_TRUE(room.contains(box.frameGeometry()));
        joinMessage(&window, QStringLiteral("Of many lines.\n").repeated(80));
        EXPECT_TRUE(room.contains(box.frameGeometry()));
    });
}

TEST_F(MessageBoxes, AreClosedByOkEscapeReturnAndTheCloseButton)
{
    window.show();
    const std::vector<std::function<void(QMessageBox&)>> ways = {
        clickOk, [](QMessageBox& box) { QTest::keyClick(box.windowHandle(), Qt::Key_Escape); },
        [](QMessageBox& box) { QTest::keyClick(box.windowHandle(), Qt::Key_Return); },
        [](QMessageBox& box) { box.windowHandle()->close(); }};
    for (const auto& way : ways) {
        show([&](QMessageBox& box) {
            EXPECT_EQ(openBoxes(), std::vector<QMessageBox*>{&box});
            way(box);
            EXPECT_TRUE(openBoxes().empty());
        });
    }
}

TEST_F(MessageBoxes, LetTheirTextBeSelectedAndCopiedByKeyboardAndMouse)
{
    window.show();
    show([](QMessageBox& box) {
        QGuiApplication::clipboard()->clear();
        QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
        QTest::keyClick(box.windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(box.windowHandle(), Qt::Key_C, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text(), kFirst);

        const QLabel& text = textOf(box);
        const QPoint left = text.mapTo(&box, QPoint(0, text.height() / 2));
        const QPoint right = left + QPoint(text.width() - 1, 0);
        QTest::mousePress(box.windowHandle(), Qt::LeftButton, {}, right);
        QTest::mouseRelease(box.windowHandle(), Qt::LeftButton, {}, right);
        EXPECT_FALSE(text.hasSelectedText());
        QTest::mousePress(box.windowHandle(), Qt::LeftButton, {}, left);
        QTest::mouseMove(box.windowHandle(), right);
        QTest::mouseRelease(box.windowHandle(), Qt::LeftButton, {}, right);
        EXPECT_EQ(text.selectedText(), kFirst);
    });
}

TEST_F(MessageBoxes, LetTheirTextBeSelectedAfterAChangeOfStyleToo)
{
    window.show();
    show([](QMessageBox& box) {
        box.setStyleSheet(QStringLiteral("QLabel { padding: 1px }"));
        EXPECT_EQ(textOf(box).textInteractionFlags(),
                  Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        EXPECT_EQ(textOf(box).focusPolicy(), Qt::StrongFocus);
    });
}

TEST_F(MessageBoxes, BlockTheirWindowAlone)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QMessageBox& box) {
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
    showMessageDuring(&window.button, kFirst, [&](QMessageBox& box) {
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        EXPECT_LE((box.geometry().center() - window.geometry().center()).manhattanLength(), 60);
    });
}

TEST_F(MessageBoxes, BlockAWindowThatIsShownOrMadeAnewMeanwhile)
{
    show([&](QMessageBox&) {
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
        showMessageDuring(&dialog, kFirst, [&](QMessageBox& box) {
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
    showMessageDuring(nullptr, kFirst, [&](QMessageBox& box) {
        EXPECT_EQ(window.clicksAfterOneMore(), 0);
        joinMessage(nullptr, kSecond);
        EXPECT_EQ(box.text(), kFirst + QStringLiteral("\n\n") + kSecond);
    });
    EXPECT_EQ(window.clicksAfterOneMore(), 1);
}

TEST_F(MessageBoxes, DoNotSayTwiceOverAWindowWhatIsThereToRead)
{
    window.show();
    show([&](QMessageBox& box) {
        joinMessage(&window, kFirst);
        joinMessage(&window.button, kFirst);
        EXPECT_EQ(openBoxes(), std::vector<QMessageBox*>{&box});
        EXPECT_EQ(box.text(), kFirst);
    });
    show([](QMessageBox& box) { EXPECT_EQ(box.text(), kFirst); });
}

TEST_F(MessageBoxes, TakeFurtherTextsOfTheirWindowInEachOnce)
{
    window.show();
    show([&](QMessageBox& box) {
        const int height = box.height();
        // Part of what is there, but not one of the texts.
        const QString third = QStringLiteral("log in");
        for (const QString& text : {kSecond, kFirst, third, kSecond})
            joinMessage(&window, text);
        EXPECT_EQ(openBoxes(), std::vector<QMessageBox*>{&box});
        EXPECT_EQ(
            box.text(),
            QStringLiteral(
                "The folder does not have a parent.\n\nYou tried to log in twice.\n\nlog in"));
        EXPECT_GE(box.height(), height + 4 * box.fontMetrics().height());
        EXPECT_GE(textOf(box).height(), 5 * box.fontMetrics().height());
    });
}

TEST_F(MessageBoxes, OfErrorsHaveTheIconOfAnError)
{
    window.show();
    const Services ports = realServices();
    duringMessage([&] { ports.messageBox(&window, kFirst, MB_ICONERROR); },
                  [&](QMessageBox& box) {
                      EXPECT_EQ(box.icon(), QMessageBox::Critical);
                      joinMessage(&window, kSecond);
                      EXPECT_EQ(box.icon(), QMessageBox::Critical);
                      expectNothingIsCutOff(box);
                  });
    show([&](QMessageBox& box) {
        joinMessage(&window, kSecond, MB_ICONERROR);
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
    });
}

TEST_F(MessageBoxes, AreTwoOverTwoWindows)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QMessageBox& first) {
        showMessageDuring(&other, kFirst, [&](QMessageBox& second) {
            EXPECT_NE(&first, &second);
            EXPECT_EQ(openBoxes().size(), 2U);
            EXPECT_EQ(window.clicksAfterOneMore() + other.clicksAfterOneMore(), 0);
            joinMessage(&window, kSecond);
            EXPECT_EQ(second.text(), kFirst);
            EXPECT_EQ(first.text(), kFirst + QStringLiteral("\n\n") + kSecond);
        });
        EXPECT_EQ(other.clicksAfterOneMore(), 1);
    });
}

TEST_F(MessageBoxes, ThatWereClosedTakeNothingInWhileAnotherKeepsThemWaiting)
{
    ClickedWindow other({400, 400});
    window.show();
    other.show();
    show([&](QMessageBox& first) {
        showMessageDuring(&other, kFirst, [&](QMessageBox&) {
            first.accept();
            show([&](QMessageBox& again) { EXPECT_EQ(again.text(), kSecond); }, kSecond);
        });
        EXPECT_EQ(first.text(), kFirst);
    });
}

TEST_F(MessageBoxes, TellScreenReadersTheirText)
{
    window.show();
    show([&](QMessageBox& box) {
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&box);
        ASSERT_NE(reader, nullptr);
        EXPECT_EQ(reader->role(), QAccessible::AlertMessage);
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
        showMessageDuring(owner, kFirst, [&](QMessageBox& box) {
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
    show([&](QMessageBox& box) {
        other.showActive();
        box.accept();
    });
    QCoreApplication::processEvents();
    EXPECT_TRUE(other.isActiveWindow());
}

} // namespace
} // namespace condtree::test
