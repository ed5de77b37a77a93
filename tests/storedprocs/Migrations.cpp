#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

HRESULT resultOf(const TempDatabase& database)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(database.url(), QStringLiteral("admin"), &hr));
    return hr;
}

/// A database of version 1, which had no transitions, with some content. Typed by hand: what is out
/// there does not change with the code.
const QStringList kVersion1 = {
    QStringLiteral("CREATE TABLE schema_version (id INTEGER PRIMARY KEY, product TEXT, version "
                   "INTEGER NOT NULL)"),
    QStringLiteral("INSERT INTO schema_version VALUES (1, 'condtree', 1)"),
    QStringLiteral("CREATE TABLE card_variables (id INTEGER PRIMARY KEY, name TEXT NOT NULL, "
                   "type INTEGER NOT NULL)"),
    QStringLiteral("INSERT INTO card_variables VALUES (1, 'Author', 1)"),
    QStringLiteral("CREATE TABLE workflows (id INTEGER PRIMARY KEY, name TEXT NOT NULL)"),
    QStringLiteral("INSERT INTO workflows VALUES (1, 'Change')"),
    QStringLiteral(
        "CREATE TABLE states (id INTEGER PRIMARY KEY, workflow_id INTEGER NOT NULL, name "
        "TEXT NOT NULL, second_name TEXT NOT NULL DEFAULT '', flags INTEGER NOT NULL "
        "DEFAULT 0, UNIQUE (workflow_id, id))"),
    QStringLiteral("INSERT INTO states VALUES (1, 1, 'Open', '', 0)"),
    QStringLiteral(
        "CREATE TABLE users (id INTEGER PRIMARY KEY, login TEXT NOT NULL, full_name TEXT "
        "NOT NULL DEFAULT '')"),
    QStringLiteral("INSERT INTO users VALUES (4, 'admin', 'The Boss')"),
    QStringLiteral("CREATE TABLE user_groups (id INTEGER PRIMARY KEY, name TEXT NOT NULL)"),
    QStringLiteral(
        "CREATE TABLE group_members (group_id INTEGER NOT NULL, user_id INTEGER NOT NULL)"),
    QStringLiteral("CREATE TABLE user_settings (user_id INTEGER NOT NULL, entry INTEGER NOT NULL, "
                   "value TEXT NOT NULL)"),
    QStringLiteral("CREATE TABLE document_types (id INTEGER PRIMARY KEY, name TEXT NOT NULL, "
                   "second_name TEXT NOT NULL DEFAULT '')"),
};

QString version(const TempDatabase& database)
{
    return database.value(QStringLiteral("SELECT version FROM schema_version"));
}

TEST(Migrations, MakeTheNewestVersionFromNothing)
{
    const TempDatabase missing;
    EXPECT_EQ(resultOf(missing), S_OK);
    EXPECT_EQ(version(missing), QStringLiteral("3"));
    const TempDatabase empty;
    empty.setBytes({});
    EXPECT_EQ(resultOf(empty), S_OK);
    EXPECT_EQ(empty.everything(), missing.everything());
    EXPECT_EQ(missing.rows(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND "
                                          "name NOT LIKE 'sqlite%' ORDER BY name")),
              (QStringList{QStringLiteral("card_variables"), QStringLiteral("condition_records"),
                           QStringLiteral("document_types"), QStringLiteral("group_members"),
                           QStringLiteral("schema_version"), QStringLiteral("states"),
                           QStringLiteral("transitions"), QStringLiteral("user_groups"),
                           QStringLiteral("user_settings"), QStringLiteral("users"),
                           QStringLiteral("workflows")}));
}

TEST(Migrations, MakeStrictTablesInUtf8WithARollbackJournal)
{
    const TempDatabase database;
    EXPECT_EQ(resultOf(database), S_OK);
    EXPECT_EQ(database.value(QStringLiteral("PRAGMA encoding")), QStringLiteral("UTF-8"));
    EXPECT_EQ(database.value(QStringLiteral("PRAGMA journal_mode")), QStringLiteral("delete"));
    EXPECT_EQ(database.value(QStringLiteral("SELECT count(*) FROM pragma_table_list WHERE schema = "
                                            "'main' AND strict = 0 AND name NOT LIKE 'sqlite%'")),
              QStringLiteral("0"));
}

TEST(Migrations, TakeAnOldVersionToTheNewestAndKeepItsContent)
{
    const TempDatabase database;
    database.run(kVersion1);
    const ManagerPtr manager = database.connected();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(version(database), QStringLiteral("3"));
    EXPECT_EQ(database.rows(QStringLiteral("SELECT * FROM users")),
              QStringList{QStringLiteral("4|admin|The Boss")});
    EXPECT_EQ(database.rows(QStringLiteral("SELECT * FROM card_variables")),
              QStringList{QStringLiteral("1|Author|1")});

    database.run({QStringLiteral("INSERT INTO transitions (id, workflow_id, name, from_state_id, "
                                 "to_state_id) VALUES (1, 1, 'loop', 1, 1)")});
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())
                  ->mhSaveCondition(1, {{3, 2, SpStr(u"Author"), {}, {}, 1, 101}}, 1, report),
              S_OK);
}

TEST(Migrations, ThatFailHalfwayLeaveTheOldVersion)
{
    const TempDatabase database;
    database.run(kVersion1);
    database.run({QStringLiteral("CREATE VIEW condition_records AS SELECT 1")}); // in the way
    const QStringList before = database.everything();
    {
        const ExpectWarning log(QStringLiteral("already exists"));
        EXPECT_EQ(resultOf(database), E_FAIL);
    }
    EXPECT_EQ(database.everything(), before);
    database.run({QStringLiteral("DROP VIEW condition_records")});
    EXPECT_EQ(resultOf(database), S_OK);
    EXPECT_EQ(version(database), QStringLiteral("3"));
}

TEST(Migrations, LeaveACurrentDatabaseUntouched)
{
    const TempDatabase database;
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    const QByteArray before = database.bytes();
    EXPECT_EQ(resultOf(database), S_OK);
    EXPECT_EQ(database.bytes(), before);
}

TEST(Migrations, RefuseANewerVersion)
{
    const TempDatabase database;
    EXPECT_EQ(resultOf(database), S_OK);
    database.run({QStringLiteral("UPDATE schema_version SET version = 4")});
    const QByteArray before = database.bytes();
    const ExpectWarning log(QStringLiteral("schema version 4"));
    EXPECT_EQ(resultOf(database), static_cast<HRESULT>(0x80040201U));
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), static_cast<HRESULT>(0x80040201U));
    EXPECT_EQ(database.bytes(), before);
}

TEST(Migrations, RefuseAVersionThatNeverWas)
{
    const TempDatabase database;
    EXPECT_EQ(resultOf(database), S_OK);
    const ExpectWarning log(QStringLiteral("schema version"));
    for (const QString& sql : {QStringLiteral("UPDATE schema_version SET version = 0"),
                               QStringLiteral("UPDATE schema_version SET version = -1"),
                               QStringLiteral("DELETE FROM schema_version")}) {
        database.run({sql});
        EXPECT_EQ(resultOf(database), static_cast<HRESULT>(0x80040206U)) << sql.toStdString();
    }
}

TEST(Migrations, RefuseADatabaseOfAnotherProgramThatCountsVersionsToo)
{
    const QStringList tables{
        QStringLiteral("CREATE TABLE schema_version (id INTEGER PRIMARY KEY, version INTEGER)"),
        QStringLiteral("CREATE TABLE schema_version (id INTEGER PRIMARY KEY, product TEXT, "
                       "version INTEGER)"),
        QStringLiteral("CREATE TABLE schema_version (number INTEGER)")};
    for (const QString& table : tables) {
        const TempDatabase database;
        database.run({table, QStringLiteral("CREATE TABLE recipes (name TEXT)")});
        if (!table.contains(QStringLiteral("number")))
            database.run(
                {QStringLiteral("INSERT INTO schema_version (id, version) VALUES (1, 1)")});
        const QByteArray before = database.bytes();
        const ExpectWarning log(table.contains(QStringLiteral("product"))
                                    ? QStringLiteral("schema version 0")
                                    : QStringLiteral("not ours"));
        EXPECT_EQ(resultOf(database), static_cast<HRESULT>(0x80040206U)) << table.toStdString();
        EXPECT_EQ(database.bytes(), before) << table.toStdString();
    }
}

TEST(Migrations, RefuseADatabaseThatHoldsOnlyViews)
{
    const TempDatabase database;
    database.run({QStringLiteral("CREATE VIEW recipes AS SELECT 1")});
    const QByteArray before = database.bytes();
    const ExpectWarning log(QStringLiteral("not ours"));
    EXPECT_EQ(resultOf(database), static_cast<HRESULT>(0x80040206U));
    EXPECT_EQ(database.bytes(), before);
}

TEST(Migrations, NamesThatDifferInTheCaseOfAsciiLettersAreTheSame)
{
    const TempDatabase database;
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    for (const QString& table : {QStringLiteral("card_variables"), QStringLiteral("workflows"),
                                 QStringLiteral("states"), QStringLiteral("user_groups"),
                                 QStringLiteral("document_types"), QStringLiteral("transitions")}) {
        const QStringList before = database.rows(QStringLiteral("SELECT * FROM ") + table);
        RawConnection raw(database.path());
        EXPECT_FALSE(raw.run(QStringLiteral("UPDATE %1 SET name = (SELECT upper(name) FROM %1 "
                                            "ORDER BY id LIMIT 1) WHERE id = 2")
                                 .arg(table)))
            << table.toStdString();
        EXPECT_EQ(database.rows(QStringLiteral("SELECT * FROM ") + table), before);
    }
}

TEST(Migrations, RefuseADatabaseOfAnotherProgram)
{
    const TempDatabase database;
    database.run({QStringLiteral("CREATE TABLE recipes (name TEXT)")});
    const QByteArray before = database.bytes();
    const ExpectWarning log(QStringLiteral("not ours"));
    EXPECT_EQ(resultOf(database), static_cast<HRESULT>(0x80040206U));
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), static_cast<HRESULT>(0x80040206U));
    EXPECT_EQ(database.bytes(), before);
}

TEST(Migrations, MakeRulesThatHoldRecordsAndReferencesTogether)
{
    const TempDatabase database;
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    RawConnection raw(database.path());
    EXPECT_TRUE(raw.run(QStringLiteral("PRAGMA foreign_keys = ON")));
    for (const char* sql :
         {"INSERT INTO states (workflow_id, name) VALUES (99, 'x')",
          "INSERT INTO group_members VALUES (1, 999)",
          "INSERT INTO user_settings VALUES (999, 24, '1')",
          "INSERT INTO transitions (workflow_id, name, from_state_id, to_state_id) "
          "VALUES (1, 'x', 1, 7)", // a state of another workflow
          "INSERT INTO transitions (workflow_id, name, from_state_id, to_state_id) "
          "VALUES (1, 'Approve', 1, 2)",
          "DELETE FROM states WHERE id = 2",
          "INSERT INTO condition_records VALUES (99, 0, 3, 2, '', '', '', 1, 1)",
          "INSERT INTO condition_records VALUES (5, -1, 3, 2, '', '', '', 1, 1)",
          "INSERT INTO condition_records VALUES (5, 0, 3, 2, '', '', '', 1, 2147483648)",
          "INSERT INTO condition_records VALUES (5, 0, 3, 2, '', '', NULL, 1, 1)",
          "UPDATE transitions SET version = 0"})
        EXPECT_FALSE(raw.run(QString::fromLatin1(sql))) << sql;
    EXPECT_TRUE(raw.run(QStringLiteral("DELETE FROM workflows WHERE id = 1")));
    EXPECT_EQ(raw.rows(QStringLiteral("SELECT min(transition_id) FROM condition_records")),
              QStringList{QStringLiteral("6")});
}

} // namespace
} // namespace condtree::test
