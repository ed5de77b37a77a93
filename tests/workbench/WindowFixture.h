#pragma once

#include "SampleDatabase.h"

#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include "workbench/ConditionEditor.h"
#include "workbench/MainWindow.h"
#include "workbench/TransitionList.h"
#include "workbench/Translations.h"

#include <condtree/control/RealServices.h>

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

namespace condtree::test {

using namespace workbench;

inline const char* const kFirst = "Document Approval/Submit for Review";

/// Answers the dialogs that come up, one after the other, as a user would: each answer is given to
/// the next modal dialog. Dialogs that nobody expects are closed and fail the test; so do missing
/// ones.
class Answers : public QObject {
public:
    using Answer = std::function<void(QDialog&)>;

    explicit Answers(std::vector<Answer> answers)
        : m_answers(std::move(answers))
    {
        m_timer.setInterval(0);
        connect(&m_timer, &QTimer::timeout, this, &Answers::look);
        m_timer.start();
    }
    ~Answers() override { EXPECT_EQ(m_given, m_answers.size()) << "a dialog did not come up"; }

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible() || dialog == m_last)
            return;
        m_last = dialog;
        if (m_given < m_answers.size()) {
            m_answers[m_given++](*dialog);
            return;
        }
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        ADD_FAILURE() << "unexpected dialog: "
                      << (box != nullptr ? box->text() : dialog->windowTitle()).toStdString();
        dialog->reject();
    }

    std::vector<Answer> m_answers;
    std::size_t m_given = 0;
    QPointer<QDialog> m_last;
    QTimer m_timer;
};

/// Rejects every dialog that is still open after a time, and fails the test, instead of waiting for
/// an answer for ever.
class Deadline : public QObject {
public:
    explicit Deadline(int patience)
        : m_patience(patience)
    {
        constexpr int kOften = 250; // ms
        m_timer.setInterval(kOften);
        connect(&m_timer, &QTimer::timeout, this, &Deadline::look);
        m_timer.start();
        m_elapsed.start();
    }
    [[nodiscard]] int rejected() const { return m_rejected; }

private:
    void look()
    {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || m_elapsed.elapsed() < m_patience)
            return;
        ++m_rejected;
        dialog->reject();
    }

    int m_patience; // ms
    int m_rejected = 0;
    QElapsedTimer m_elapsed;
    QTimer m_timer;
};

/// Clicks a button of a message box, whose text must contain a part.
inline Answers::Answer press(QMessageBox::StandardButton button, const char* part)
{
    return [button, part](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->text().contains(QString::fromUtf8(part))) << box->text().toStdString();
        ASSERT_NE(box->button(button), nullptr);
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    };
}

/// Types the name of a file into a file dialog.
inline Answers::Answer choose(const QString& file)
{
    return [file](QDialog& dialog) {
        auto* chooser = qobject_cast<QFileDialog*>(&dialog);
        ASSERT_NE(chooser, nullptr);
        auto* edit = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(edit, nullptr);
        edit->setText(file);
        QTest::keyClick(edit, Qt::Key_Return);
    };
}

inline void cancel(QDialog& dialog)
{
    QTest::keyClick(&dialog, Qt::Key_Escape);
}

/// The window over a sample database, with its first transition open.
class WindowTest : public testing::Test {
protected:
    WindowTest() { useLanguage(*qApp, {}); }

    void SetUp() override
    {
        auto opened = workbench::Database::open(url(), {});
        ASSERT_TRUE(opened.hasValue());
        m_database = std::move(opened).value();
        const auto transitions = m_database->transitions();
        m_window = std::make_unique<MainWindow>(*m_database, transitions.value(), realServices());
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        click("Document Approval/Submit for Review");
    }

    /// What the window's database is opened by.
    [[nodiscard]] virtual QString url() const { return m_sample.url(); }

    void TearDown() override { EXPECT_EQ(m_deadline.rejected(), 0) << "a dialog stayed open"; }

    ConditionEditor& editor() { return m_window->editor(); }
    TransitionList& list() { return m_window->list(); }

    SpTransition find(const char* title)
    {
        const auto transitions = m_database->transitions();
        return findTransition(transitions.value(), QString::fromUtf8(title)).value();
    }

    /// Clicks a transition in the list, and lets the window handle what comes of it.
    void click(const char* title)
    {
        QTreeWidgetItem* item = list().itemOf(find(title).id);
        ASSERT_NE(item, nullptr);
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(item).center());
        QCoreApplication::processEvents();
    }

    void trigger(const char* action)
    {
        auto* found = m_window->findChild<QAction*>(QLatin1String(action));
        ASSERT_NE(found, nullptr) << action;
        ASSERT_TRUE(found->isEnabled()) << action;
        found->trigger();
    }

    QString label(const char* name)
    {
        const auto* found = m_window->findChild<QLabel*>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found->isVisible() ? found->text() : QStringLiteral("(hidden)");
    }

    QString shownTransition()
    {
        return editor().transition() ? transitionTitle(*editor().transition()) : QString();
    }

    QString selected()
    {
        const auto items = list().selectedItems();
        return items.size() == 1 ? items.first()->text(0) : QString();
    }

    /// Changes the first row as a user's edit does.
    void edit(const char* value)
    {
        ConditionControl& control = editor().control();
        control.mpoGetNode(TVI_ROOT)->mChildren.front()->mValue = QString::fromUtf8(value);
        Q_EMIT control.conditionChanged();
    }

    QString firstValue()
    {
        return editor().control().mpoGetNode(TVI_ROOT)->mChildren.front()->mValue;
    }

    /// The first value of a transition in the database.
    QString storedValue(const char* title)
    {
        return m_sample.open()->load(find(title)).value().records.front().value.str();
    }

    void expectUnsaved(bool isUnsaved)
    {
        EXPECT_EQ(editor().isUnsaved(), isUnsaved);
        EXPECT_EQ(m_window->isWindowModified(), isUnsaved);
        for (QTreeWidgetItemIterator i(&list()); *i != nullptr; ++i) {
            const bool isMarked = (*i)->text(0).startsWith(QStringLiteral("* "));
            EXPECT_EQ(isMarked, isUnsaved && (*i)->isSelected()) << (*i)->text(0).toStdString();
        }
    }

    QString fileOf(const char* name, const QByteArray& content)
    {
        QFile file(m_sample.file(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    /// A file with one row whose value is "imported".
    QString importFile()
    {
        return fileOf("import.json", R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":2,"name":"Author","extra":"","value":"imported","argType":1,"operator":100}
]}
)");
    }

    /// Runs statements past the library.
    void sql(const QStringList& statements)
    {
        const QString name = QStringLiteral("window-test");
        {
            QSqlDatabase past = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            past.setDatabaseName(m_sample.file("sample.db"));
            ASSERT_TRUE(past.open());
            for (const QString& statement : statements)
                EXPECT_TRUE(QSqlQuery(past).exec(statement)) << statement.toStdString();
        }
        QSqlDatabase::removeDatabase(name);
    }

    Deadline m_deadline{60'000};
    SampleDatabase m_sample;
    std::unique_ptr<workbench::Database> m_database;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace condtree::test
