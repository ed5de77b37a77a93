#include "ReadAll.h"
#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <rapidcheck/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlQuery>

#include <algorithm>

namespace condtree::test {
namespace {

constexpr auto kCannotOpen = static_cast<HRESULT>(0x80040206U);
constexpr auto kLocked = static_cast<HRESULT>(0x8004020AU);

HRESULT resultOf(const QString& url)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(url, QStringLiteral("admin"), &hr));
    return hr;
}

class Faults : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK); }
    TempDatabase database;
};

TEST_F(Faults, AreNoneInAGoodDatabase)
{
    EXPECT_EQ(readAll(database.connected()), everythingRead(S_OK));
}

TEST_F(Faults, AMissingFolderCannotBeOpened)
{
    const ExpectWarning log(QStringLiteral("opening failed"));
    const QString url = SpSqliteUrl(database.folder() + QStringLiteral("/missing/x.db"));
    EXPECT_EQ(resultOf(url), kCannotOpen);
    EXPECT_EQ(SpMakeSampleDatabase(url), kCannotOpen);
    EXPECT_FALSE(QFile::exists(database.folder() + QStringLiteral("/missing")));
}

TEST_F(Faults, AFolderCannotBeOpened)
{
    const ExpectWarning log(QStringLiteral("opening failed"));
    EXPECT_EQ(resultOf(SpSqliteUrl(database.folder())), kCannotOpen);
}

TEST_F(Faults, AFileThatIsNoDatabaseCannotBeOpened)
{
    const QByteArray contents[] = {
        QByteArray("just a text"),
        QByteArray(5000, 'x'),
        QByteArray(100'000, '\0'),
        QByteArray("SQLite format 3\0", 16),
    };
    for (const QByteArray& content : contents) {
        database.setBytes(content);
        const ExpectWarning log(QStringLiteral("failed"));
        EXPECT_EQ(resultOf(database.url()), kCannotOpen) << content.left(20).toStdString();
        EXPECT_EQ(SpMakeSampleDatabase(database.url()), kCannotOpen);
        EXPECT_EQ(database.bytes(), content);
    }
}

TEST_F(Faults, ATruncatedDatabaseCannotBeOpened)
{
    const QByteArray whole = database.bytes();
    for (const qsizetype size : {whole.size() - 4096, whole.size() / 2, whole.size() / 4,
                                 qsizetype{4096}, qsizetype{512}, qsizetype{2}}) {
        database.setBytes(whole.left(size));
        const ExpectWarning log(QStringLiteral("failed"));
        EXPECT_EQ(resultOf(database.url()), kCannotOpen) << size;
    }
}

TEST_F(Faults, AHeaderOfAnotherFormatCannotBeOpened)
{
    QByteArray bytes = database.bytes();
    bytes[0] = 'X';
    database.setBytes(bytes);
    const ExpectWarning log(QStringLiteral("not a database"));
    EXPECT_EQ(resultOf(database.url()), kCannotOpen);
}

TEST_F(Faults, ADatabaseThatIsDamagedUnderAConnectionFailsItsProcedures)
{
    const ManagerPtr manager = database.connected();
    {
        QFile file(database.path());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(24)); // the change counter, so that nothing cached is trusted
        file.write(QByteArray(4, 'x'));
        ASSERT_TRUE(file.seek(4096));
        file.write(QByteArray(static_cast<int>(file.size() - 4096), '\x55'));
    }
    const ExpectWarning log(QStringLiteral("failed"));
    for (const HRESULT hr : readAll(manager))
        EXPECT_EQ(hr, kCannotOpen);
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kCannotOpen);
}

TEST_F(Faults, DamageInTheMidstOfAConditionLoadsNothingRatherThanHalf)
{
    const ManagerPtr manager = database.connected();
    SpTransitions& transitions = *SpTransitionsOf(manager.get());
    SpSaveReport report;
    std::vector<SpConditionRecord> records(3000);
    for (std::size_t i = 0; i < records.size(); ++i)
        records[i].value = SpStr(QStringLiteral("marker%1.").arg(i));
    ASSERT_EQ(transitions.mhSaveCondition(1, records, 1, report), S_OK);
    QByteArray bytes = database.bytes();
    const qsizetype place = bytes.indexOf("marker2500.");
    ASSERT_GT(place, 0);
    bytes[place / 4096 * 4096] = '\x55'; // no kind of page
    database.setBytes(bytes);

    const ManagerPtr fresh = database.connected();
    SpCondition condition{{}, 77};
    const ExpectWarning log(QStringLiteral("reading failed"));
    EXPECT_EQ(SpTransitionsOf(fresh.get())->mhLoadCondition(1, condition), kCannotOpen);
    EXPECT_EQ(condition.version, 77);
    EXPECT_TRUE(condition.records.empty());
}

TEST_F(Faults, ADatabaseThatIsRemovedUnderAConnectionCannotBeSavedTo)
{
    const ManagerPtr manager = database.connected();
    ASSERT_TRUE(QFile::remove(database.path()));
    const ExpectWarning log(QStringLiteral("failed"));
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kCannotOpen);
    EXPECT_FALSE(QFile::exists(database.path()));
}

/// Whatever bytes are damaged, procedures answer or fail; they neither crash nor invent.
TEST_F(Faults, RandomDamageIsSurvived)
{
    const QByteArray whole = database.bytes();
    EXPECT_TRUE(rc::check("damage is survived", [&] {
        QByteArray damaged = whole;
        const auto places = *rc::gen::container<std::vector<int>>(
            rc::gen::inRange(0, static_cast<int>(whole.size())));
        for (const int place : places)
            damaged[place] = *rc::gen::arbitrary<char>();
        database.setBytes(damaged);
        const ExpectWarning log(QString{}); // whatever the database says, if anything
        qWarning("a damaged database follows");
        HRESULT hr = E_FAIL;
        const ManagerPtr manager(SpConnect(database.url(), QStringLiteral("admin"), &hr));
        RC_ASSERT((manager != nullptr) == SUCCEEDED(hr));
        if (manager) {
            for (const LONG id : {1, 3, 4}) {
                SpCondition condition;
                const HRESULT loading =
                    SpTransitionsOf(manager.get())->mhLoadCondition(id, condition);
                RC_ASSERT(SUCCEEDED(loading) || condition.records.empty());
            }
        }
    }));
}

TEST_F(Faults, ALockedDatabaseIsLocked)
{
    RawConnection other(database.path());
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE")));
    {
        const ExpectWarning log(QStringLiteral("database is locked"));
        EXPECT_EQ(resultOf(database.url()), kLocked);
        EXPECT_EQ(SpMakeSampleDatabase(database.url()), kLocked);
    }
    ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK")));
    const ManagerPtr manager = database.connected();
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE")));
    {
        const ExpectWarning log(QStringLiteral("database is locked"));
        AutoLst<Lst<SpuLightData*>> users;
        EXPECT_EQ(procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(users, 0, true), kLocked);
        EXPECT_TRUE(users.IsEmpty());
        SpCondition condition;
        EXPECT_EQ(SpTransitionsOf(manager.get())->mhLoadCondition(1, condition), kLocked);
    }
    ASSERT_TRUE(other.run(QStringLiteral("COMMIT")));
    EXPECT_EQ(readAll(manager), everythingRead(S_OK)) << "tried again, it works";
}

TEST_F(Faults, AWriterElsewhereLocksSavingButNotLoading)
{
    const ManagerPtr manager = database.connected();
    RawConnection other(database.path());
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    EXPECT_EQ(readAll(manager), everythingRead(S_OK));
    SpSaveReport report;
    {
        const ExpectWarning log(QStringLiteral("database is locked"));
        EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kLocked);
    }
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), S_FALSE) << "looking needs no lock";
    ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK")));
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), S_OK);
}

TEST_F(Faults, AReaderElsewhereHoldsUpTheCommitAndNothingIsWritten)
{
    const ManagerPtr manager = database.connected();
    RawConnection other(database.path());
    QSqlQuery reading(other.handle());
    ASSERT_TRUE(reading.exec(QStringLiteral("SELECT * FROM users")));
    ASSERT_TRUE(reading.next()); // a shared lock, until the reading is over
    SpSaveReport report;
    {
        const ExpectWarning log(QStringLiteral("database is locked"));
        EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kLocked);
        EXPECT_EQ(report.version, 0);
    }
    reading.finish();
    EXPECT_EQ(database.value(QStringLiteral("SELECT count(*) FROM condition_records WHERE "
                                            "transition_id = 1")),
              QStringLiteral("8"));
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), S_OK);
}

TEST_F(Faults, ALockIsWaitedForAsLongAsTheUrlSays)
{
    const ManagerPtr manager(
        SpConnect(SpSqliteUrl(database.path()) + QStringLiteral("?busy_timeout=150"),
                  QStringLiteral("admin"), nullptr));
    ASSERT_NE(manager, nullptr);
    RawConnection other(database.path());
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN IMMEDIATE")));
    const ExpectWarning log(QStringLiteral("database is locked"));
    QElapsedTimer timer;
    timer.start();
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report), kLocked);
    EXPECT_GE(timer.elapsed(), 100);
    EXPECT_LT(timer.elapsed(), 60'000);
}

} // namespace
} // namespace condtree::test
