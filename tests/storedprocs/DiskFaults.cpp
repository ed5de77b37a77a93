#include "FullDisk.h"
#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

// What the library says of a disk that fails. The operating system really refuses to write.

const QString kFull = QStringLiteral("The disk is full; your changes were not saved.");
const QString kNotWritten =
    QStringLiteral("The database could not be written; your changes were not saved.");

/// A condition that needs more room than the sample's database has.
std::vector<SpConditionRecord> largeCondition()
{
    std::vector<SpConditionRecord> records(400);
    for (SpConditionRecord& record : records)
        record.value = SpStr(QString(300, u'v'));
    return records;
}

class DiskFaults : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK); }
    TempDatabase database;
};

TEST_F(DiskFaults, AWriteThatFailsAnywhereSavesNothingAndSaysSo)
{
    const ManagerPtr manager = database.connected();
    SpTransitions& transitions = *SpTransitionsOf(manager.get());
    const QStringList before = database.everything();
    const auto records = largeCondition();
    const qint64 size = database.bytes().size();
    int failures = 0;
    for (qint64 limit = 0; limit <= size + 100'000; limit += limit < 8192 ? 512 : 4096 * 3) {
        SpSaveReport report;
        HRESULT hr = S_OK;
        const ExpectWarning log(QString{});
        qWarning("the log of a save");
        {
            const SmallFiles small(limit);
            hr = transitions.mhSaveCondition(1, records, 1, report);
        }
        ASSERT_EQ(hr, E_FAIL) << limit;
        EXPECT_EQ(report.cause, SpSaveReport::Cause::NotWritten) << limit;
        EXPECT_EQ(report.message, kNotWritten) << limit;
        EXPECT_EQ(report.version, 0);
        ASSERT_EQ(database.everything(), before) << limit;
        ++failures;
    }
    EXPECT_GT(failures, 20);
    SpSaveReport report;
    EXPECT_EQ(transitions.mhSaveCondition(1, records, 1, report), S_OK);
    EXPECT_EQ(report.cause, SpSaveReport::Cause::None);
    EXPECT_EQ(report.message, QString());
}

TEST_F(DiskFaults, AReadNeedsNoRoom)
{
    const ManagerPtr manager = database.connected();
    const SmallFiles small(0);
    SpCondition condition;
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhLoadCondition(1, condition), S_OK);
    EXPECT_EQ(condition.records.size(), 8U);
}

TEST(DiskFaultsBeside, ADatabaseThatCannotBeMadeIsAFailure)
{
    const TempDatabase database;
    const ExpectWarning log(QStringLiteral("failed"));
    HRESULT hr = S_OK;
    const SmallFiles small(1024);
    EXPECT_EQ(SpConnect(database.url(), QStringLiteral("admin"), &hr), nullptr);
    EXPECT_EQ(hr, E_FAIL);
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), E_FAIL);
}

TEST_F(DiskFaults, AFullDiskSavesNothingAndIsNamedInOurWords)
{
    if (!fillUp(database.path()))
        GTEST_SKIP() << "not checked: the file system has no files that are large enough";
    const QStringList before = database.everything();
    const ManagerPtr manager = database.connected();
    ASSERT_NE(manager, nullptr);
    SpTransitions& transitions = *SpTransitionsOf(manager.get());
    SpSaveReport report;
    {
        const ExpectWarning log(QStringLiteral("database or disk is full"));
        EXPECT_EQ(transitions.mhSaveCondition(1, largeCondition(), 1, report), E_FAIL);
        EXPECT_EQ(log.count(), 1) << "nothing is tried behind the failure";
    }
    EXPECT_EQ(report.cause, SpSaveReport::Cause::DiskFull);
    EXPECT_EQ(report.message, kFull);
    EXPECT_EQ(report.version, 0);
    EXPECT_EQ(report.row, -1);
    EXPECT_EQ(database.everything(), before);
    EXPECT_EQ(transitions.mhSaveCondition(1, {}, 1, report), S_OK) << "less needs no room";
    EXPECT_EQ(report.cause, SpSaveReport::Cause::None);
    EXPECT_EQ(report.message, QString());
}

} // namespace
} // namespace condtree::test
