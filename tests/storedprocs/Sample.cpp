#include "TempDatabase.h"
#include "support/QtPrinters.h"

#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

class Sample : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK); }
    QStringList rows(const char* sql) const { return database.rows(QString::fromUtf8(sql)); }
    int count(const char* sql) const { return database.value(QString::fromUtf8(sql)).toInt(); }
    TempDatabase database;
};

TEST_F(Sample, HasSomeOfEverything)
{
    const struct {
        const char* table;
        int atLeast;
    } tables[] = {
        {"card_variables", 40},
        {"user_settings", 20},
        {"group_members", 60},
    };
    for (const auto& row : tables)
        EXPECT_GE(
            count(qPrintable(QStringLiteral("SELECT count(*) FROM ") + QLatin1String(row.table))),
            row.atLeast)
            << row.table;
    EXPECT_EQ(count("SELECT count(*) FROM workflows"), 4);
    EXPECT_EQ(count("SELECT count(*) FROM states"), 20);
    EXPECT_EQ(count("SELECT count(*) FROM users"), 60);
    EXPECT_EQ(count("SELECT count(*) FROM user_groups"), 8);
    EXPECT_EQ(count("SELECT count(*) FROM document_types"), 6);
    EXPECT_EQ(count("SELECT count(*) FROM transitions"), 12);
}

TEST_F(Sample, HasVariablesOfAllFiveTypes)
{
    EXPECT_EQ(rows("SELECT DISTINCT type FROM card_variables ORDER BY type"),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                           QStringLiteral("4"), QStringLiteral("5")}));
    for (const char* name : {"Author", "Title", "Project", "Document Number", "Revision", "Weight",
                             "Quantity", "Cost", "Approved", "Due Date", "Material", "Supplier"})
        EXPECT_EQ(
            count(qPrintable(QStringLiteral("SELECT count(*) FROM card_variables WHERE name = "
                                            "'%1'")
                                 .arg(QLatin1String(name)))),
            1)
            << name;
}

TEST_F(Sample, HasStatesThatShowTheirSecondNameAndOthersThatDoNot)
{
    EXPECT_GE(count("SELECT count(*) FROM states WHERE flags & 1 AND second_name <> ''"), 1);
    EXPECT_GE(count("SELECT count(*) FROM states WHERE flags & 2 AND second_name <> ''"), 1);
    EXPECT_GE(count("SELECT count(*) FROM states WHERE flags & 3 = 0 AND second_name <> ''"), 1);
    EXPECT_GE(count("SELECT count(*) FROM states WHERE flags & 3 = 0 AND flags <> 0"), 1);
    EXPECT_EQ(count("SELECT count(*) FROM states WHERE flags & 3 AND second_name = ''"), 0);
}

TEST_F(Sample, HasUsersWithAndWithoutFullNameAndSetting)
{
    const int withoutName = count("SELECT count(*) FROM users WHERE full_name = ''");
    EXPECT_GE(withoutName, 2);
    EXPECT_LE(withoutName, 6);
    EXPECT_GE(count("SELECT count(*) FROM user_settings WHERE entry = 24 AND value = '1'"), 5);
    EXPECT_GE(count("SELECT count(*) FROM user_settings WHERE entry = 24 AND value = '0'"), 5);
    EXPECT_GE(count("SELECT count(*) FROM users WHERE id NOT IN "
                    "(SELECT user_id FROM user_settings WHERE entry = 24)"),
              5);
    EXPECT_EQ(count("SELECT count(*) FROM user_groups WHERE id NOT IN "
                    "(SELECT group_id FROM group_members)"),
              0);
}

TEST_F(Sample, HasRecordsOfEveryKind)
{
    EXPECT_EQ(rows("SELECT DISTINCT cond_type FROM condition_records ORDER BY 1").join(u' '),
              QStringLiteral("0 1 2 3 4 5 6 7 8 9 10"));
    EXPECT_EQ(rows("SELECT DISTINCT row_kind FROM condition_records ORDER BY 1").join(u' '),
              QStringLiteral("2 3 4"));
    const struct {
        const char* what;
        const char* where;
    } kinds[] = {
        {"a prefixed date", "operator = 160 AND arg_type = 5 AND value = '>=2024-01-01'"},
        {"a prefixed inequality", "operator = 160 AND value = '!=open'"},
        {"a prefixed pattern", "operator = 160 AND value = '%pump%'"},
        {"a yes", "arg_type = 4 AND value = 'Yes' AND operator = 139"},
        {"a no", "arg_type = 4 AND value = 'No' AND operator = 139"},
        {"a negative state that exists",
         "cond_type = 7 AND value = '-12' AND EXISTS (SELECT 1 FROM states WHERE id = 12)"},
        {"free text on a child reference state", "cond_type = 7 AND operator = 108"},
        {"free text on a historic state", "cond_type = 10 AND operator = 108"},
        {"an unknown user",
         "cond_type = 8 AND CAST(value AS INTEGER) NOT IN (SELECT id FROM users)"},
        {"a known user", "cond_type = 8 AND CAST(value AS INTEGER) IN (SELECT id FROM users)"},
        {"an extra text", "extra <> ''"},
        {"each object type: file", "cond_type = 5 AND value = '1'"},
        {"each object type: bill of materials", "cond_type = 5 AND value = '3'"},
        {"each object type: item", "cond_type = 5 AND value = '4'"},
    };
    for (const auto& kind : kinds)
        EXPECT_GE(count(qPrintable(QStringLiteral("SELECT count(*) FROM condition_records WHERE ")
                                   + QLatin1String(kind.where))),
                  1)
            << kind.what;
}

TEST_F(Sample, HasAnEmptyGroupAndAnEmptyCondition)
{
    EXPECT_GE(
        count("SELECT count(*) FROM condition_records a WHERE row_kind = 2 AND NOT EXISTS "
              "(SELECT 1 FROM condition_records b WHERE b.transition_id = a.transition_id AND "
              "b.position = a.position + 1 AND b.row_kind = 4)"),
        1);
    EXPECT_EQ(count("SELECT count(*) FROM transitions WHERE id NOT IN "
                    "(SELECT transition_id FROM condition_records)"),
              1);
}

TEST_F(Sample, NamesOnlyWhatItHas)
{
    EXPECT_EQ(rows("SELECT r.name FROM condition_records r LEFT JOIN card_variables v ON v.name = "
                   "r.name WHERE cond_type IN (2, 6) AND v.id IS NULL"),
              QStringList());
    EXPECT_EQ(
        rows("SELECT r.name FROM condition_records r JOIN card_variables v ON v.name = r.name "
             "WHERE cond_type = 2 AND v.type <> r.arg_type"),
        QStringList());
    EXPECT_EQ(rows("SELECT name FROM condition_records WHERE cond_type NOT IN (0, 2) AND arg_type "
                   "<> 1"),
              QStringList());
    EXPECT_EQ(rows("SELECT value FROM condition_records WHERE cond_type IN (7, 10) AND operator <> "
                   "108 AND abs(CAST(value AS INTEGER)) NOT IN (SELECT id FROM states)"),
              QStringList());
    EXPECT_EQ(rows("SELECT value FROM condition_records WHERE cond_type = 9 AND "
                   "CAST(value AS INTEGER) NOT IN (SELECT id FROM user_groups)"),
              QStringList());
    EXPECT_EQ(rows("SELECT value FROM condition_records WHERE cond_type = 4 AND value NOT IN "
                   "(SELECT name FROM document_types)"),
              QStringList());
    EXPECT_EQ(
        rows("SELECT changed_by FROM transitions WHERE changed_by <> '' AND changed_by NOT IN "
             "(SELECT login FROM users)"),
        QStringList());
    EXPECT_EQ(rows("PRAGMA foreign_key_check"), QStringList());
}

TEST_F(Sample, IsTheSameEveryTime)
{
    const TempDatabase another;
    ASSERT_EQ(SpMakeSampleDatabase(another.url()), S_OK);
    EXPECT_EQ(another.everything(), database.everything());
    EXPECT_EQ(another.bytes(), database.bytes());
}

TEST_F(Sample, IsReadByTheLibrary)
{
    const ManagerPtr manager = database.connected();
    ASSERT_NE(manager, nullptr);
    std::vector<SpTransition> list;
    ASSERT_EQ(SpTransitionsOf(manager.get())->mhGetTransitions(list), S_OK);
    ASSERT_EQ(list.size(), 12U);
    EXPECT_EQ(list[2].workflow.str(), QStringLiteral("Document Approval"));
    EXPECT_EQ(list[2].name.str(), QStringLiteral("Approve"));
    EXPECT_EQ(list[2].fromState.str(), QStringLiteral("In Review"));
    EXPECT_EQ(list[2].toState.str(), QStringLiteral("Approved"));
    EXPECT_EQ(list[2].changedBy.str(), QStringLiteral("fhoffmann"));
    EXPECT_EQ(list[2].changedAt, QDateTime(QDate(2024, 5, 3), QTime(14, 41, 12), Qt::UTC));
    SpCondition condition;
    ASSERT_EQ(SpTransitionsOf(manager.get())->mhLoadCondition(list[2].id, condition), S_OK);
    EXPECT_EQ(toText(condition.records),
              QStringLiteral("3 2 [Approved||Yes] 4 139\n"
                             "3 2 [Due Date||>=2024-01-01] 5 160\n"
                             "3 2 [Status||!=open] 1 160\n"
                             "2 0 [||] 0 0\n"
                             "4 9 [Group||4] 1 100\n"
                             "4 9 [Group||7] 1 100\n"
                             "4 8 [User|has left the company|9999] 1 100\n"
                             "2 0 [||] 0 0\n"
                             "4 2 [Weight|kg|250] 3 124\n"
                             "4 2 [Safety Relevant||No] 4 139\n"));
}

TEST_F(Sample, NeverOverwrites)
{
    database.run({QStringLiteral("DELETE FROM transitions"),
                  QStringLiteral("UPDATE users SET full_name = 'mine' WHERE id = 3")});
    const QByteArray before = database.bytes();
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_FALSE);
    EXPECT_EQ(database.bytes(), before);
}

TEST(SampleBeside, AnyContentIsLeftAlone)
{
    for (const char* sql :
         {"INSERT INTO card_variables (name, type) VALUES ('mine', 1)",
          "INSERT INTO workflows (name) VALUES ('mine')",
          "INSERT INTO users (login) VALUES ('mine')",
          "INSERT INTO user_groups (name) VALUES ('mine')",
          "INSERT INTO document_types (name) VALUES ('mine')",
          "INSERT INTO user_settings VALUES (1, 24, '1')", "UPDATE users SET login = 'ADMIN'",
          "UPDATE users SET full_name = 'The Boss'", "UPDATE users SET id = 2",
          "DELETE FROM users"}) {
        const TempDatabase database;
        (void)database.connected();
        database.run({QString::fromLatin1(sql)});
        const QStringList before = database.everything();
        EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_FALSE) << sql;
        EXPECT_EQ(database.everything(), before) << sql;
    }
}

TEST(SampleBeside, ADatabaseWithoutContentIsFilled)
{
    const TempDatabase database;
    (void)database.connected();
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    EXPECT_EQ(database.value(QStringLiteral("SELECT count(*) FROM users")), QStringLiteral("60"));
}

} // namespace
} // namespace condtree::test
