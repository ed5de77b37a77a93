// The host may delete anything inside any call; objects may die before their editor.
#include "FocusEditFixture.h"

#include <QClipboard>
#include <QEventLoop>
#include <QInputMethodEvent>
#include <QSignalSpy>
#include <QTimer>

namespace condtree::test {
namespace {

class Breaker final : public FocusEditListener {
public:
    std::function<void()> onFinished;
    int finishes = 0;
    void editFinished(FocusEdit*, const CString&) override
    {
        ++finishes;
        if (onFinished)
            onFinished();
    }
    void beforeLiveUpdate(FocusEdit*, const CString&) override {}
    void afterLiveUpdate(FocusEdit*, const CString&) override {}
};

/// What lets events of all sorts be handled before it returns, as a message box does.
void runLoop()
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] { QTimer::singleShot(0, &loop, &QEventLoop::quit); });
    loop.exec();
}

class Lifetimes : public FocusEdits {
protected:
    struct Act {
        const char* name;
        std::function<void()> perform;
    };
    /// What a host may do to the editor, its parent or its window in the middle of a call.
    std::vector<Act> deletions()
    {
        return {{"the editor", [this] { delete editor.data(); }},
                {"the parent", [this] { delete around.parent; }},
                {"the window", [this] { around.window.reset(); }},
                {"finished, and a nested loop", [this] {
                     editor->finish();
                     runLoop();
                 }}};
    }
    /// What makes the editor call out, each with the call.
    std::vector<Act> calls(std::function<void()> act)
    {
        return {
            {"set by Return",
             [this, act] {
                 value->onSet = act;
                 QTest::keyClick(field, Qt::Key_Return);
             }},
            {"set by losing the focus",
             [this, act] {
                 value->onSet = act;
                 // Alone: the toolkit's own code around it does not survive its window.
                 QFocusEvent lost(QEvent::FocusOut, Qt::MouseFocusReason);
                 QApplication::sendEvent(field, &lost);
             }},
            {"a listener",
             [this, act] {
                 breaker.onFinished = act;
                 editor->addListener(breaker);
                 QTest::keyClick(field, Qt::Key_Return);
             }},
            {"the key filter",
             [this, act] {
                 value->takesKey = [act](unsigned) {
                     act();
                     return false;
                 };
                 QTest::keyClick(field, Qt::Key_A);
             }},
            {"the character filter",
             [this, act] {
                 value->takesCharacter = [act](unsigned) {
                     act();
                     return false;
                 };
                 QTest::keyClick(field, Qt::Key_A);
             }},
            {"the filter of composed characters",
             [this, act] {
                 value->takesCharacter = [act](unsigned) {
                     act();
                     return false;
                 };
                 QInputMethodEvent event;
                 event.setCommitString(QStringLiteral("ab"));
                 QApplication::sendEvent(field, &event);
             }},
            {"after a paste",
             [this, act] {
                 QGuiApplication::clipboard()->setText(QStringLiteral("P"));
                 value->onPaste = act;
                 QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
             }},
            {"finished",
             [this, act] {
                 QObject::connect(editor, &FocusEdit::finished, editor, act);
                 QTest::keyClick(field, Qt::Key_Return);
             }},
        };
    }
    Breaker breaker;
};

TEST_F(Lifetimes, EverythingMayBeDeletedInEveryCall)
{
    const std::size_t acts = deletions().size();
    for (const bool multiLine : {false, true}) {
        for (std::size_t act = 0; act < acts; ++act) {
            for (std::size_t call = 0; call < calls({}).size(); ++call) {
                const Act deletion = deletions()[act];
                int runs = 0;
                const auto once = [&] {
                    if (runs++ == 0)
                        deletion.perform();
                };
                const Act caller = calls(once)[call];
                SCOPED_TRACE(std::string(caller.name) + " deletes " + deletion.name);
                value = std::make_unique<Value>();
                value->multiLine = multiLine;
                open(QStringLiteral("text"));
                caller.perform();
                EXPECT_GE(runs, 1);
                EXPECT_LE(value->commits.size(), 1U);
                QCoreApplication::processEvents();
                destroyWhatIsDeletedLater();
                delete editor.data();
                around = Around();
            }
        }
    }
}

TEST_F(Lifetimes, AnEditorThatIsFinishedInANestedLoopLivesUntilItsEventIsHandled)
{
    open();
    value->takesCharacter = [this](unsigned) {
        // As a message box over the editor does.
        around.beside->setFocus();
        runLoop();
        EXPECT_NE(field, nullptr);
        return false;
    };
    press(Qt::Key_A);
    EXPECT_EQ(value->commits.size(), 1U);
    expectClosed();
}

TEST_F(Lifetimes, TheSelectionMayFinishTheEditInANestedLoop)
{
    open(QStringLiteral("some text"));
    QObject::connect(&line(), &QLineEdit::selectionChanged, around.window.get(), [this] {
        if (!editor->isFinished()) {
            editor->finish();
            runLoop();
        }
    });
    QTest::mouseClick(field, Qt::LeftButton, {}, QPoint(3, 5));
    EXPECT_EQ(value->commits.size(), 1U);
    expectClosed();
}

TEST_F(Lifetimes, AnAbandonedEditorTouchesItsObjectNoMore)
{
    open(QStringLiteral("text"));
    breaker.onFinished = [] { FAIL() << "nobody is told"; };
    editor->addListener(breaker);
    QSignalSpy finished(editor.data(), &FocusEdit::finished);
    editor->abandon();
    value.reset();
    EXPECT_EQ(finished.count(), 1);
    Timers::fire(editor);
    editor->finish();
    editor->abandon();
    EXPECT_EQ(finished.count(), 1);
    expectClosed();
    EXPECT_TRUE(around.parent->hasFocus());
}

TEST_F(Lifetimes, TheObjectMayDieWhileItIsCommittedInto)
{
    open(QStringLiteral("text"));
    editor->addListener(breaker);
    value->onSet = [this] {
        editor->abandon();
        value.reset();
    };
    press(Qt::Key_Return);
    EXPECT_EQ(breaker.finishes, 1);
    expectClosed();
}

TEST_F(Lifetimes, ADestroyedEditorCommitsNothing)
{
    open(QStringLiteral("text"));
    type("new");
    delete editor.data();
    EXPECT_TRUE(value->commits.empty());
    EXPECT_EQ(timers.calls.back(), "stop 100");
}

/// A host whose values are parts of it, and so die before its children.
class HostWindow : public QWidget {
public:
    explicit HostWindow(std::vector<CString>& commits)
        : m_commits(commits)
    {
        m_value.onSet = [this] { m_commits.push_back(m_value.text); };
    }
    Value& value() { return m_value; }

private:
    std::vector<CString>& m_commits;
    Value m_value;
};

TEST_F(Lifetimes, AHostMayDieWithWhatIsEdited)
{
    for (const bool nested : {false, true}) {
        std::vector<CString> commits;
        auto host = std::make_unique<HostWindow>(commits);
        QWidget* parent = nested ? new QWidget(host.get()) : host.get();
        host->show();
        host->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(host.get()));
        editor = new FocusEdit;
        ASSERT_TRUE(editor->Create(host->value(), cell, parent, timers.services()));
        QCoreApplication::sendPostedEvents();
        ASSERT_TRUE(editor->focusProxy()->hasFocus());
        host.reset();
        EXPECT_EQ(editor, nullptr);
        EXPECT_TRUE(commits.empty());
    }
}

TEST_F(Lifetimes, AParentThatIsDeletedCommitsNothing)
{
    open(QStringLiteral("old"));
    type("new");
    delete around.parent;
    EXPECT_TRUE(value->commits.empty());
    EXPECT_EQ(editor, nullptr);
}

} // namespace
} // namespace condtree::test
