// An edit finishes exactly once, whatever ends it.
#include "FocusEditFixture.h"

#include <QSignalSpy>

#include <algorithm>
#include <numeric>

namespace condtree::test {
namespace {

/// Counts, and remembers the last text.
class Counter final : public FocusEditListener {
public:
    int finishes = 0;
    CString text;
    FocusEdit* editor = nullptr;
    void editFinished(FocusEdit* from, const CString& last) override
    {
        ++finishes;
        text = last;
        editor = from;
    }
    void beforeLiveUpdate(FocusEdit*, const CString&) override {}
    void afterLiveUpdate(FocusEdit*, const CString&) override {}
};

struct Ending {
    const char* name;
    std::function<void()> perform;
};

class Finishing : public FocusEdits {
protected:
    /// Whatever the editor still is, an ending may be tried on it.
    std::vector<Ending> endings()
    {
        return {
            {"Return",
             [this] {
                 if (field)
                     QTest::keyClick(field, Qt::Key_Return);
             }},
            {"Enter on the keypad",
             [this] {
                 if (field)
                     QTest::keyClick(field, Qt::Key_Enter, Qt::KeypadModifier);
             }},
            {"the character of Return",
             [this] {
                 if (field)
                     QTest::keyClick(field, Qt::Key_M, Qt::ControlModifier);
             }},
            {"another widget gets the focus", [this] { around.beside->setFocus(); }},
            {"a click on another widget",
             [this] {
                 QTest::mouseClick(around.window->windowHandle(), Qt::LeftButton, {},
                                   around.beside->geometry().center());
             }},
            {"another window",
             [this] {
                 QWidget other;
                 other.show();
                 other.activateWindow();
                 EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
             }},
            {"the window is hidden", [this] { around.window->hide(); }},
            {"the window is closed", [this] { around.window->close(); }},
            {"the parent is hidden", [this] { around.parent->hide(); }},
            {"the owner",
             [this] {
                 if (editor)
                     editor->finish();
             }},
            {"what is deleted later goes",
             [] { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }},
        };
    }
};

TEST_F(Finishing, CommitsOnceWhateverComesAfterWhat)
{
    const std::vector<Ending> all = endings();
    for (std::size_t one = 0; one + 1 < all.size(); ++one) {
        for (const Ending& then : all) {
            SCOPED_TRACE(std::string(all[one].name) + ", then " + then.name);
            value->commits.clear();
            Counter counter;
            open(QStringLiteral("old"));
            editor->addListener(counter);
            QSignalSpy finished(editor.data(), &FocusEdit::finished);
            type("new");
            all[one].perform();
            EXPECT_EQ(value->commits, std::vector<CString>{QStringLiteral("new")});
            EXPECT_EQ(finished.count(), 1);
            then.perform();
            EXPECT_EQ(value->commits.size(), 1U);
            EXPECT_EQ(counter.finishes, 1);
            EXPECT_EQ(counter.text, QStringLiteral("new"));
            EXPECT_LE(finished.count(), 1);
            expectClosed();
            around = Around();
        }
    }
}

TEST_F(Finishing, ByReturnInSeveralLinesToo)
{
    for (const auto modifiers : {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier}) {
        value->multiLine = true;
        value->commits.clear();
        open(QStringLiteral("a\nb"));
        press(Qt::Key_Return, modifiers);
        EXPECT_EQ(value->commits, std::vector<CString>{QStringLiteral("a\nb")});
        expectClosed();
    }
}

TEST_F(Finishing, TellsTheObjectAndThenTheListenersAndThenTheOwner)
{
    open();
    type("typed");
    Counter counter;
    editor->addListener(counter);
    value->onSet = [&] {
        EXPECT_EQ(counter.finishes, 0);
        EXPECT_TRUE(editor->isFinished());
        EXPECT_TRUE(editor->isVisible());
        value->text = QStringLiteral("made of it");
    };
    FocusEdit* const told = editor;
    QObject::connect(editor, &FocusEdit::finished, editor, [&] {
        EXPECT_EQ(counter.finishes, 1);
        EXPECT_FALSE(editor->isVisible());
    });
    QSignalSpy finished(editor.data(), &FocusEdit::finished);
    press(Qt::Key_Return);
    EXPECT_EQ(counter.text, QStringLiteral("made of it")) << "the object's text";
    EXPECT_EQ(counter.editor, told);
    EXPECT_EQ(value->editor, told);
    EXPECT_EQ(finished.count(), 1);
}

TEST_F(Finishing, CommitsNothingWhenTheHostSaysSo)
{
    open(QStringLiteral("old"));
    Counter counter;
    editor->addListener(counter);
    editor->setCommitOnFinish(false);
    type("new");
    press(Qt::Key_Return);
    EXPECT_TRUE(value->commits.empty());
    EXPECT_EQ(counter.text, QStringLiteral("old"));
    expectClosed();
}

struct DictionaryRow {
    const char* typed;
    std::vector<CString> commits;
};

TEST_F(Finishing, CommitsFullTextsOnlyWithADictionary)
{
    for (const auto& [typed, commits] : {DictionaryRow{"ny", {QStringLiteral("New York")}},
                                         DictionaryRow{"NY", {QStringLiteral("New York")}},
                                         DictionaryRow{"rome", {QStringLiteral("Rome")}},
                                         DictionaryRow{"n", {}}, DictionaryRow{"Oslo", {}}}) {
        value->commits.clear();
        open(QStringLiteral("old"));
        EXPECT_TRUE(editor->completions().empty());
        Counter counter;
        editor->addListener(counter);
        editor->addCompletion(QStringLiteral("Ny"), QStringLiteral("New York"), false);
        editor->addCompletion(QStringLiteral("rome"), QStringLiteral("Rome"), true);
        type(typed);
        press(Qt::Key_Return);
        EXPECT_EQ(value->commits, commits) << typed;
        EXPECT_EQ(counter.finishes, 1);
        EXPECT_EQ(counter.text, commits.empty() ? QStringLiteral("old") : commits.front());
    }
}

TEST_F(Finishing, CreationClearsTheDictionaryAndSetsCompletionAndCommittingOn)
{
    editor = new FocusEdit;
    editor->addCompletion(QStringLiteral("a"), QStringLiteral("b"), false);
    editor->setCompletionOn(false);
    editor->setCommitOnFinish(false);
    ASSERT_TRUE(editor->Create(*value, cell, around.parent, timers.services()));
    EXPECT_TRUE(editor->completions().empty());
    EXPECT_TRUE(editor->isCompletionOn());
    EXPECT_TRUE(editor->commitsOnFinish());
    editor->addCompletion(QStringLiteral("a"), QStringLiteral("b"), false);
    editor->clearCompletions();
    editor->setText(QStringLiteral("a"));
    editor->finish();
    EXPECT_EQ(value->text, QStringLiteral("a"));
}

TEST_F(Finishing, LeavesTheNextEditorAlone)
{
    open(QStringLiteral("first"));
    const QPointer<FocusEdit> old(editor);
    editor->finish();
    EXPECT_EQ(around.parent->findChild<FocusEdit*>(QStringLiteral("902")), nullptr);
    EXPECT_NE(old, nullptr) << "it is still there";
    open(QStringLiteral("second"));
    destroyWhatIsDeletedLater();
    EXPECT_EQ(old, nullptr);
    EXPECT_EQ(QApplication::focusWidget(), field);
    EXPECT_FALSE(editor->isFinished());
}

TEST_F(Finishing, GivesTheFocusToTheParentButTakesItFromNobody)
{
    open();
    press(Qt::Key_Return);
    EXPECT_TRUE(around.parent->hasFocus());
    open();
    around.beside->setFocus();
    EXPECT_TRUE(around.beside->hasFocus());
    EXPECT_EQ(value->commits.size(), 2U);
}

TEST_F(Finishing, GivesTheFocusToTheParentWhenTheWindowComesBack)
{
    open();
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    expectClosed();
    around.window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(around.window.get()));
    EXPECT_TRUE(around.parent->hasFocus());
}

TEST_F(Finishing, KeysThatComeLateReachNobody)
{
    open();
    editor->finish();
    QTest::keyClick(field, Qt::Key_A);
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(value->keys.empty());
    EXPECT_TRUE(value->characters.empty());
    EXPECT_EQ(value->pastes, 0);
}

} // namespace
} // namespace condtree::test
