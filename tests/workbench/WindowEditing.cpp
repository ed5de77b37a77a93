#include "WindowFixture.h"

#include <condtree/editing/FocusEdit.h>

#include <QClipboard>
#include <QToolBar>
#include <QToolButton>

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

const char* const kSecond = "Document Approval/Approve";

/// Text that is still being typed into a cell when the user does something else with the window.
class WindowEditing : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        m_before = firstValue();
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }
    void clickWidget(const QWidget& widget, QPoint at)
    {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(m_window.get(), at));
    }
    /// Opens the editor over a text of the first row.
    void openEditor(int column)
    {
        const ConditionControl& control = editor().control();
        const QWidget& viewport = *control.viewport();
        int left = 0;
        for (int before = 0; before < column; ++before)
            left += control.miGetColumnSize(before, viewport.width());
        constexpr int kInside = 20;
        clickWidget(viewport, {left + kInside,
                               control.visualRect(control.model()->index(0, 0)).center().y()});
        QCoreApplication::processEvents();
        ASSERT_NE(field(), nullptr);
    }
    void type(const char* text)
    {
        openEditor(2);
        for (const char letter : QByteArray(text))
            QTest::keyClick(m_window->windowHandle(), letter);
        ASSERT_EQ(field()->text(), QString::fromUtf8(text));
        ASSERT_EQ(firstValue(), m_before) << "committed already";
    }
    void paste(int column, const QString& text)
    {
        openEditor(column);
        QGuiApplication::clipboard()->setText(text);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
        ASSERT_EQ(field()->text(), text);
    }
    void shortcut(Qt::Key key, Qt::KeyboardModifiers held = Qt::ControlModifier)
    {
        QTest::keyClick(m_window->windowHandle(), key, held);
    }
    QLineEdit* field()
    {
        const auto* open = editor().control().findChild<FocusEdit*>(QStringLiteral("902"));
        return open == nullptr ? nullptr : qobject_cast<QLineEdit*>(open->focusProxy());
    }

    QString m_before;
};

TEST_F(WindowEditing, SavingAtTheKeyStoresIt)
{
    const Answers answers({});
    type("typed");
    shortcut(Qt::Key_S);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("typed"));
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("Saved."));
    EXPECT_EQ(field(), nullptr);
    QCoreApplication::processEvents();
    expectUnsaved(false);
}

TEST_F(WindowEditing, SavingInTheToolBarStoresIt)
{
    const Answers answers({});
    type("typed");
    const auto* bar = m_window->findChild<QToolBar*>(QStringLiteral("toolBar"));
    QWidget* const button =
        bar->widgetForAction(m_window->findChild<QAction*>(QStringLiteral("save")));
    clickWidget(*button, button->rect().center());
    QCoreApplication::processEvents();
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("typed"));
    expectUnsaved(false);
}

TEST_F(WindowEditing, SavingTwiceWhileTheEditorIsOpenedAgainStoresBoth)
{
    const Answers answers({});
    type("one");
    shortcut(Qt::Key_S);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("one"));
    m_before = QStringLiteral("one");
    type("two");
    shortcut(Qt::Key_S);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("two"));
}

TEST_F(WindowEditing, SavingAnEditorWithTheSameTextHasNothingToSave)
{
    const auto before = m_sample.conditions();
    const Answers answers({});
    openEditor(2);
    shortcut(Qt::Key_S);
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("There is nothing to save."));
    EXPECT_TRUE(sameConditions(m_sample.conditions(), before));
}

TEST_F(WindowEditing, AnotherTransitionIsOpenedOnlyWhenItIsDecidedWhatBecomesOfIt)
{
    {
        const Answers answers({press(QMessageBox::Cancel, "")});
        type("typed");
        click(kSecond);
        QCoreApplication::processEvents();
        EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
        EXPECT_EQ(firstValue(), QStringLiteral("typed"));
        expectUnsaved(true);
    }
    const Answers answers({press(QMessageBox::Save, "")});
    m_window->activateWindow();
    click(kSecond);
    QCoreApplication::processEvents();
    EXPECT_EQ(shownTransition(), QString::fromUtf8(kSecond));
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("typed"));
}

TEST_F(WindowEditing, ClosingTheWindowAsksAndSaves)
{
    {
        const Answers answers({press(QMessageBox::Cancel, "")});
        type("typed");
        EXPECT_FALSE(m_window->close());
        EXPECT_TRUE(m_window->isVisible());
        EXPECT_EQ(firstValue(), QStringLiteral("typed"));
    }
    const Answers answers({press(QMessageBox::Save, "")});
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("typed"));
}

TEST_F(WindowEditing, QuittingAtTheKeyAsks)
{
    const Answers answers({press(QMessageBox::Cancel, "")});
    type("typed");
    shortcut(Qt::Key_Q);
    EXPECT_TRUE(m_window->isVisible());
    EXPECT_EQ(firstValue(), QStringLiteral("typed"));
}

TEST_F(WindowEditing, RevertingAsks)
{
    const Answers answers({press(QMessageBox::Cancel, "Give up the changes")});
    type("typed");
    shortcut(Qt::Key_F5, Qt::NoModifier);
    EXPECT_EQ(firstValue(), QStringLiteral("typed"));
    expectUnsaved(true);
}

TEST_F(WindowEditing, ExportingWritesIt)
{
    const QString path = m_sample.file("export.json");
    const Answers answers({choose(path)});
    type("typed");
    shortcut(Qt::Key_E);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\"typed\""));
}

TEST_F(WindowEditing, WhatADatabaseCannotHoldIsRefusedWithTheRowAndKept)
{
    const QString halfPair = QStringLiteral("a") + QChar(0xD800) + QStringLiteral("b");
    const QString null = QStringLiteral("a") + QChar(0) + QStringLiteral("b");
    const struct {
        int column;
        QString text;
        const char* line;
    } cases[] = {
        {2, halfPair, "Row 1: the value holds a character that the database cannot hold."},
        {3, halfPair, "Row 1: the remark holds a character that the database cannot hold."},
        {2, null, "Row 1: the value holds a character that the database cannot hold."},
        {3, null, "Row 1: the remark holds a character that the database cannot hold."}};
    const auto before = m_sample.conditions();
    for (const auto& [column, text, line] : cases) {
        paste(column, text);
        {
            const Answers answers({press(QMessageBox::Ok, line)});
            shortcut(Qt::Key_S);
        }
        expectUnsaved(true);
        const VarTreeCtrlNode& row = *editor().control().mpoGetNode(TVI_ROOT)->mChildren.front();
        EXPECT_EQ(column == 2 ? row.mValue : row.mExtra, text);
        EXPECT_TRUE(sameConditions(m_sample.conditions(), before));
        m_window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        paste(column, QStringLiteral("plain"));
        shortcut(Qt::Key_Return, Qt::NoModifier);
    }
    const Answers answers({});
    shortcut(Qt::Key_S);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("plain"));
}

TEST_F(WindowEditing, OtherOddTextsAreStoredAsTheyWereTypedAndOpenedAgain)
{
    const QString odd = QStringLiteral("a\x01\x7f\tb\nc\r\nd\u2028\u05e9\u05dc\u202e \U0001F600");
    for (const int column : {2, 3}) {
        const Answers answers({});
        paste(column, odd);
        shortcut(Qt::Key_S);
        expectUnsaved(false);
        const auto stored = m_sample.open()->load(find(kFirst)).value().records.front();
        EXPECT_EQ(column == 2 ? stored.value.str() : stored.extra.str(), odd);
        click(kSecond);
        ASSERT_EQ(shownTransition(), QString::fromUtf8(kSecond));
        click(kFirst);
        const VarTreeCtrlNode& row = *editor().control().mpoGetNode(TVI_ROOT)->mChildren.front();
        EXPECT_EQ(column == 2 ? row.mValue : row.mExtra, odd);
        openEditor(column);
        EXPECT_EQ(field()->text(), odd);
        shortcut(Qt::Key_Return, Qt::NoModifier);
        expectUnsaved(false);
    }
}

TEST_F(WindowEditing, GivingUpTheChangesWhenLeavingGivesUpWhatIsTyped)
{
    {
        const Answers answers({press(QMessageBox::Discard, kFirst)});
        type("typed");
        click(kSecond);
        EXPECT_EQ(shownTransition(), QString::fromUtf8(kSecond));
        expectUnsaved(false);
    }
    EXPECT_EQ(storedValue(kFirst), m_before);
    const Answers answers({});
    click(kFirst);
    EXPECT_EQ(firstValue(), m_before);
    expectUnsaved(false);
}

TEST_F(WindowEditing, ClosingTheWindowCanGiveUpWhatIsTyped)
{
    const Answers answers({press(QMessageBox::Discard, kFirst)});
    type("typed");
    EXPECT_TRUE(m_window->close());
    EXPECT_EQ(storedValue(kFirst), m_before);
}

TEST_F(WindowEditing, ImportingAsksAndReplacesWhatIsTyped)
{
    {
        const Answers answers({choose(importFile()), press(QMessageBox::Cancel, "not saved")});
        type("typed");
        shortcut(Qt::Key_I);
        EXPECT_EQ(firstValue(), QStringLiteral("typed"));
        expectUnsaved(true);
    }
    m_before = firstValue();
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    const Answers answers({choose(importFile()), press(QMessageBox::Discard, "not saved")});
    type("again");
    shortcut(Qt::Key_I);
    EXPECT_EQ(firstValue(), QStringLiteral("imported"));
    QCoreApplication::processEvents();
    EXPECT_EQ(firstValue(), QStringLiteral("imported"));
    EXPECT_EQ(field(), nullptr);
    expectUnsaved(true);
}

TEST_F(WindowEditing, ATypedDateIsStoredAtTheKey)
{
    ConditionControl& control = editor().control();
    VarTreeCtrlNode& row = *control.mpoGetNode(TVI_ROOT)->mChildren.front();
    row.mlArgType = ArgDate;
    row.mlOperator = DateEqualTo;
    const Answers answers({});
    control.setFocus();
    control.setCurrentIndex(control.model()->index(0, 0));
    for (const char letter : QByteArray("2025-01-31"))
        QTest::keyClick(m_window->windowHandle(), letter);
    ASSERT_NE(field(), nullptr);
    EXPECT_EQ(field()->text(), QStringLiteral("2025-01-31"));
    shortcut(Qt::Key_S);
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("Saved."));
    const auto stored = m_sample.open()->load(find(kFirst)).value().records.front();
    EXPECT_EQ(stored.value.str(), QStringLiteral("2025-01-31"));
    EXPECT_EQ(stored.op, LONG{DateEqualTo});
    QCoreApplication::processEvents();
    expectUnsaved(false);
}

} // namespace
