#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

constexpr auto kCannotOpen = static_cast<HRESULT>(0x80040206U);

HRESULT resultOf(const TempDatabase& database)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(database.url(), QStringLiteral("admin"), &hr));
    return hr;
}

/// A table away, whatever refers to it.
QStringList without(const QString& table)
{
    return {QStringLiteral("PRAGMA foreign_keys = OFF"), QStringLiteral("DROP TABLE ") + table};
}

const QStringList kTables = {
    QStringLiteral("card_variables"), QStringLiteral("workflows"),
    QStringLiteral("states"),         QStringLiteral("users"),
    QStringLiteral("user_groups"),    QStringLiteral("group_members"),
    QStringLiteral("user_settings"),  QStringLiteral("document_types"),
    QStringLiteral("transitions"),    QStringLiteral("condition_records"),
};

TEST(LostTables, EachIsNamedAndTheDatabaseIsRefused)
{
    for (const QString& table : kTables) {
        const TempDatabase database;
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        database.run(without(table));
        const QByteArray before = database.bytes();
        const ExpectWarning log(QStringLiteral("has lost its table \"%1\"").arg(table));
        EXPECT_EQ(resultOf(database), kCannotOpen) << table.toStdString();
        EXPECT_EQ(log.count(), 1) << table.toStdString();
        EXPECT_EQ(SpMakeSampleDatabase(database.url()), kCannotOpen) << table.toStdString();
        EXPECT_EQ(database.bytes(), before) << table.toStdString();
    }
}

TEST(LostTables, AllOfThemAreNamed)
{
    const TempDatabase database;
    ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    database.run(without(QStringLiteral("user_settings")) + without(QStringLiteral("states")));
    const ExpectWarning one(QStringLiteral("\"user_settings\""));
    const ExpectWarning other(QStringLiteral("\"states\""));
    EXPECT_EQ(resultOf(database), kCannotOpen);
}

TEST(LostTables, AViewInTheirPlaceIsNoTable)
{
    const TempDatabase database;
    ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    database.run({QStringLiteral("PRAGMA foreign_keys = OFF"),
                  QStringLiteral("ALTER TABLE document_types RENAME TO kinds"),
                  QStringLiteral("CREATE VIEW document_types AS SELECT * FROM kinds")});
    const ExpectWarning log(QStringLiteral("\"document_types\""));
    EXPECT_EQ(resultOf(database), kCannotOpen);
}

TEST(LostTables, AreLostInAnOldDatabaseTooWhichIsNotBroughtUpToDate)
{
    const TempDatabase database;
    ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    database.run(without(QStringLiteral("condition_records"))
                 + without(QStringLiteral("transitions")) + without(QStringLiteral("user_groups"))
                 + QStringList{QStringLiteral("UPDATE schema_version SET version = 1")});
    const QByteArray before = database.bytes();
    const ExpectWarning log(QStringLiteral("\"user_groups\""));
    EXPECT_EQ(resultOf(database), kCannotOpen);
    EXPECT_EQ(log.count(), 1) << "version 1 had no transitions to lose";
    EXPECT_EQ(database.bytes(), before);
}

TEST(LostTables, AreFoundWhateverTheCaseOfTheirNamesAndBesideOthers)
{
    const TempDatabase database;
    ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    database.run({QStringLiteral("ALTER TABLE users RENAME TO people"),
                  QStringLiteral("ALTER TABLE people RENAME TO USERS"),
                  QStringLiteral("CREATE TABLE mine (name TEXT)")});
    EXPECT_EQ(resultOf(database), S_OK);
}

} // namespace
} // namespace condtree::test
