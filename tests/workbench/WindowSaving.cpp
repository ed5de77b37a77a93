#include "WindowFixture.h"

using namespace condtree;
using namespace condtree::test;
using namespace condtree::workbench;

namespace {

using WindowSaving = WindowTest;

TEST_F(WindowSaving, AnImportIsStoredBySavingOnly)
{
    const Answers answers({choose(importFile())});
    trigger("import");
    EXPECT_EQ(firstValue(), QStringLiteral("imported"));
    expectUnsaved(true);
    EXPECT_EQ(storedValue(kFirst), QString());
    m_window->activateWindow(); // as a desktop does when a dialog goes
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("imported"));
    EXPECT_TRUE(
        label("lastChange")
            .startsWith(QStringLiteral("Last changed by %1, ").arg(m_database->userName())));
    EXPECT_FALSE(label("lastChange").contains(QStringLiteral("2024")));
    EXPECT_EQ(list().itemOf(find(kFirst).id)->text(1), QStringLiteral("1"));
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("Saved."));
}

TEST_F(WindowSaving, SavingWithoutChangesStoresNothing)
{
    const auto before = m_sample.conditions();
    const Answers answers({});
    trigger("save");
    EXPECT_TRUE(sameConditions(m_sample.conditions(), before));
    EXPECT_EQ(m_window->statusBar()->currentMessage(), QStringLiteral("There is nothing to save."));
}

TEST_F(WindowSaving, SavingTwiceInARowWorks)
{
    const Answers answers({});
    edit("one");
    trigger("save");
    edit("two");
    trigger("save");
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("two"));
}

TEST_F(WindowSaving, AfterSavingTheSavedRowsAreTheOnesToCompareWith)
{
    const QString before = firstValue();
    edit("saved");
    trigger("save");
    edit(qUtf8Printable(before));
    expectUnsaved(true);
    edit("saved");
    expectUnsaved(false);
}

TEST_F(WindowSaving, RevertingAsksAndReadsTheDatabaseAgain)
{
    edit("mine");
    const Answers answers({press(QMessageBox::Cancel, "Give up the changes"),
                           press(QMessageBox::Discard, "Give up the changes")});
    trigger("revert");
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
    trigger("revert");
    EXPECT_EQ(firstValue(), QString());
    expectUnsaved(false);
}

TEST_F(WindowSaving, AChangeThatSomebodyElseSavedInBetweenIsNeverOverwritten)
{
    edit("mine");
    const auto other = m_sample.open(QStringLiteral("gdeluca"));
    const SpTransition transition = find(kFirst);
    SpCondition theirs = other->load(transition).value();
    theirs.records.front().value = QStringLiteral("theirs");
    ASSERT_TRUE(other->save(transition, theirs.records, theirs.version).hasValue());

    const QString exported = m_sample.file("mine.json");
    const Answers answers({press(QMessageBox::Ok, "gdeluca"), choose(exported),
                           press(QMessageBox::Discard, "Give up the changes")});
    trigger("save");
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("theirs"));

    trigger("export");
    QFile file(exported);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\"value\":\"mine\""));

    trigger("revert");
    EXPECT_EQ(firstValue(), QStringLiteral("theirs"));
    EXPECT_TRUE(label("lastChange").startsWith(QStringLiteral("Last changed by gdeluca, ")));
    expectUnsaved(false);
    edit("after");
    trigger("save");
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("after"));
}

TEST_F(WindowSaving, LeavingATransitionAsksAndCancelStays)
{
    edit("mine");
    const Answers answers({press(QMessageBox::Cancel, kFirst)});
    click("Engineering Change/Evaluate");
    EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
    EXPECT_EQ(selected(), QStringLiteral("* Submit for Review"));
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
}

TEST_F(WindowSaving, LeavingATransitionCanGiveUpItsChanges)
{
    edit("mine");
    const Answers answers({press(QMessageBox::Discard, kFirst)});
    click("Engineering Change/Evaluate");
    EXPECT_EQ(shownTransition(), QStringLiteral("Engineering Change/Evaluate"));
    EXPECT_EQ(selected(), QStringLiteral("Evaluate"));
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QString());
}

TEST_F(WindowSaving, LeavingATransitionCanSaveItsChanges)
{
    edit("mine");
    const Answers answers({press(QMessageBox::Save, kFirst)});
    click("Engineering Change/Evaluate");
    EXPECT_EQ(shownTransition(), QStringLiteral("Engineering Change/Evaluate"));
    EXPECT_EQ(selected(), QStringLiteral("Evaluate"));
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("mine"));
}

TEST_F(WindowSaving, ClosingWithoutChangesAsksNothing)
{
    const Answers answers({});
    EXPECT_TRUE(m_window->close());
}

TEST_F(WindowSaving, ClosingWithChangesAsksAndCancelStays)
{
    edit("mine");
    const Answers answers(
        {press(QMessageBox::Cancel, kFirst), press(QMessageBox::Discard, kFirst)});
    EXPECT_FALSE(m_window->close());
    EXPECT_TRUE(m_window->isVisible());
    expectUnsaved(true);
    trigger("quit");
    EXPECT_FALSE(m_window->isVisible());
    EXPECT_EQ(storedValue(kFirst), QString());
}

TEST_F(WindowSaving, ClosingCanSaveAndStaysWhenThatIsRefused)
{
    edit("mine");
    sql({QStringLiteral("UPDATE transitions SET version = version + 1")});
    const Answers answers({press(QMessageBox::Save, kFirst), press(QMessageBox::Ok, "cannot save"),
                           press(QMessageBox::Discard, kFirst)});
    EXPECT_FALSE(m_window->close());
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    EXPECT_TRUE(m_window->close());
}

TEST_F(WindowSaving, ATransitionThatCannotBeReadLeavesTheOpenOneAsItIs)
{
    sql({QStringLiteral("PRAGMA foreign_keys = ON"),
         QStringLiteral("DELETE FROM transitions WHERE name = 'Evaluate'")});
    edit("mine");
    const auto evaluate = std::find_if(
        list().transitions().begin(), list().transitions().end(),
        [](const SpTransition& t) { return t.name.str() == QStringLiteral("Evaluate"); });
    const Answers answers(
        {press(QMessageBox::Discard, kFirst),
         press(QMessageBox::Ok, "cannot read the condition of Engineering Change/Evaluate")});
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualItemRect(list().itemOf(evaluate->id)).center());
    QCoreApplication::processEvents();
    EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
    EXPECT_EQ(selected(), QStringLiteral("* Submit for Review"));
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
}

TEST_F(WindowSaving, AFailedSaveKeepsTheWorkAndCanBeTriedAgain)
{
    edit("mine");
    const ExpectWarning expected(QStringLiteral("no such table"));
    sql({QStringLiteral("ALTER TABLE condition_records RENAME TO away")});
    const Answers answers({press(QMessageBox::Ok, "cannot save")});
    trigger("save");
    EXPECT_EQ(firstValue(), QStringLiteral("mine"));
    expectUnsaved(true);
    sql({QStringLiteral("ALTER TABLE away RENAME TO condition_records")});
    trigger("save");
    expectUnsaved(false);
    EXPECT_EQ(storedValue(kFirst), QStringLiteral("mine"));
}

TEST_F(WindowSaving, ATransitionWhoseNamesCannotBeReadIsNotOpenedAndTheOpenOneStays)
{
    const ExpectWarning expected(QStringLiteral("no such table"));
    sql({QStringLiteral("ALTER TABLE users RENAME TO away")});
    {
        const Answers answers({press(QMessageBox::Ok, "")});
        click("Document Approval/Request Changes");
    }
    EXPECT_EQ(shownTransition(), QString::fromUtf8(kFirst));
    EXPECT_EQ(expected.count(), 1);
    expectUnsaved(false);
    sql({QStringLiteral("ALTER TABLE away RENAME TO users")});
    click("Document Approval/Request Changes");
    EXPECT_EQ(shownTransition(), QStringLiteral("Document Approval/Request Changes"));
    EXPECT_EQ(label("warning"), QStringLiteral("(hidden)"));
    expectUnsaved(false);
}

TEST_F(WindowSaving, RecordsThatSavingWouldDropAreToldBeforehand)
{
    // A record like an untouched placeholder ends its level when it is saved.
    sql({QStringLiteral(
        "UPDATE condition_records SET cond_type = 99, operator = -1 WHERE position = 2 AND "
        "transition_id = (SELECT id FROM transitions WHERE name = 'Evaluate')")});
    click("Engineering Change/Evaluate");
    EXPECT_EQ(
        label("warning"),
        QStringLiteral("Saving will store something other than what was read: 1 of the 4 records, "
                       "row 3."));
    sql({QStringLiteral("UPDATE condition_records SET row_kind = 3 WHERE position = 2 AND "
                        "transition_id = (SELECT id FROM transitions WHERE name = 'Evaluate')")});
    trigger("revert");
    EXPECT_EQ(
        label("warning"),
        QStringLiteral("Saving will drop 2 of the 4 records that were read.\n"
                       "Saving will store something other than what was read: 2 of the 4 records, "
                       "rows 3 and 4."));
    expectUnsaved(false);
}

TEST_F(WindowSaving, RowsThatSavingWouldChangeAreToldBeforehand)
{
    const QString file =
        fileOf("odd.json", R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":2,"name":"Author","extra":"","value":"v","argType":1,"operator":100},
{"rowKind":3,"condType":99,"name":"x","extra":"","value":"v","argType":1,"operator":100},
{"rowKind":2,"condType":0,"name":"mine","extra":"","value":"","argType":0,"operator":0},
{"rowKind":3,"condType":8,"name":"","extra":"","value":"abc","argType":1,"operator":100},
{"rowKind":77,"condType":2,"name":"Author","extra":"","value":"v","argType":1,"operator":100},
{"rowKind":3,"condType":2,"name":"Approved","extra":"","value":"important","argType":4,"operator":127},
{"rowKind":3,"condType":2,"name":"Nowhere","extra":"","value":"v","argType":9,"operator":100},
{"rowKind":3,"condType":2,"name":"Author","extra":"","value":"!=v","argType":1,"operator":160}
]}
)");
    const Answers answers({choose(file)});
    trigger("import");
    EXPECT_EQ(
        label("warning"),
        QStringLiteral("Saving will store something other than what was read: 6 of the 8 records, "
                       "rows 2, 3, 4, 5, 6 and 1 more."));
    trigger("save");
    EXPECT_EQ(label("warning"), QStringLiteral("(hidden)"));
}

TEST_F(WindowSaving, RecordsOfAFileThatSavingWouldDropAreTold)
{
    const QString file =
        fileOf("odd.json", R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":99,"name":"","extra":"","value":"","argType":1,"operator":-1},
{"rowKind":3,"condType":2,"name":"Author","extra":"","value":"v","argType":1,"operator":100}
]}
)");
    const Answers answers({choose(file)});
    trigger("import");
    EXPECT_EQ(
        label("warning"),
        QStringLiteral("Saving will drop 2 of the 2 records that were read.\n"
                       "Saving will store something other than what was read: 2 of the 2 records, "
                       "rows 1 and 2."));
    expectUnsaved(true);
}

} // namespace
