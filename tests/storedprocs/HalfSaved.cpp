#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

// Faults in the midst of a save, made by triggers: whatever fails and however, nothing is written.

struct Fault {
    const char* what;
    QString when; ///< What a trigger hangs on.
};

const Fault kFaults[] = {
    {"the records' deletion", QStringLiteral("BEFORE DELETE ON condition_records WHEN "
                                             "OLD.position = 2")},
    {"the first record",
     QStringLiteral("BEFORE INSERT ON condition_records WHEN NEW.position = 0")},
    {"a record in the middle",
     QStringLiteral("BEFORE INSERT ON condition_records WHEN NEW.position = 4")},
    {"behind a record in the middle",
     QStringLiteral("AFTER INSERT ON condition_records WHEN NEW.position = 4")},
    {"the last record", QStringLiteral("BEFORE INSERT ON condition_records WHEN NEW.position = 7")},
    {"the version", QStringLiteral("BEFORE UPDATE ON transitions")},
};

class HalfSaved : public testing::TestWithParam<const char*> {};

TEST_P(HalfSaved, NeverHappensWhateverFails)
{
    for (const Fault& fault : kFaults) {
        const TempDatabase database;
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        const ManagerPtr manager = database.connected();
        const QStringList before = database.everything();
        database.run(
            {QStringLiteral("CREATE TRIGGER fault %1 BEGIN SELECT RAISE(%2, 'injected'); END")
                 .arg(fault.when, QString::fromLatin1(GetParam()))});
        SpTransitions& transitions = *SpTransitionsOf(manager.get());
        SpCondition condition;
        ASSERT_EQ(transitions.mhLoadCondition(1, condition), S_OK);
        ASSERT_EQ(condition.records.size(), 8U);
        for (SpConditionRecord& record : condition.records)
            record.value = SpStr(u"changed");
        SpSaveReport report;
        {
            const ExpectWarning log(QStringLiteral("injected"));
            EXPECT_EQ(transitions.mhSaveCondition(1, condition.records, 1, report),
                      static_cast<HRESULT>(0x80040207U))
                << fault.what;
            EXPECT_EQ(log.count(), 1) << fault.what << ": nothing is tried behind the failure";
        }
        EXPECT_EQ(report.version, 0);
        EXPECT_EQ(report.message, QString()) << "what the database said is for the log";
        EXPECT_EQ(database.everything(), before) << fault.what;

        // The connection is none the worse for it.
        database.run({QStringLiteral("DROP TRIGGER fault")});
        EXPECT_EQ(transitions.mhSaveCondition(1, condition.records, 1, report), S_OK) << fault.what;
        EXPECT_EQ(report.version, 2);
    }
}

// ROLLBACK is what the database does by itself when its disk is full or fails.
INSTANTIATE_TEST_SUITE_P(Raise, HalfSaved, testing::Values("ABORT", "FAIL", "ROLLBACK"));

TEST(BrokenReference, IsNotCommitted)
{
    const TempDatabase database;
    ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
    const ManagerPtr manager = database.connected();
    const QStringList before = database.everything();
    database.run({QStringLiteral("CREATE TRIGGER orphan AFTER UPDATE ON transitions BEGIN "
                                 "INSERT INTO group_members VALUES (1, 999); END")});
    const ExpectWarning log(QStringLiteral("FOREIGN KEY"));
    SpSaveReport report;
    EXPECT_EQ(SpTransitionsOf(manager.get())->mhSaveCondition(1, {}, 1, report),
              static_cast<HRESULT>(0x80040207U));
    EXPECT_EQ(database.everything(), before);
}

} // namespace
} // namespace condtree::test
