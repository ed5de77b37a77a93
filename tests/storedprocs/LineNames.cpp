#include "TempDatabase.h"
#include "support/QtPrinters.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

// Names stand in lists, an entry a line: the database takes no control characters in them.

struct Column {
    const char* what;
    QString table;
    QString column;
    QString insert; ///< %1 is the name, as SQL.
};

const Column kColumns[] = {
    {"variable", QStringLiteral("card_variables"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO card_variables (name, type) VALUES (%1, 1)")},
    {"workflow", QStringLiteral("workflows"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO workflows (name) VALUES (%1)")},
    {"state", QStringLiteral("states"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO states (workflow_id, name) VALUES (1, %1)")},
    {"state's second name", QStringLiteral("states"), QStringLiteral("second_name"),
     QStringLiteral("INSERT INTO states (workflow_id, name, second_name) VALUES (1, 'new', %1)")},
    {"login", QStringLiteral("users"), QStringLiteral("login"),
     QStringLiteral("INSERT INTO users (login) VALUES (%1)")},
    {"full name", QStringLiteral("users"), QStringLiteral("full_name"),
     QStringLiteral("INSERT INTO users (login, full_name) VALUES ('new', %1)")},
    {"group", QStringLiteral("user_groups"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO user_groups (name) VALUES (%1)")},
    {"document type", QStringLiteral("document_types"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO document_types (name) VALUES (%1)")},
    {"document type's second name", QStringLiteral("document_types"), QStringLiteral("second_name"),
     QStringLiteral("INSERT INTO document_types (name, second_name) VALUES ('new', %1)")},
    {"transition", QStringLiteral("transitions"), QStringLiteral("name"),
     QStringLiteral("INSERT INTO transitions (workflow_id, name, from_state_id, to_state_id) "
                    "VALUES (1, %1, 1, 2)")},
};

class LineNames : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK); }

    /// The database as it was before names were looked at: of version 2, without the checks.
    void makeOld() const
    {
        QStringList statements{QStringLiteral("UPDATE schema_version SET version = 2")};
        const QStringList triggers =
            database.rows(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'trigger'"));
        for (const QString& trigger : triggers)
            statements.append(QStringLiteral("DROP TRIGGER ") + trigger);
        database.run(statements);
    }

    TempDatabase database;
};

TEST_F(LineNames, TakeNoControlCharacterWhetherNewOrChanged)
{
    RawConnection raw(database.path());
    QList<int> controls{0x7F};
    for (int control = 0; control < 0x20; ++control)
        controls.append(control);
    for (const Column& each : kColumns) {
        for (const int control : controls) {
            const QString name = QStringLiteral("'a' || char(%1) || 'b'").arg(control);
            EXPECT_FALSE(raw.run(each.insert.arg(name))) << each.what << ' ' << control;
            EXPECT_FALSE(raw.run(QStringLiteral("UPDATE %1 SET %2 = %3 WHERE rowid = 2")
                                     .arg(each.table, each.column, name)))
                << each.what << ' ' << control;
        }
        for (const char* name : {"char(10)", "'a' || char(9)", "char(13) || 'b'"})
            EXPECT_FALSE(raw.run(each.insert.arg(QLatin1String(name)))) << each.what << name;
    }
}

TEST_F(LineNames, TakeEverythingElse)
{
    RawConnection raw(database.path());
    for (const Column& each : kColumns) {
        ASSERT_TRUE(raw.run(QStringLiteral("BEGIN")));
        // The neighbours of what is refused, what a pattern might trip over, and any letters.
        const QString name = QStringLiteral("' ~-^]*[?' || char(128, 133, 160) || 'Größe 寸法 😀'");
        EXPECT_TRUE(raw.run(each.insert.arg(name))) << each.what;
        EXPECT_TRUE(raw.run(QStringLiteral("UPDATE %1 SET %2 = %3 || '2' WHERE rowid = 2")
                                .arg(each.table, each.column, name)))
            << each.what;
        ASSERT_TRUE(raw.run(QStringLiteral("ROLLBACK")));
    }
}

TEST_F(LineNames, OfAnOldDatabaseStayAndOnlyNewOnesAreRefused)
{
    makeOld();
    database.run({
        QStringLiteral("UPDATE card_variables SET name = 'two' || char(10) || 'lines' "
                       "WHERE id = 1"),
        QStringLiteral("UPDATE transitions SET name = 'With' || char(10) || 'draw' WHERE id = 5"),
        QStringLiteral("UPDATE users SET full_name = 'A' || char(9) || 'B' WHERE id = 2"),
    });
    const ManagerPtr manager = database.connected();
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(database.value(QStringLiteral("SELECT version FROM schema_version")),
              QStringLiteral("3"));

    AutoLst<Lst<VarDef*>> variables;
    EXPECT_EQ(procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION)
                  .mhGetVariables(variables, false),
              S_OK);
    POSITION at = variables.GetHeadPosition();
    EXPECT_EQ(QStringView(variables.GetNext(at)->mName).toString(), QStringLiteral("two\nlines"));
    std::vector<SpTransition> transitions;
    ASSERT_EQ(SpTransitionsOf(manager.get())->mhGetTransitions(transitions), S_OK);
    EXPECT_EQ(transitions.at(4).name.str(), QStringLiteral("With\ndraw"));
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())
                  ->mhSaveCondition(5, {SpConditionRecord{}}, transitions.at(4).version, report),
              S_OK);

    RawConnection raw(database.path());
    for (const char* sql : {"UPDATE card_variables SET type = 2 WHERE id = 1",
                            "UPDATE card_variables SET name = name, type = 3 WHERE id = 1",
                            "UPDATE users SET login = 'x', full_name = full_name WHERE id = 2",
                            "UPDATE card_variables SET name = 'one line' WHERE id = 1"})
        EXPECT_TRUE(raw.run(QString::fromLatin1(sql))) << sql;
    EXPECT_FALSE(raw.run(QStringLiteral("UPDATE users SET full_name = 'C' || full_name "
                                        "WHERE id = 2")));
    EXPECT_FALSE(raw.run(QStringLiteral("UPDATE transitions SET name = char(10) WHERE id = 5")));
}

TEST_F(LineNames, OfOldDatabasesAreCheckedAsThoseOfNewOnes)
{
    const QString triggers =
        QStringLiteral("SELECT name, sql FROM sqlite_master WHERE type = 'trigger' ORDER BY name");
    const QStringList made = database.rows(triggers);
    EXPECT_EQ(made.size(), 20);
    makeOld();
    EXPECT_EQ(database.rows(triggers), QStringList());
    ASSERT_NE(database.connected(), nullptr);
    EXPECT_EQ(database.rows(triggers), made);
}

} // namespace
} // namespace condtree::test
