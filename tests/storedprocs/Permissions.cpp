#include "ReadAll.h"
#include "TempDatabase.h"
#include "Unprivileged.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

constexpr auto kPermission = static_cast<HRESULT>(0x80040203U);
constexpr auto kCannotOpen = static_cast<HRESULT>(0x80040206U);

HRESULT resultOf(const QString& url)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(url, QStringLiteral("admin"), &hr));
    return hr;
}

class Permissions : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        if (const QString why = whyPermissionsDoNotBind(database.folder()); !why.isEmpty())
            GTEST_SKIP() << "not checked: " << why.toStdString();
    }
    TempDatabase database;
};

TEST_F(Permissions, AReadOnlyDatabaseIsReadButNotSavedTo)
{
    setMode(database.path(), 0444);
    setMode(database.folder(), 0555);
    const QByteArray before = database.bytes();
    {
        const Unprivileged nobody;
        const ManagerPtr manager = database.connected();
        ASSERT_NE(manager, nullptr);
        EXPECT_EQ(readAll(manager), everythingRead(S_OK));
        const ExpectWarning log(QStringLiteral("readonly"));
        SpSaveReport report;
        EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kPermission);
        EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_FALSE);
    }
    EXPECT_EQ(database.bytes(), before);
    setMode(database.folder(), 0755);
}

TEST_F(Permissions, AFolderThatMayNotBeWrittenMakesItsDatabaseReadOnly)
{
    setMode(database.path(), 0666);
    setMode(database.folder(), 0555);
    {
        const Unprivileged nobody;
        const ManagerPtr manager = database.connected();
        ASSERT_NE(manager, nullptr);
        const ExpectWarning log(QStringLiteral("failed"));
        SpSaveReport report;
        EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kPermission);
        EXPECT_EQ(resultOf(SpSqliteUrl(database.folder() + QStringLiteral("/new.db"))),
                  kCannotOpen);
    }
    setMode(database.folder(), 0755);
}

TEST_F(Permissions, AnUnreadableDatabaseIsForbidden)
{
    setMode(database.path(), 0000);
    setMode(database.folder(), 0755);
    {
        const Unprivileged nobody;
        const ExpectWarning log(QStringLiteral("opening failed"));
        EXPECT_EQ(resultOf(database.url()), kPermission);
    }
    setMode(database.path(), 0644);
}

TEST_F(Permissions, AnOldDatabaseThatIsReadOnlyCannotBeBroughtUpToDate)
{
    database.run({QStringLiteral("DROP TABLE condition_records"),
                  QStringLiteral("DROP TABLE transitions"),
                  QStringLiteral("UPDATE schema_version SET version = 1")});
    setMode(database.path(), 0444);
    setMode(database.folder(), 0555);
    {
        const Unprivileged nobody;
        const ExpectWarning log(QStringLiteral("readonly"));
        EXPECT_EQ(resultOf(database.url()), kPermission);
    }
    setMode(database.folder(), 0755);
}

} // namespace
} // namespace condtree::test
