#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>

#include <gtest/gtest.h>

#include <QSqlDatabase>

#include <pwd.h>
#include <thread>
#include <unistd.h>

namespace condtree::test {
namespace {

QString loginOf(const ManagerPtr& manager)
{
    SpConnectInfo info;
    EXPECT_TRUE(manager->mbGetConnectInfo(info));
    EXPECT_EQ(info.mlNumber, -1);
    return info.moStrings[5];
}

HRESULT resultOf(const TempDatabase& database, const QString& user)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(database.url(), user, &hr));
    EXPECT_EQ(manager == nullptr, FAILED(hr));
    return hr;
}

TEST(Connecting, MakesAMissingDatabaseThatKnowsTheAdministrator)
{
    const TempDatabase database;
    const ManagerPtr manager = database.connected(QString::fromLatin1("admin"));
    ASSERT_NE(manager, nullptr);
    EXPECT_EQ(loginOf(manager), QStringLiteral("admin"));
    EXPECT_EQ(database.rows(QStringLiteral("SELECT id, login, full_name FROM users")),
              QStringList{QStringLiteral("1|admin|Administrator")});
}

TEST(Connecting, MayBeAskedForNoResult)
{
    const TempDatabase database;
    const ManagerPtr manager(SpConnect(database.url(), QStringLiteral("admin"), nullptr));
    EXPECT_NE(manager, nullptr);
    EXPECT_EQ(SpConnect(QString(), QString(), nullptr), nullptr);
}

TEST(Connecting, FindsTheUserWhateverTheCaseOfTheName)
{
    const TempDatabase database;
    (void)database.connected();
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (2, 'Ägnes.Öz')")});
    EXPECT_EQ(loginOf(database.connected(QStringLiteral("ADMIN"))), QStringLiteral("admin"));
    EXPECT_EQ(loginOf(database.connected(QStringLiteral("ägnes.öZ"))), QStringLiteral("Ägnes.Öz"));
}

TEST(Connecting, PrefersTheExactNameThenTheLowestId)
{
    const TempDatabase database;
    (void)database.connected();
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (7, 'ÉVE'), (8, 'éve')")});
    EXPECT_EQ(loginOf(database.connected(QStringLiteral("éve"))), QStringLiteral("éve"));
    EXPECT_EQ(loginOf(database.connected(QStringLiteral("Éve"))), QStringLiteral("ÉVE"));
}

TEST(Connecting, AsAnUnknownUserIsRefused)
{
    const TempDatabase database;
    (void)database.connected();
    for (const QString& name : {QStringLiteral("nobody"), QStringLiteral("admin "),
                                QStringLiteral("' OR 1=1 --"), QStringLiteral("Administrator"),
                                QString(QChar(0xD800)), QStringLiteral("admin") + QChar(0)})
        EXPECT_EQ(resultOf(database, name), static_cast<HRESULT>(0x80040204U))
            << name.toStdString();
}

TEST(Connecting, WithoutANameTakesTheUserOfTheOperatingSystem)
{
    const TempDatabase database;
    (void)database.connected();
    database.run({QStringLiteral("UPDATE users SET login = 'first'")});
    EXPECT_EQ(loginOf(database.connected(QString())), QStringLiteral("first"));
    const passwd* const entry = getpwuid(geteuid());
    if (entry == nullptr) // as in some containers
        GTEST_SKIP() << "not checked further: the system has no name for user " << geteuid();
    const QString system = QString::fromLocal8Bit(entry->pw_name).toUpper();
    const QString quoted = QString(system).replace(u'\'', QStringLiteral("''"));
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (5, '%1')").arg(quoted)});
    EXPECT_EQ(loginOf(database.connected(QString())), system);
}

TEST(Connecting, WithoutANameTakesTheFirstUserWhereTheSystemsIsUnknown)
{
    const TempDatabase database;
    (void)database.connected();
    database.run({QStringLiteral("UPDATE users SET id = 9, login = 'nobody at all'"),
                  QStringLiteral("INSERT INTO users (id, login) VALUES (5, 'a b c')")});
    EXPECT_EQ(loginOf(database.connected(QString())), QStringLiteral("a b c"));
    EXPECT_EQ(loginOf(database.connected(QStringLiteral(""))), QStringLiteral("a b c"));
}

TEST(Connecting, ToADatabaseWithoutUsersIsRefused)
{
    const TempDatabase database;
    (void)database.connected();
    database.run({QStringLiteral("DELETE FROM users")});
    EXPECT_EQ(resultOf(database, QString()), static_cast<HRESULT>(0x80040204U));
}

TEST(Connecting, GivesAManagerWithEveryProcedureAndNoOther)
{
    const TempDatabase database;
    const ManagerPtr manager = database.connected();
    for (int id = 0; id < 64; ++id) {
        const bool isKnown = id == 2 || id == 23 || id == 27 || id == 40 || id == 41 || id == 49;
        SpProc* proc = manager->mpoGetProc(static_cast<SPID>(id));
        EXPECT_EQ(proc != nullptr, isKnown) << id;
        EXPECT_EQ(proc, manager->mpoGetProc(static_cast<SPID>(id))) << id;
    }
    EXPECT_NE(
        dynamic_cast<SpUpdateVariableDefinition*>(manager->mpoGetProc(SPID_VARIABLE_DEFINITION)),
        nullptr);
    EXPECT_NE(dynamic_cast<SpUser*>(manager->mpoGetProc(SPID_USER)), nullptr);
    EXPECT_NE(dynamic_cast<SpWorkflow*>(manager->mpoGetProc(SPID_WORKFLOW)), nullptr);
    EXPECT_NE(dynamic_cast<SpUserMgr*>(manager->mpoGetProc(SPID_USER_MGR)), nullptr);
    EXPECT_NE(dynamic_cast<SpSettings*>(manager->mpoGetProc(SPID_SETTINGS)), nullptr);
    EXPECT_NE(dynamic_cast<SpDocType*>(manager->mpoGetProc(SPID_DOC_TYPE)), nullptr);
}

class ForeignManager final : public SpMgr {
public:
    SpProc* mpoGetProc(SPID) override { return nullptr; }
    bool mbGetConnectInfo(SpConnectInfo&) override { return false; }
};

TEST(Connecting, GivesTransitionsToOurManagersOnly)
{
    const TempDatabase database;
    EXPECT_NE(SpTransitionsOf(database.connected().get()), nullptr);
    EXPECT_EQ(SpTransitionsOf(nullptr), nullptr);
    const ManagerPtr foreign(new ForeignManager);
    EXPECT_EQ(SpTransitionsOf(foreign.get()), nullptr);
}

TEST(Connecting, LeavesNoConnectionBehind)
{
    const TempDatabase database;
    const QStringList before = QSqlDatabase::connectionNames();
    {
        const ManagerPtr one = database.connected();
        const ManagerPtr two = database.connected();
        EXPECT_EQ(QSqlDatabase::connectionNames().size(), before.size() + 2);
    }
    EXPECT_EQ(resultOf(database, QStringLiteral("nobody")), static_cast<HRESULT>(0x80040204U));
    EXPECT_EQ(QSqlDatabase::connectionNames(), before);
}

TEST(Connecting, BindsTheProceduresToTheirThreadButNotTheReferences)
{
    const TempDatabase database;
    ManagerPtr manager = database.connected();
    auto& users = procOf<SpUserMgr>(manager, SPID_USER_MGR);
    const ExpectWarning log(QStringLiteral("thread"));
    std::thread([&] {
        AutoLst<Lst<SpuLightData*>> list;
        EXPECT_EQ(users.mhGetUsers(list, 0, true), E_UNEXPECTED);
        EXPECT_TRUE(list.IsEmpty());
        EXPECT_EQ(manager->AddRef(), 2);
        EXPECT_EQ(manager->Release(), 1);
        manager.reset(); // the last reference, on another thread
    }).join();
    EXPECT_EQ(QSqlDatabase::connectionNames(), QStringList());
}

TEST(Connecting, ByManyAtOnceToAMissingDatabaseMakesItOnce)
{
    const TempDatabase database;
    const QString url = SpSqliteUrl(database.path()) + QStringLiteral("?busy_timeout=60000");
    std::vector<std::thread> threads;
    std::vector<HRESULT> results(4, E_FAIL);
    for (HRESULT& result : results) {
        threads.emplace_back([&url, &result] {
            const ManagerPtr manager(SpConnect(url, QStringLiteral("admin"), &result));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(results, std::vector<HRESULT>(4, S_OK));
    EXPECT_EQ(database.value(QStringLiteral("SELECT count(*) FROM users")), QStringLiteral("1"));
}

} // namespace
} // namespace condtree::test
