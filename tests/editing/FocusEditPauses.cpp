// What happens half a second after the last change.
#include "FocusEditFixture.h"

#include <QTimer>

namespace condtree::test {
namespace {

using Calls = std::vector<std::string>;

/// Writes down what it and the value are told, in order.
class Scribe final : public FocusEditListener {
public:
    Scribe(std::string name, Calls& calls)
        : m_name(std::move(name))
        , m_calls(calls)
    {
    }
    std::function<void()> onBefore, onAfter;
    void editFinished(FocusEdit*, const CString& text) override { note("finished", text); }
    void beforeLiveUpdate(FocusEdit*, const CString& text) override
    {
        note("before", text);
        if (onBefore)
            onBefore();
    }
    void afterLiveUpdate(FocusEdit*, const CString& text) override
    {
        note("after", text);
        if (onAfter)
            onAfter();
    }

private:
    void note(const char* what, const CString& text)
    {
        m_calls.push_back(m_name + " " + what + " " + text.toStdString());
    }
    std::string m_name;
    Calls& m_calls;
};

class Pauses : public FocusEdits {
protected:
    /// With two listeners, and the value's own line among their calls.
    void openWithListeners(const CString& text = {})
    {
        open(text);
        value->onSet = [this] { calls.push_back("set " + value->text.toStdString()); };
        editor->addListener(first);
        editor->addListener(second);
        editor->addListener(first);
    }
    Calls calls;
    Scribe first{"1", calls}, second{"2", calls};
};

TEST_F(Pauses, EveryChangeKillsARunningTimerAndStartsAnew)
{
    open();
    EXPECT_EQ(timers.calls, Calls{});
    type("ab");
    EXPECT_EQ(timers.calls, (Calls{"start 100 500", "stop 100", "start 100 500"}));
    timers.calls.clear();
    press(Qt::Key_Left);
    EXPECT_EQ(timers.calls, Calls{}) << "no change";
    Timers::fire(editor);
    EXPECT_EQ(timers.calls, Calls{"stop 100"});
    timers.calls.clear();
    press(Qt::Key_Delete);
    EXPECT_EQ(timers.calls, Calls{"start 100 500"}) << "none was running";
}

TEST_F(Pauses, TheFirstTextIsAChangeAsWell)
{
    for (const bool multiLine : {false, true}) {
        value->multiLine = multiLine;
        timers.calls.clear();
        open(QStringLiteral("first"));
        EXPECT_EQ(timers.calls, Calls{"start 100 500"});
        editor->setText(QStringLiteral("second"));
        EXPECT_EQ(timers.calls, (Calls{"start 100 500", "stop 100", "start 100 500"}));
        editor->finish();
        EXPECT_EQ(timers.calls.back(), "stop 100") << "a closed editor has no timer";
        timers.calls.clear();
        value->text = QStringLiteral("untouched");
    }
}

TEST_F(Pauses, NothingIsReportedWhileTheFirstTextIsBeingSet)
{
    struct Early final : FocusEditListener {
        int calls = 0;
        void editFinished(FocusEdit*, const CString&) override {}
        void beforeLiveUpdate(FocusEdit*, const CString&) override { ++calls; }
        void afterLiveUpdate(FocusEdit*, const CString&) override { ++calls; }
    } early;
    timers.firesAtOnce = true;
    value->text = QStringLiteral("first");
    editor = new FocusEdit;
    editor->addListener(early);
    editor->setLiveUpdate(true);
    ASSERT_TRUE(editor->Create(*value, cell, around.parent, timers.services()));
    EXPECT_EQ(early.calls, 0);
    EXPECT_TRUE(value->commits.empty());
    editor->setText(QStringLiteral("second"));
    EXPECT_EQ(early.calls, 2);
    EXPECT_EQ(value->text, QStringLiteral("second"));
    editor->removeListener(early);
}

TEST_F(Pauses, TellListenersBeforeAndAfterTheObjectIsUpdated)
{
    openWithListeners();
    type("ab");
    Timers::fire(editor);
    EXPECT_EQ(calls, (Calls{"1 before ab", "2 before ab", "1 after ab", "2 after ab"}))
        << "live update is off";
    calls.clear();
    editor->setLiveUpdate(true);
    Timers::fire(editor);
    EXPECT_EQ(calls, (Calls{"1 before ab", "2 before ab", "set ab", "1 after ab", "2 after ab"}));
    EXPECT_EQ(value->editor, editor);
    EXPECT_FALSE(editor->isFinished());
}

TEST_F(Pauses, OtherTimersAreNotOurs)
{
    openWithListeners();
    type("a");
    timers.calls.clear();
    Timers::fire(editor, 101);
    EXPECT_EQ(timers.calls, Calls{});
    EXPECT_EQ(calls, Calls{});
}

TEST_F(Pauses, WithoutCompletionNothingIsReported)
{
    openWithListeners();
    type("a");
    timers.calls.clear();
    editor->setCompletionOn(false);
    Timers::fire(editor);
    EXPECT_EQ(calls, Calls{});
    EXPECT_EQ(timers.calls, Calls{"stop 100"});
}

TEST_F(Pauses, ReportWhatTheDictionaryMakesOfTheText)
{
    openWithListeners();
    editor->setLiveUpdate(true);
    editor->addCompletion(QStringLiteral("NY"), QStringLiteral("New York"), false);
    editor->addCompletion(QStringLiteral("rome"), QStringLiteral("Rome"), true);
    for (const char* text : {"n", "rome", "nY", "Rome"}) {
        line().selectAll();
        type(text);
        Timers::fire(editor);
    }
    EXPECT_EQ(calls, (Calls{"1 before New York", "2 before New York", "set New York",
                            "1 after New York", "2 after New York", "1 before Rome",
                            "2 before Rome", "set Rome", "1 after Rome", "2 after Rome"}));
    EXPECT_EQ(editor->text(), QStringLiteral("Rome")) << "what is typed stays";
}

TEST_F(Pauses, AListenerMayRemoveItselfAndTheNext)
{
    openWithListeners();
    first.onBefore = [this] {
        editor->removeListener(first);
        editor->removeListener(second);
    };
    type("a");
    Timers::fire(editor);
    EXPECT_EQ(calls, Calls{"1 before a"});
}

TEST_F(Pauses, EndWhenTheEditEndsInTheMiddle)
{
    openWithListeners();
    editor->setLiveUpdate(true);
    first.onBefore = [this] { editor->finish(); };
    type("a");
    Timers::fire(editor);
    EXPECT_EQ(calls, (Calls{"1 before a", "set a", "1 finished a", "2 finished a", "2 before a"}));
    EXPECT_EQ(value->commits.size(), 1U);
    expectClosed();
}

TEST_F(Pauses, EndWhenTheEditorIsDeletedInTheMiddle)
{
    for (int place = 0; place < 3; ++place) {
        openWithListeners();
        editor->setLiveUpdate(true);
        const auto kill = [this] { delete editor.data(); };
        first.onBefore = place == 0 ? std::function<void()>(kill) : nullptr;
        first.onAfter = place == 2 ? std::function<void()>(kill) : nullptr;
        if (place == 1)
            value->onSet = kill;
        calls.clear();
        type("a");
        Timers::fire(editor);
        EXPECT_EQ(editor, nullptr);
        EXPECT_EQ(calls.size(),
                  std::vector<std::size_t>({1, 2, 4})[static_cast<std::size_t>(place)]);
    }
}

TEST_F(Pauses, ComeByRealTimersToo)
{
    Services services;
    services.startTimer = [](QObject* receiver, std::uintptr_t id, unsigned ms) {
        QTimer::singleShot(static_cast<int>(ms) / 100, receiver,
                           [receiver, id] { Timers::fire(receiver, id); });
    };
    services.stopTimer = [](QObject*, std::uintptr_t) {};
    editor = new FocusEdit;
    ASSERT_TRUE(editor->Create(*value, cell, around.parent, services));
    editor->setLiveUpdate(true);
    QCoreApplication::sendPostedEvents();
    field = editor->focusProxy();
    type("live");
    EXPECT_TRUE(QTest::qWaitFor([this] { return value->text == QStringLiteral("live"); }));
}

TEST_F(Pauses, WithoutTimersThereAreNone)
{
    editor = new FocusEdit;
    ASSERT_TRUE(editor->Create(*value, cell, around.parent, {}));
    QCoreApplication::sendPostedEvents();
    field = editor->focusProxy();
    type("a");
    press(Qt::Key_Return);
    EXPECT_EQ(value->text, QStringLiteral("a"));
}

} // namespace
} // namespace condtree::test
