// The filters of keys and characters, pasting, input methods.
#include "FocusEditFixture.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>

#include <algorithm>

namespace condtree::test {
namespace {

using Numbers = std::vector<unsigned>;

TEST_F(FocusEdits, TellKeysAndThenCharacters)
{
    open();
    type("aB");
    press(Qt::Key_Left);
    press(Qt::Key_Backspace);
    press(Qt::Key_Escape);
    press(Qt::Key_Tab);
    EXPECT_EQ(value->keys, (Numbers{65, 66, 37, 8, 27, 9}));
    EXPECT_EQ(value->characters, (Numbers{97, 66, 8, 27, 9}));
    EXPECT_EQ(editor->text(), QStringLiteral("B"));
    press(Qt::Key_Return);
    EXPECT_EQ(value->keys.size(), 6U) << "Return is not told";
    EXPECT_EQ(value->characters.size(), 5U);
}

TEST_F(FocusEdits, DropConsumedCharacters)
{
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        value->takesCharacter = [](unsigned character) {
            return character == 'x' || character == 8;
        };
        open();
        type("axb");
        press(Qt::Key_Backspace);
        EXPECT_EQ(editor->text(), QStringLiteral("ab"));
        editor->finish();
    }
}

TEST_F(FocusEdits, DropWhatAConsumedKeyWouldDoButNotItsCharacter)
{
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        value->takesKey = [](unsigned key) { return key == 36 || key == 46 || key == 65; };
        open();
        type("ab");
        press(Qt::Key_Home);
        type("c");
        press(Qt::Key_Left);
        press(Qt::Key_Delete);
        EXPECT_EQ(editor->text(), QStringLiteral("abc"));
        editor->finish();
    }
}

TEST_F(FocusEdits, FilterEachUnitOfSeveralCharactersAtOnce)
{
    value->takesCharacter = [](unsigned character) { return character == 'b'; };
    open();
    QTest::sendKeyEvent(QTest::Press, field, Qt::Key_unknown, QStringLiteral("abc\U0001F600"), {});
    EXPECT_EQ(value->characters, (Numbers{'a', 'b', 'c', 0xD83D, 0xDE00}));
    EXPECT_EQ(editor->text(), QStringLiteral("ac\U0001F600"));
}

TEST_F(FocusEdits, TellThatAKeyRepeats)
{
    open();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"), true);
    QApplication::sendEvent(field, &repeated);
    EXPECT_EQ(value->keyFlags, Numbers{0x4000});
    EXPECT_EQ(value->characterFlags, Numbers{0x4000});
}

TEST_F(FocusEdits, UndoAndRedo)
{
    open(QStringLiteral("old"));
    type("new");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), QStringLiteral("old"));
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(editor->text(), QStringLiteral("new"));
}

struct Paste {
    const char* name;
    std::function<void(QWidget&)> perform;
};

void dropText(QWidget& field)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(&field);
    QWidget& target = area != nullptr ? *area->viewport() : field;
    QMimeData data;
    data.setText(QStringLiteral("P"));
    QDragEnterEvent enter({2, 8}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &enter);
    QDropEvent drop({2, 8}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &drop);
}

/// The open menu, after a right click.
QMenu* menuOver(QWidget& field)
{
    auto* area = qobject_cast<QAbstractScrollArea*>(&field);
    QWidget& target = area != nullptr ? *area->viewport() : field;
    QContextMenuEvent request(QContextMenuEvent::Mouse, {3, 3}, target.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&target, &request);
    // The platform of the tests makes the menu the active window.
    QCoreApplication::processEvents();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

/// What is left to do when a menu closes; the platform of the tests gives no focus back of itself.
void destroyAndReturn(QWidget& window)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Clicks the entry of the open menu whose text begins so.
void choose(QMenu& menu, const QString& text, QWidget& window)
{
    const auto entries = menu.actions();
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const QAction* entry) {
        return entry->text().startsWith(text);
    });
    ASSERT_NE(found, entries.end());
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(*found).center());
    destroyAndReturn(window);
}

void pasteByMenu(QWidget& field)
{
    QMenu* menu = menuOver(field);
    ASSERT_NE(menu, nullptr);
    choose(*menu, QStringLiteral("&Paste"), *field.window());
}

void pasteByControlV(QWidget& field)
{
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
}

void pasteByShiftInsert(QWidget& field)
{
    QTest::keyClick(&field, Qt::Key_Insert, Qt::ShiftModifier);
}

TEST_F(FocusEdits, TellTheObjectAfterEveryPaste)
{
    const std::vector<Paste> ways{
        {"Control V", pasteByControlV},
        {"Shift Insert", pasteByShiftInsert},
        {"drop", dropText},
        {"menu", pasteByMenu},
    };
    for (const bool multiLine : {false, true}) {
        for (const Paste& way : ways) {
            SCOPED_TRACE(way.name);
            QGuiApplication::clipboard()->setText(QStringLiteral("P"));
            value->multiLine = multiLine;
            value->pastes = 0;
            open();
            CString whenTold;
            value->onPaste = [&] { whenTold = editor->text(); };
            way.perform(*field);
            EXPECT_EQ(value->pastes, 1);
            EXPECT_EQ(whenTold, QStringLiteral("P")) << "told when the text is there";
            EXPECT_FALSE(editor->isFinished());
            press(Qt::Key_Return);
            EXPECT_EQ(value->text, QStringLiteral("P"));
        }
    }
}

TEST_F(FocusEdits, PasteTheSelectionWithTheMiddleButtonWhereThereIsOne)
{
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (clipboard.supportsSelection())
        clipboard.setText(QStringLiteral("S"), QClipboard::Selection);
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        value->pastes = 0;
        open();
        QWidget* target = multiLine ? lines().viewport() : field.data();
        QTest::mouseClick(target, Qt::MiddleButton, {}, QPoint(3, 5));
        EXPECT_EQ(value->pastes, clipboard.supportsSelection() ? 1 : 0);
        EXPECT_EQ(editor->text(), clipboard.supportsSelection() ? QStringLiteral("S") : CString());
        editor->finish();
    }
}

TEST_F(FocusEdits, TellNoPasteThatWasFilteredOrForbidden)
{
    QGuiApplication::clipboard()->setText(QStringLiteral("P"));
    value->takesCharacter = [](unsigned character) { return character == 22; };
    open();
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(editor->text(), CString());
    editor->finish();
    value->takesCharacter = nullptr;
    value->readOnly = true;
    open();
    press(Qt::Key_V, Qt::ControlModifier);
    dropText(*field);
    EXPECT_EQ(editor->text(), CString());
    EXPECT_EQ(value->pastes, 0);
}

TEST_F(FocusEdits, StayOpenWhileTheirMenuIs)
{
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        open(QStringLiteral("text"));
        QMenu* menu = menuOver(*field);
        ASSERT_NE(menu, nullptr);
        EXPECT_FALSE(editor->isFinished());
        choose(*menu, QStringLiteral("Delete"), *around.window);
        EXPECT_FALSE(editor->isFinished());
        EXPECT_EQ(editor->text(), CString());
        EXPECT_EQ(QApplication::focusWidget(), field);
        EXPECT_EQ(value->pastes, 0);
        editor->finish();
    }
}

TEST_F(FocusEdits, FinishBehindTheirMenuWhenTheFocusDoesNotComeBack)
{
    open(QStringLiteral("text"));
    QPointer<QMenu> menu = menuOver(*field);
    ASSERT_NE(menu, nullptr);
    QFocusEvent lost(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(field, &lost);
    EXPECT_FALSE(editor->isFinished()) << "some window systems call the menu so";
    around.beside->setFocus();
    menu->close();
    destroyWhatIsDeletedLater();
    QCoreApplication::processEvents();
    destroyAndReturn(*around.window);
    EXPECT_TRUE(around.beside->hasFocus());
    EXPECT_EQ(value->commits.size(), 1U);
    expectClosed();
}

TEST(FocusReasons, PopupsAndTheOwnMenuEndNoEdit)
{
    for (const auto reason : {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::BacktabFocusReason,
                              Qt::ActiveWindowFocusReason, Qt::ShortcutFocusReason,
                              Qt::MenuBarFocusReason, Qt::OtherFocusReason}) {
        EXPECT_TRUE(endsEdit(reason, false)) << reason;
        EXPECT_FALSE(endsEdit(reason, true)) << reason;
    }
    EXPECT_FALSE(endsEdit(Qt::PopupFocusReason, false));
    EXPECT_FALSE(endsEdit(Qt::PopupFocusReason, true));
}

void compose(QWidget& field, const QString& preedit, const QString& commit = {})
{
    QInputMethodEvent event(preedit, {});
    event.setCommitString(commit);
    QApplication::sendEvent(&field, &event);
}

TEST_F(FocusEdits, TakeComposedTextThroughTheFilter)
{
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        value->characters.clear();
        value->takesCharacter = [](unsigned character) { return character == u'本'; };
        open(QStringLiteral("old"));
        compose(*field, QStringLiteral("にほん"));
        EXPECT_TRUE(value->characters.empty());
        compose(*field, {}, QStringLiteral("日本語"));
        EXPECT_EQ(value->characters, (Numbers{u'日', u'本', u'語'}));
        EXPECT_EQ(editor->text(), QStringLiteral("日語"));
        editor->finish();
    }
}

TEST_F(FocusEdits, CommitWhatIsBeingComposedWhenTheEditFinishes)
{
    const std::vector<std::function<void()>> endings{
        [this] { editor->finish(); },
        [this] { press(Qt::Key_Return); },
        [this] { around.beside->setFocus(); },
        [this] {
            QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(2, 5)); // it stays, once
            editor->finish();
        },
    };
    for (const auto& end : endings) {
        value->commits.clear();
        open(QStringLiteral("old"));
        press(Qt::Key_End);
        compose(*field, QStringLiteral("かな"));
        end();
        ASSERT_EQ(value->commits.size(), 1U);
        EXPECT_EQ(value->commits.front(), QStringLiteral("oldかな"));
    }
}

TEST_F(FocusEdits, FinishOnAComposedReturn)
{
    open();
    compose(*field, {}, QStringLiteral("ab\rc"));
    EXPECT_EQ(value->commits, std::vector<CString>{QStringLiteral("ab")});
    expectClosed();
}

TEST_F(FocusEdits, FilterWhatIsBeingComposedThoughTheFilterFinishesTheEdit)
{
    value->takesCharacter = [this](unsigned) {
        editor->finish();
        return false;
    };
    open();
    compose(*field, QStringLiteral("か"));
    editor->finish();
    EXPECT_EQ(value->commits.size(), 1U);
    expectClosed();
}

} // namespace
} // namespace condtree::test
