#include "WindowFixture.h"

#include "FullDisk.h"
#include "TempDatabase.h"

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

const QString kLocked =
    QStringLiteral("An attempt was made to access a record in the database that is locked by "
                   "another user.\nThis can sometimes happen during high workload on the "
                   "database.\nUsually this is solved if you try the operation again.");
const QString kCannotOpen =
    QStringLiteral("Could not open database. This could happen if the network connection is broken "
                   "or if the database has been removed.");
const QString kAdvice =
    QStringLiteral("Nothing was stored, and your changes are still here. You can export them to a "
                   "file, or revert to the condition in the database.");

/// Expects a box with exactly these words, and closes it.
Answers::Answer told(const QString& text, const QString& advice = {})
{
    return [=](QDialog& dialog) {
        auto* box = qobject_cast<QMessageBox*>(&dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->text(), text);
        EXPECT_EQ(box->informativeText(), advice);
        ASSERT_NE(box->button(QMessageBox::Ok), nullptr);
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    };
}

QString cannotSave(const QString& reason)
{
    return QStringLiteral("cannot save the condition of Document Approval/Submit for Review: ")
           + reason;
}

/// The database fails under a window that is open.
class WindowFaults : public WindowTest {
protected:
    [[nodiscard]] QString url() const override
    {
        return m_sample.url() + QStringLiteral("?busy_timeout=20");
    }

    [[nodiscard]] QString path() const { return m_sample.file("sample.db"); }

    QByteArray bytes() const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    /// In place, as what spoils a file does: the window's connection stays on it.
    void setBytes(const QByteArray& bytes) const
    {
        QFile file(path());
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_EQ(file.write(bytes), bytes.size());
        EXPECT_TRUE(file.resize(bytes.size()));
    }

    void expectTheWorkToBeThere(const QString& value)
    {
        EXPECT_EQ(firstValue(), value);
        EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
        expectUnsaved(true);
        EXPECT_TRUE(m_window->isEnabled());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    /// Saves a change while the database has a fault, which is told once; the change can be taken
    /// out to a file meanwhile, and is saved once the fault is gone.
    void expectSavingToBeToldUntil(const QString& text, const QString& advice,
                                   const std::function<void()>& cause,
                                   const std::function<void()>& cure, const QString& value)
    {
        edit(qUtf8Printable(value));
        const QString file = m_sample.file("mine.json");
        const Answers answers({told(text, advice), choose(file)});
        cause();
        {
            const ExpectWarning log(QStringLiteral("failed"));
            trigger("save");
        }
        expectTheWorkToBeThere(value);
        trigger("export");
        QFile exported(file);
        ASSERT_TRUE(exported.open(QIODevice::ReadOnly));
        EXPECT_TRUE(exported.readAll().contains("\"value\":\"" + value.toUtf8() + '"'));
        cure();
        trigger("save");
        expectUnsaved(false);
        EXPECT_EQ(storedValue(kFirst), value);
    }
};

TEST_F(WindowFaults, ASaveToALockedDatabaseIsToldOnceAndSucceedsLater)
{
    RawConnection other(path());
    expectSavingToBeToldUntil(
        cannotSave(kLocked), kAdvice,
        [&] { ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE"))); },
        [&] { ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK"))); }, QStringLiteral("mine"));
}

TEST_F(WindowFaults, ASaveToADatabaseThatBecameGarbageIsToldOnceAndSucceedsLater)
{
    const QByteArray whole = bytes();
    expectSavingToBeToldUntil(
        cannotSave(kCannotOpen), kAdvice, [&] { setBytes(QByteArray(whole.size(), '\x55')); },
        [&] { setBytes(whole); }, QStringLiteral("mine"));
}

TEST_F(WindowFaults, ASaveThatCannotBeWrittenIsToldOnceAndSucceedsLater)
{
    edit("mine");
    const Answers answers(
        {told(cannotSave(QStringLiteral(
                  "The database could not be written; your changes were not saved.")),
              kAdvice)});
    {
        const ExpectWarning log(QStringLiteral("failed"));
        const SmallFiles none(256);
        trigger("save");
    }
    expectTheWorkToBeThere(QStringLiteral("mine"));
    trigger("save");
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("mine"));
}

TEST_F(WindowFaults, ASaveToAFullDiskIsToldOnceInTheUsersLanguageAndSucceedsLater)
{
    const QByteArray whole = bytes();
    if (!fillUp(path()))
        GTEST_SKIP() << "not checked: the file system has no files that are large enough";
    useLanguage(*qApp, QStringLiteral("de"));
    expectSavingToBeToldUntil(
        QStringLiteral("Bedingung von Document Approval/Submit for Review kann nicht gespeichert "
                       "werden: Der Datenträger ist voll; Ihre Änderungen wurden nicht "
                       "gespeichert."),
        QStringLiteral("Es wurde nichts gespeichert; Ihre Änderungen sind noch vorhanden. Sie "
                       "können sie in eine Datei exportieren oder mit „Zurücksetzen“ zur Bedingung "
                       "in der Datenbank zurückkehren."),
        [] {}, [&] { setBytes(whole); }, QString(100'000, u'v'));
    useLanguage(*qApp, {});
}

TEST_F(WindowFaults, ATransitionOfALockedDatabaseIsToldOnceAndOpensLater)
{
    const SpTransition next = find("Document Approval/Request Changes");
    const auto clickNext = [&] {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                          list().visualItemRect(list().itemOf(next.id)).center());
        QCoreApplication::processEvents();
    };
    RawConnection other(path());
    {
        const Answers answers({told(QStringLiteral("cannot read the condition of Document "
                                                   "Approval/Request Changes: ")
                                    + kLocked)});
        ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE")));
        const ExpectWarning log(QStringLiteral("failed"));
        clickNext();
    }
    EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
    EXPECT_EQ(selected(), QStringLiteral("Submit for Review"));
    expectUnsaved(false);
    ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK")));
    const Answers answers({});
    clickNext();
    EXPECT_EQ(shownTransition(), QStringLiteral("Document Approval/Request Changes"));
    expectUnsaved(false);
}

TEST_F(WindowFaults, ARevertToALockedDatabaseKeepsTheWorkAndSucceedsLater)
{
    edit("mine");
    const auto discard = press(QMessageBox::Discard, "Give up the changes");
    const Answers answers(
        {discard,
         told(QStringLiteral("cannot read the condition of Document Approval/Submit for Review: ")
              + kLocked),
         discard});
    RawConnection other(path());
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE")));
    {
        const ExpectWarning log(QStringLiteral("failed"));
        trigger("revert");
    }
    expectTheWorkToBeThere(QStringLiteral("mine"));
    ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK")));
    trigger("revert");
    EXPECT_EQ(firstValue(), QString());
    expectUnsaved(false);
}

} // namespace
