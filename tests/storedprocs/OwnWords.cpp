#include "LogCapture.h"
#include "TempDatabase.h"
#include "support/QtPrinters.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <QFile>

namespace condtree::test {
namespace {

// What the database says of a failure goes into the log, and nothing of it to a caller. The names
// in these databases are ones that nothing else has.

const QString kCategory = QStringLiteral("condtree.storedprocs: ");

/// All texts that a report holds.
QString textsOf(const SpSaveReport& report)
{
    return report.message + report.changedBy.str() + report.changedAt.toString();
}

/// Every entry of a log is of the library's category, and one of them holds the word.
void expectLogged(const QStringList& log, const QString& word)
{
    ASSERT_FALSE(log.isEmpty()) << word.toStdString();
    for (const QString& entry : log)
        EXPECT_TRUE(entry.startsWith(kCategory)) << entry.toStdString();
    EXPECT_TRUE(log.join(u'\n').contains(word)) << log.join(u'\n').toStdString();
}

class OwnWords : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        manager = database.connected();
        ASSERT_NE(manager, nullptr);
    }
    SpTransitions& transitions() { return *SpTransitionsOf(manager.get()); }
    TempDatabase database;
    ManagerPtr manager;
};

TEST_F(OwnWords, AFailedStatementIsLoggedAndNotReported)
{
    const struct {
        QString tampering;
        QString word;
        HRESULT result;
    } cases[] = {
        {QStringLiteral("CREATE TRIGGER quince AFTER INSERT ON condition_records BEGIN "
                        "SELECT RAISE(ABORT, 'medlar'); END"),
         QStringLiteral("medlar"), static_cast<HRESULT>(0x80040207U)},
        {QStringLiteral("CREATE TRIGGER quince AFTER INSERT ON condition_records BEGIN "
                        "INSERT INTO damson VALUES (1); END"),
         QStringLiteral("damson"), E_FAIL},
        {QStringLiteral("ALTER TABLE transitions RENAME COLUMN changed_by TO mirabelle"),
         QStringLiteral("changed_by"), E_FAIL},
        {QStringLiteral("DROP TABLE condition_records"), QStringLiteral("condition_records"),
         E_FAIL},
    };
    for (const auto& each : cases) {
        const TempDatabase tampered;
        ASSERT_EQ(SpMakeSampleDatabase(tampered.url()), S_OK);
        const ManagerPtr connection = tampered.connected();
        tampered.run({each.tampering});
        SpSaveReport report;
        QStringList log;
        {
            const LogCapture capture;
            EXPECT_EQ(SpTransitionsOf(connection.get())
                          ->mhSaveCondition(1, {SpConditionRecord{}}, 1, report),
                      each.result)
                << each.tampering.toStdString();
            log = capture.taken();
        }
        expectLogged(log, each.word);
        EXPECT_EQ(textsOf(report), QString()) << each.tampering.toStdString();
    }
}

TEST_F(OwnWords, ATableThatGoesUnderAConnectionIsAFailureThatOnlyTheLogExplains)
{
    database.run({QStringLiteral("PRAGMA foreign_keys = OFF"),
                  QStringLiteral("ALTER TABLE users RENAME TO damson")});
    AutoLst<Lst<SpuLightData*>> users;
    const LogCapture capture;
    EXPECT_EQ(procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(users, 0, true), E_FAIL);
    EXPECT_TRUE(users.IsEmpty());
    expectLogged(capture.taken(), QStringLiteral("no such table: users"));
}

TEST_F(OwnWords, TheFileOfADatabaseIsNoMatterForAReport)
{
    ASSERT_TRUE(QFile::remove(database.path()));
    SpSaveReport report;
    const LogCapture capture;
    EXPECT_EQ(transitions().mhSaveCondition(1, {}, 1, report), static_cast<HRESULT>(0x80040206U));
    expectLogged(capture.taken(), QStringLiteral("readonly"));
    EXPECT_EQ(textsOf(report), QString());
}

TEST_F(OwnWords, AnUnknownUserIsAResultAndNoText)
{
    database.run({QStringLiteral("UPDATE users SET login = 'medlar' WHERE id = 1")});
    const LogCapture capture;
    HRESULT hr = S_OK;
    EXPECT_EQ(SpConnect(database.url(), QStringLiteral("damson"), &hr), nullptr);
    EXPECT_EQ(hr, static_cast<HRESULT>(0x80040204U));
    EXPECT_FALSE(capture.taken().join(u'\n').contains(QStringLiteral("medlar")))
        << "who else there is, is nobody's business";
}

} // namespace
} // namespace condtree::test
