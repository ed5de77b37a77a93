// Random conditions, loaded and saved: the first save is what the rules predict, and nothing
// changes after it.
#include "ControlFixture.h"
#include "SavePredictor.h"

#include <rapidcheck/gtest.h>

#include <array>
#include <limits>

namespace condtree {

// Shown by RapidCheck when a property fails.
static void showValue(const TransCond& record, std::ostream& out)
{
    out << test::toText(record) << '\n';
}

} // namespace condtree

namespace rc {

template <>
struct Arbitrary<condtree::TransCond> {
    static Gen<condtree::TransCond> arbitrary()
    {
        using condtree::LONG;
        const auto number = gen::weightedOneOf<LONG>(
            {{1, gen::arbitrary<LONG>()},
             {1, gen::element<LONG>(std::numeric_limits<LONG>::min(),
                                    std::numeric_limits<LONG>::max(), -1, 0)}});
        const auto text = gen::weightedOneOf<std::string>(
            {{4, gen::element<std::string>(
                     "", "x", "5", "-12", "12", "13", "-13", "7", "3", "4", "99", "-2147483648",
                     "99999999999", "Yes", "yes", "No", "BOM", "Item", "%pump%", "%", "=a", "!=a",
                     "!a", "!", ">=5", "<x", " x ", "a_b", "[1]", "!= %x% ", "%%a%%", ">>=a",
                     "Author", "author", "WEIGHT", "Due", "Approved", "n/a")},
             {1, gen::string<std::string>()}});
        const auto qText = gen::map(text, [](const std::string& value) {
            return condtree::SpStr(QString::fromLatin1(value.data(), qsizetype(value.size())));
        });
        return gen::build<condtree::TransCond>(
            gen::set(&condtree::TransCond::lHostTag, number),
            gen::set(&condtree::TransCond::lIndex, number),
            gen::set(&condtree::TransCond::lRowKind,
                     gen::weightedOneOf<LONG>({{9, gen::element<LONG>(2, 3, 4)}, {1, number}})),
            gen::set(&condtree::TransCond::lCondType,
                     gen::weightedOneOf<LONG>({{9, gen::inRange<LONG>(1, 11)}, {1, number}})),
            gen::set(&condtree::TransCond::oName, qText),
            gen::set(&condtree::TransCond::oExtra, qText),
            gen::set(&condtree::TransCond::oValue, qText),
            gen::set(&condtree::TransCond::lArgType,
                     gen::weightedOneOf<LONG>({{9, gen::inRange<LONG>(0, 7)}, {1, number}})),
            gen::set(
                &condtree::TransCond::lOperator,
                gen::weightedOneOf<LONG>(
                    {{6, gen::inRange<LONG>(100, 140)}, {3, gen::just<LONG>(160)}, {1, number}})));
    }
};

} // namespace rc

namespace condtree::test {
namespace {

using Records = std::vector<TransCond>;

class RoundTrip : public ControlFixture {
protected:
    RoundTrip()
    {
        // Names with operators in them, so that shown names lose them, and a last variable of a
        // type.
        library->states.push_back({-13, QStringLiteral("Old"), QStringLiteral("Gone_"), {}, 0});
        library->users.push_back({5, QStringLiteral("!=x"), {}});
        initialize();
        m_world.variables = {{QStringLiteral("Author"), 1}, {QStringLiteral("Weight"), 2},
                             {QStringLiteral("Cost"), 3},   {QStringLiteral("Approved"), 4},
                             {QStringLiteral("Due"), 5},    {QStringLiteral("Title"), 1}};
        m_world.states = {{12, QStringLiteral("Release.Open")},
                          {13, QStringLiteral("Release.Done")},
                          {-13, QStringLiteral("Old.Gone_")}};
        m_world.users = {
            {7, QStringLiteral("smith")}, {8, QStringLiteral("jones")}, {5, QStringLiteral("!=x")}};
        m_world.groups = {{3, QStringLiteral("Designers")}, {4, QStringLiteral("Checkers")}};
    }

    Records roundTrip(const Records& records)
    {
        control->mvLoad(records);
        return savedRecords();
    }
    void check(const Records& records);

    PredictedWorld m_world;
};

bool isSame(const TransCond& a, const TransCond& b)
{
    return a.lRowKind == b.lRowKind && a.lCondType == b.lCondType && a.oName == b.oName
           && a.oExtra == b.oExtra && a.oValue == b.oValue && a.lArgType == b.lArgType
           && a.lOperator == b.lOperator;
}

bool isStrippedAgain(const TransCond& record)
{
    const QString value = record.oValue.str();
    return record.lRowKind != RowKindGroup
           && predictStripped(value, record.lArgType, record.lOperator) != value;
}

Records predictedRecords(const Prediction& prediction)
{
    Records records;
    for (const PredictedRecord& row : prediction.saved)
        records.push_back(row.record);
    return records;
}

void RoundTrip::check(const Records& records)
{
    const Prediction prediction = predictSave(records, m_world);
    const Records first = roundTrip(records);
    RC_ASSERT(toText(first) == toText(predictedRecords(prediction)));
    // Whatever differs from what was loaded has a rule that says so, and a rule is named nowhere
    // else.
    for (std::size_t i = 0; i < first.size(); ++i) {
        const PredictedRecord& row = prediction.saved[i];
        if (row.loaded.lRowKind != RowKindGroup)
            RC_ASSERT(isSame(first[i], row.loaded) == row.rules.empty());
    }

    const Records second = roundTrip(first);
    RC_ASSERT(toText(second) == toText(predictedRecords(predictSave(first, m_world))));
    if (std::none_of(first.begin(), first.end(), isStrippedAgain))
        RC_ASSERT(toText(second) == toText(first));
}

RC_GTEST_FIXTURE_PROP(RoundTrip, TheFirstSaveIsWhatTheRulesPredictAndTheSecondChangesNothing,
                      (const Records& records))
{
    check(records);
}

RC_GTEST_FIXTURE_PROP(RoundTrip, TheSameHoldsForAReducedVault, (const Records& records))
{
    initialize(VaultTypeReduced);
    m_world.isReducedVault = true;
    check(records);
}

RC_GTEST_FIXTURE_PROP(RoundTrip, TheSameHoldsWithoutVariables, (const Records& records))
{
    library->missing = {SPID_VARIABLE_DEFINITION};
    m_world.variables.clear();
    check(records);
}

// Values that still begin with a prefix after one load: each load strips one layer more.
TEST_F(RoundTrip, EachLoadStripsOneLayerUnlessTheOperatorIs100Or108)
{
    struct Row {
        LONG argType, op;
        const char* name;
        std::vector<const char*> values;
    };
    const std::vector<Row> rows{
        {1, 106, "Author", {"%%a%%", "%a%", "a", "a"}},
        {1, 101, "Author", {"!=!=>a", "!=>a", ">a", "a", "a"}},
        {1, 103, "Author", {">>=<=x", ">=<=x", "<=x", "x"}},
        {1, 101, "Author", {"!!x", "!x", "x", "x"}},
        {2, 121, "Weight", {"!=!5", "!5", "5"}},
        {2, 106, "Weight", {"%%5%%", "%5%", "5"}},
        {5, 135, "Due", {">=>=2024", ">=2024", "2024"}},
        {5, 135, "Due", {"%2024%", "%2024%"}},
        {1, 100, "Author", {"%%a%%", "%%a%%"}},
        {1, 108, "Author", {" >=a ", " >=a "}},
        {2, 100, "Weight", {"!=5", "!=5"}},
        {1, 160, "Author", {"!=!=a", "!=a", "a"}},  // 160 becomes 101 at the first load
        {1, 160, "Author", {"==a", "=a", "=a"}},    // 160 becomes 100, which is left alone
        {1, 160, "Author", {"=>a%", ">a%", ">a%"}}, // 160 becomes 108, which is left alone
    };
    for (const Row& row : rows) {
        Records records{record(3, 2, row.name, row.values.front(), row.argType, row.op)};
        for (std::size_t load = 1; load < row.values.size(); ++load) {
            records = roundTrip(records);
            EXPECT_EQ(records[0].oValue.str().toStdString(), row.values[load])
                << row.values.front() << " op " << row.op << " load " << load;
        }
    }
}

} // namespace
} // namespace condtree::test
