#include "TempDatabase.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <rapidcheck/gtest.h>

#include <QDateTime>

#include <limits>

namespace condtree::test {
namespace {

constexpr auto kNoAccess = static_cast<HRESULT>(0x80040207U);

/// A workflow with two states and two transitions, 11 and 12, without conditions.
const QStringList kWorkflow = {
    QStringLiteral("INSERT INTO workflows (id, name) VALUES (1, 'Change')"),
    QStringLiteral("INSERT INTO states (id, workflow_id, name) VALUES (1, 1, 'A'), (2, 1, 'B')"),
    QStringLiteral("INSERT INTO transitions (id, workflow_id, name, from_state_id, to_state_id) "
                   "VALUES (12, 1, 'back', 2, 1), (11, 1, 'forth', 1, 2)"),
};

class Transitions : public testing::Test {
protected:
    void SetUp() override { ASSERT_NE(manager, nullptr); }

    SpTransitions& transitions() { return *SpTransitionsOf(manager.get()); }
    SpCondition loaded(LONG id)
    {
        SpCondition condition;
        EXPECT_EQ(transitions().mhLoadCondition(id, condition), S_OK);
        return condition;
    }

    TempDatabase database;
    ManagerPtr manager = [this] {
        ManagerPtr made = database.connected();
        database.run(kWorkflow);
        return made;
    }();
};

const std::vector<SpConditionRecord> kCondition = {
    {3, 2, SpStr(u"Author"), SpStr(u"extra"), SpStr(u"!=open"), 1, 160},
    {2, 0, SpStr(), SpStr(), SpStr(), 0, 0},
    {4, 7, SpStr(u"Child Reference State"), SpStr(), SpStr(u"-12"), 1, 100},
};

TEST_F(Transitions, AreListedByWorkflowAndIdWithWhatIsKnownOfThem)
{
    database.run({
        QStringLiteral("INSERT INTO workflows (id, name) VALUES (2, 'Archive')"),
        QStringLiteral("INSERT INTO states (id, workflow_id, name) VALUES (3, 2, 'C')"),
        QStringLiteral("INSERT INTO transitions VALUES (5, 2, 'loop', 3, 3, 8, 'eve', "
                       "'2024-05-06T07:08:09.010Z')"),
    });
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(12, kCondition, 1, report), S_OK);
    std::vector<SpTransition> list(1);
    ASSERT_EQ(transitions().mhGetTransitions(list), S_OK);
    QStringList found;
    for (const SpTransition& each : list) {
        found.append(
            QStringLiteral("%1 %2/%3 %4-%5 %6 [%7] v%8")
                .arg(each.id)
                .arg(each.workflow.str(), each.name.str(), each.fromState.str(), each.toState.str())
                .arg(each.records)
                .arg(each.changedBy.str())
                .arg(each.version));
    }
    EXPECT_EQ(found, (QStringList{QStringLiteral("11 Change/forth A-B 0 [] v1"),
                                  QStringLiteral("12 Change/back B-A 3 [admin] v2"),
                                  QStringLiteral("5 Archive/loop C-C 0 [eve] v8")}));
    EXPECT_TRUE(list[0].changedAt.isNull());
    const QDateTime now = QDateTime::currentDateTimeUtc();
    EXPECT_EQ(list[1].changedAt.timeSpec(), Qt::UTC);
    EXPECT_LE(list[1].changedAt, now);
    EXPECT_LT(list[1].changedAt.secsTo(now), 300);
    EXPECT_EQ(list[2].changedAt, QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9, 10), Qt::UTC));
}

TEST_F(Transitions, AnEmptyConditionHasNoRecords)
{
    EXPECT_TRUE(loaded(11).records.empty());
    EXPECT_EQ(loaded(11).version, 1);
}

TEST_F(Transitions, ASavedConditionComesBackExactly)
{
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), S_OK);
    EXPECT_EQ(report.version, 2);
    EXPECT_EQ(report.message, QString());
    EXPECT_EQ(report.row, -1);
    const SpCondition condition = loaded(11);
    EXPECT_EQ(toText(condition.records), toText(kCondition));
    EXPECT_EQ(condition.version, 2);
    EXPECT_TRUE(loaded(12).records.empty()) << "another transition has its own";
}

TEST_F(Transitions, SavingReplacesAllRecordsAndMayEmptyACondition)
{
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), S_OK);
    ASSERT_EQ(transitions().mhSaveCondition(11, {kCondition[2]}, report.version, report), S_OK);
    EXPECT_EQ(toText(loaded(11).records), toText({kCondition[2]}));
    ASSERT_EQ(transitions().mhSaveCondition(11, {}, report.version, report), S_OK);
    EXPECT_EQ(report.version, 4);
    EXPECT_TRUE(loaded(11).records.empty());
}

TEST_F(Transitions, AnUnknownTransitionIsNeitherLoadedNorSaved)
{
    SpCondition condition{kCondition, 77};
    EXPECT_EQ(transitions().mhLoadCondition(99, condition), kNoAccess);
    EXPECT_EQ(condition.version, 77) << "a failure leaves the condition alone";
    EXPECT_EQ(condition.records, kCondition);
    SpSaveReport report;
    EXPECT_EQ(transitions().mhSaveCondition(99, kCondition, 1, report), kNoAccess);
    EXPECT_EQ(database.value(QStringLiteral("SELECT count(*) FROM condition_records")),
              QStringLiteral("0"));
}

TEST_F(Transitions, WhoSavedInBetweenIsToldAndNothingIsWritten)
{
    database.run({QStringLiteral("INSERT INTO users (id, login) VALUES (2, 'éve %1 %2')")});
    const ManagerPtr other = database.connected(QStringLiteral("ÉVE %1 %2"));
    SpSaveReport otherReport;
    ASSERT_EQ(SpTransitionsOf(other.get())->mhSaveCondition(11, {kCondition[1]}, 1, otherReport),
              S_OK);
    const QStringList before = database.everything();

    SpSaveReport report;
    EXPECT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), SP_E_CHANGED);
    EXPECT_EQ(SP_E_CHANGED, static_cast<HRESULT>(0x80040501U));
    EXPECT_EQ(database.everything(), before);
    EXPECT_EQ(report.version, 2);
    EXPECT_EQ(report.changedBy.str(), QStringLiteral("éve %1 %2"));
    EXPECT_LT(qAbs(report.changedAt.secsTo(QDateTime::currentDateTimeUtc())), 300);
    EXPECT_EQ(report.message,
              QStringLiteral("The condition was saved by éve %1 %2 on ")
                  + report.changedAt.toString(QStringLiteral("yyyy-MM-dd 'at' HH:mm:ss"))
                  + QStringLiteral(" UTC, after it was loaded; your changes were not saved."));

    // Loaded again, it may be saved over.
    EXPECT_EQ(transitions().mhSaveCondition(11, kCondition, loaded(11).version, report), S_OK);
    EXPECT_EQ(report.version, 3);
    EXPECT_EQ(report.changedBy.str(), QString()) << "a report is filled anew";
    EXPECT_EQ(report.message, QString());
}

TEST_F(Transitions, ADeletedUserIsStillNamedAndAnUnknownOneIsSomebodyElse)
{
    database.run({QStringLiteral("UPDATE transitions SET version = 4 WHERE id = 12"),
                  QStringLiteral("UPDATE transitions SET version = 5, changed_by = 'left' "
                                 "WHERE id = 11")});
    SpSaveReport report;
    EXPECT_EQ(transitions().mhSaveCondition(12, kCondition, 1, report), SP_E_CHANGED);
    EXPECT_EQ(report.message,
              QStringLiteral("The condition was saved by somebody else after it was loaded; "
                             "your changes were not saved."));
    EXPECT_TRUE(report.changedAt.isNull());
    EXPECT_EQ(transitions().mhSaveCondition(11, kCondition, 9, report), SP_E_CHANGED);
    EXPECT_EQ(report.changedBy.str(), QStringLiteral("left"));
    EXPECT_EQ(report.version, 5);

    database.run({QStringLiteral("UPDATE transitions SET changed_by = 'two' || char(10) || 'lines' "
                                 "WHERE id = 11")});
    EXPECT_EQ(transitions().mhSaveCondition(11, kCondition, 9, report), SP_E_CHANGED);
    EXPECT_EQ(report.message,
              QStringLiteral("The condition was saved by two lines after it was loaded; "
                             "your changes were not saved."));
}

TEST_F(Transitions, TwoManagersOnOneDatabaseSeeEachOthersConditions)
{
    const ManagerPtr other = database.connected();
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), S_OK);
    SpCondition seen;
    ASSERT_EQ(SpTransitionsOf(other.get())->mhLoadCondition(11, seen), S_OK);
    EXPECT_EQ(toText(seen.records), toText(kCondition));
    ASSERT_EQ(SpTransitionsOf(other.get())->mhSaveCondition(11, {}, seen.version, report), S_OK);
    EXPECT_TRUE(loaded(11).records.empty());
}

TEST_F(Transitions, AHundredThousandRecordsComeBackInOrder)
{
    std::vector<SpConditionRecord> many;
    for (LONG i = 0; i < 100'000; ++i)
        many.push_back({i % 10 == 0 ? 2 : 4, 2, SpStr(QString::number(i)), SpStr(),
                        SpStr(QStringLiteral("value")), 1, 100});
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(11, many, 1, report), S_OK);
    EXPECT_TRUE(loaded(11).records == many);
    std::vector<SpTransition> list;
    ASSERT_EQ(transitions().mhGetTransitions(list), S_OK);
    EXPECT_EQ(list[0].records, 100'000);
}

TEST_F(Transitions, ARecordThatSomebodyTamperedWithFailsTheLoad)
{
    SpSaveReport report;
    ASSERT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), S_OK);
    {
        RawConnection raw(database.path());
        ASSERT_TRUE(raw.run(QStringLiteral("PRAGMA ignore_check_constraints = ON")));
        ASSERT_TRUE(raw.run(QStringLiteral(
            "UPDATE condition_records SET operator = 5000000000 WHERE position = 1")));
    }
    const ExpectWarning log(QStringLiteral("holds no number that fits"));
    SpCondition condition{{}, 77};
    EXPECT_EQ(transitions().mhLoadCondition(11, condition), kNoAccess);
    EXPECT_EQ(condition.version, 77);
}

rc::Gen<QString> anyText()
{
    const auto point = rc::gen::suchThat(
        rc::gen::oneOf(rc::gen::inRange<char32_t>(1, 0x80), rc::gen::inRange<char32_t>(1, 0x10000),
                       rc::gen::element<char32_t>(0xFEFF, 0xFFFE, 0xFFFF, 0xFFFD, 0x10FFFF),
                       rc::gen::inRange<char32_t>(0x10000, 0x110000)),
        [](char32_t c) { return c < 0xD800 || c > 0xDFFF; });
    return rc::gen::map(rc::gen::container<std::u32string>(point),
                        [](const std::u32string& text) { return QString::fromStdU32String(text); });
}

rc::Gen<std::vector<SpConditionRecord>> anyRecords()
{
    const auto number = rc::gen::oneOf(
        rc::gen::inRange<LONG>(-5, 200), rc::gen::arbitrary<LONG>(),
        rc::gen::element<LONG>(std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
    const auto text = rc::gen::construct<SpStr>(anyText());
    return rc::gen::container<std::vector<SpConditionRecord>>(
        rc::gen::construct<SpConditionRecord>(number, number, text, text, text, number, number));
}

TEST_F(Transitions, AnyNumbersAndTextsComeBackAsTheyWere)
{
    std::int64_t version = 1;
    EXPECT_TRUE(rc::check("records come back", [&] {
        const auto records = *anyRecords();
        SpSaveReport report;
        RC_ASSERT(transitions().mhSaveCondition(11, records, version, report) == S_OK);
        RC_ASSERT(report.version == version + 1);
        version = report.version;
        RC_ASSERT(loaded(11).records == records);
    }));
}

TEST_F(Transitions, AnyCodeUnitsComeBackOrAreRefused)
{
    std::int64_t version = 1;
    EXPECT_TRUE(rc::check("texts come back or are refused", [&] {
        const auto unit = rc::gen::oneOf(rc::gen::inRange<std::uint16_t>(0, 3),
                                         rc::gen::inRange<std::uint16_t>(0xD7FF, 0xE001),
                                         rc::gen::arbitrary<std::uint16_t>());
        QString text;
        for (const std::uint16_t each : *rc::gen::container<std::vector<std::uint16_t>>(unit))
            text += QChar(each);
        const bool survives = text.isValidUtf16() && !text.contains(QChar(0));
        const std::vector<SpConditionRecord> records{{3, 2, SpStr(text), {}, SpStr(text), 1, 1}};
        SpSaveReport report;
        const HRESULT hr = transitions().mhSaveCondition(11, records, version, report);
        RC_ASSERT(hr == (survives ? S_OK : SP_E_BAD_TEXT));
        if (SUCCEEDED(hr)) {
            version = report.version;
            RC_ASSERT(loaded(11).records == records);
        }
    }));
}

TEST_F(Transitions, AReportNamesNobodyWhenItCannotReadWhoSaved)
{
    database.run({QStringLiteral("ALTER TABLE transitions RENAME TO strict_transitions"),
                  QStringLiteral("CREATE TABLE transitions AS SELECT * FROM strict_transitions"),
                  QStringLiteral("UPDATE transitions SET version = 9, changed_by = x'41'")});
    const ExpectWarning log(QStringLiteral("holds no text"));
    SpSaveReport report;
    EXPECT_EQ(transitions().mhSaveCondition(11, kCondition, 1, report), kNoAccess);
    EXPECT_EQ(report.version, 0);
    EXPECT_EQ(report.message, QString());
}

} // namespace
} // namespace condtree::test
