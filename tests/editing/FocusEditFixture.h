#pragma once

#include <condtree/editing/EditField.h>
#include <condtree/editing/FocusEdit.h>
#include <condtree/platform/TimerMessage.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace condtree::test {

/// An edited object whose answers a test sets, and which writes down what it is told.
class Value final : public FocusEditValue {
public:
    CString text;
    bool readOnly = false, border = true, multiLine = false;
    /// Run inside the operations.
    std::function<void()> onSet, onGet, onPaste;
    std::function<bool(unsigned)> takesKey, takesCharacter;

    std::vector<CString> commits;
    std::vector<unsigned> keys, characters, keyFlags, characterFlags;
    int pastes = 0;
    FocusEdit* editor = nullptr;

    void mvSetEditText(FocusEdit* from, const CString& committed) override
    {
        editor = from;
        text = committed;
        commits.push_back(committed);
        run(onSet);
    }
    [[nodiscard]] CString moGetEditText() const override
    {
        const CString current = text;
        run(onGet);
        return current;
    }
    [[nodiscard]] bool mbIsReadOnly(FocusEdit* from) override
    {
        editor = from;
        return readOnly;
    }
    bool mbFilterChar(unsigned character, unsigned, unsigned flags) override
    {
        characters.push_back(character);
        characterFlags.push_back(flags);
        return takesCharacter && std::function(takesCharacter)(character);
    }
    bool mbFilterKey(unsigned key, unsigned, unsigned flags) override
    {
        keys.push_back(key);
        keyFlags.push_back(flags);
        return takesKey && std::function(takesKey)(key);
    }
    [[nodiscard]] bool mbHasBorder() override { return border; }
    [[nodiscard]] bool mbIsMultiLine() override { return multiLine; }
    void mvAfterPaste() override
    {
        ++pastes;
        run(onPaste);
    }

private:
    // A copy, since the object may die in it.
    static void run(std::function<void()> step)
    {
        if (step)
            step();
    }
};

/// A timer port that fires when the test says so, and writes down what it is asked.
struct Timers {
    std::vector<std::string> calls;
    bool firesAtOnce = false;

    [[nodiscard]] Services services()
    {
        Services services;
        services.startTimer = [this](QObject* receiver, std::uintptr_t id, unsigned ms) {
            calls.push_back("start " + std::to_string(id) + " " + std::to_string(ms));
            if (firesAtOnce)
                fire(receiver, id);
        };
        services.stopTimer = [this](QObject*, std::uintptr_t id) {
            calls.push_back("stop " + std::to_string(id));
        };
        return services;
    }
    static void fire(QObject* receiver, std::uintptr_t id = 100)
    {
        TimerMessage message(id);
        QCoreApplication::sendEvent(receiver, &message);
    }
};

/// What an editor lies in: a window with a parent for the editor and another widget beside it.
struct Around {
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    // The first to get a focus that nobody is given.
    QLineEdit* beside = new QLineEdit(window.get());
    QWidget* parent = new QWidget(window.get());

    Around()
    {
        window->resize(400, 200);
        parent->setGeometry(0, 0, 400, 100);
        parent->setFocusPolicy(Qt::StrongFocus);
        beside->setGeometry(0, 120, 400, 30);
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
};

/// An editor for a value, in a window.
class FocusEdits : public testing::Test {
protected:
    FocusEdits() { QGuiApplication::setQuitOnLastWindowClosed(false); }
    // Before listeners that a test made.
    void TearDown() override { delete editor.data(); }
    /// Shown, and with the focus.
    void open(const CString& text = {})
    {
        value->text = text;
        editor = new FocusEdit;
        ASSERT_TRUE(editor->Create(*value, cell, around.parent, timers.services()));
        QCoreApplication::sendPostedEvents();
        ASSERT_EQ(QApplication::focusWidget(), editor->focusProxy());
        field = editor->focusProxy();
    }
    void type(const char* text) { QTest::keyClicks(field, QString::fromUtf8(text)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(around.window->windowHandle(), key, modifiers);
    }
    static void destroyWhatIsDeletedLater()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    [[nodiscard]] QLineEdit& line() const { return *qobject_cast<QLineEdit*>(field); }
    [[nodiscard]] QPlainTextEdit& lines() const { return *qobject_cast<QPlainTextEdit*>(field); }
    /// The edit is over and the editor goes.
    void expectClosed()
    {
        if (editor) {
            EXPECT_TRUE(editor->isFinished());
            EXPECT_FALSE(editor->isVisible());
        }
        QCoreApplication::processEvents();
        destroyWhatIsDeletedLater();
        EXPECT_EQ(editor, nullptr);
    }

    Timers timers;
    std::unique_ptr<Value> value = std::make_unique<Value>();
    Around around;
    RECT cell{10, 20, 210, 42};
    QPointer<FocusEdit> editor;
    QPointer<QWidget> field;
};

} // namespace condtree::test
