#include <condtree/refdata/CardVariables.h>

#include "support/FakeLibrary.h"

#include <gtest/gtest.h>

#include <memory>

namespace condtree {
namespace {

using test::FakeLibraryHolder;

class CardVariablesTest : public testing::Test {
protected:
    CardVariablesTest() { m_manager.reset(m_library.get()); }

    /// The ids of the list as it stands; -1 for a null record.
    [[nodiscard]] std::vector<LONG> listed() const
    {
        std::vector<LONG> ids;
        const auto& list = m_variables.list();
        for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
            const VarDef* variable = list.GetNext(position);
            ids.push_back(variable == nullptr ? -1 : variable->mlId);
        }
        return ids;
    }

    /// The id of the variable that a name finds; 0 for none.
    [[nodiscard]] LONG found(const char16_t* name) const
    {
        const VarDef* variable = m_variables.find(QString::fromUtf16(name));
        return variable == nullptr ? 0 : variable->mlId;
    }

    FakeLibraryHolder m_library;
    ManagerRef m_manager;
    std::vector<HRESULT> m_reported;
    CardVariables m_variables{m_manager, [this](HRESULT result) { m_reported.push_back(result); }};
};

const test::FakeLibrary::Variable kWeight{1, VarNumberA, QStringLiteral("Weight")};
const test::FakeLibrary::Variable kAuthor{2, VarText, QStringLiteral("Author")};
const test::FakeLibrary::Variable kReleased{3, VarBinary, QStringLiteral("Released")};

TEST_F(CardVariablesTest, NothingIsLoadedAtFirst)
{
    m_library->variables = {kWeight};
    EXPECT_TRUE(m_variables.list().IsEmpty());
    EXPECT_EQ(m_variables.last(), nullptr);
    EXPECT_EQ(found(u"Weight"), 0);
    EXPECT_EQ(m_library->getVariables.calls, 0);
}

TEST_F(CardVariablesTest, LoadingKeepsTheListWholeAndInOrder)
{
    m_library->variables = {kWeight, kAuthor, kReleased};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(listed(), (std::vector<LONG>{1, 2, 3}));
    EXPECT_EQ(m_library->procRequests[SPID_VARIABLE_DEFINITION], 1);
    EXPECT_FALSE(m_library->variablesFlag);
}

TEST_F(CardVariablesTest, LoadingTwiceAfterASuccessCallsTheLibraryOnce)
{
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(m_library->getVariables.calls, 1);
    EXPECT_EQ(m_library->procRequests[SPID_VARIABLE_DEFINITION], 1);
}

TEST_F(CardVariablesTest, WhatIsLoadedStaysWithoutAManager)
{
    m_library->variables = {kWeight};
    EXPECT_TRUE(m_variables.mbInitVars());
    m_manager.reset(nullptr);
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"Weight"), 1);
}

TEST_F(CardVariablesTest, WithoutAManagerLoadingFailsSilently)
{
    m_manager.reset(nullptr);
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_TRUE(m_reported.empty());
}

TEST_F(CardVariablesTest, WithoutTheProcedureObjectLoadingFailsSilentlyAndIsTriedAgain)
{
    m_library->variables = {kWeight};
    m_library->missing = {SPID_VARIABLE_DEFINITION};
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_TRUE(m_reported.empty());
    m_library->missing.clear();
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"Weight"), 1);
}

TEST_F(CardVariablesTest, EveryFailureIsReportedUntilACallSucceeds)
{
    m_library->variables = {kWeight};
    m_library->getVariables.results = {E_FAIL, E_INVALIDARG};
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_EQ(m_reported, (std::vector<HRESULT>{E_FAIL}));
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_EQ(m_reported, (std::vector<HRESULT>{E_FAIL, E_INVALIDARG}));
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(m_reported.size(), 2U);
    EXPECT_EQ(m_library->getVariables.calls, 3);
}

TEST_F(CardVariablesTest, AResultThatIsNotNegativeIsASuccess)
{
    m_library->getVariables.results = {S_FALSE};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_TRUE(m_reported.empty());
}

TEST_F(CardVariablesTest, TheListIsNotEmptiedBeforeAnotherTry)
{
    m_library->variables = {kWeight, kAuthor};
    m_library->getVariables.results = {E_FAIL};
    m_library->getVariables.recordsBeforeFailure = 1;
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_EQ(listed(), (std::vector<LONG>{1}));
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(listed(), (std::vector<LONG>{1, 1, 2}));
}

TEST_F(CardVariablesTest, RecordsThatAFailedCallAppendedAreFound)
{
    m_library->variables = {kWeight, kAuthor, kReleased};
    m_library->getVariables.results = {E_FAIL, E_FAIL};
    m_library->getVariables.recordsBeforeFailure = 2;
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"author"), 2);
    EXPECT_EQ(found(u"Released"), 0);
    EXPECT_EQ(m_variables.last()->mlId, 2);
    m_library->variables = {kReleased};
    EXPECT_FALSE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"Released"), 3);
    EXPECT_EQ(m_variables.last()->mlId, 3);
    EXPECT_EQ(found(u"weight"), 1);
}

TEST_F(CardVariablesTest, TheFirstOfTwoTriesAnswersToAName)
{
    m_library->variables = {{1, VarText, QStringLiteral("Weight")}};
    m_library->getVariables.results = {E_FAIL};
    m_library->getVariables.recordsBeforeFailure = 1;
    EXPECT_FALSE(m_variables.mbInitVars());
    m_library->variables = {{9, VarDate, QStringLiteral("WEIGHT")}};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"WEIGHT"), 1);
}

TEST_F(CardVariablesTest, TheListIsIndexedWhenTheFailureIsReported)
{
    LONG seen = 0;
    CardVariables* asked = nullptr;
    CardVariables variables(m_manager, [&](HRESULT) {
        const VarDef* variable = asked->find(QStringLiteral("Weight"));
        seen = variable == nullptr ? 0 : variable->mlId;
    });
    asked = &variables;
    m_library->variables = {kWeight};
    m_library->getVariables.results = {E_FAIL};
    m_library->getVariables.recordsBeforeFailure = 1;
    EXPECT_FALSE(variables.mbInitVars());
    EXPECT_EQ(seen, 1);
}

TEST_F(CardVariablesTest, TheReportMayEndTheVariables)
{
    int reports = 0;
    std::unique_ptr<CardVariables> variables;
    variables = std::make_unique<CardVariables>(m_manager, [&](HRESULT) {
        variables.reset();
        ++reports;
    });
    m_library->getVariables.results = {E_FAIL};
    EXPECT_EQ(variables->meGetArgumentType(QStringLiteral("Weight")), ArgText);
    EXPECT_EQ(reports, 1);
}

struct NameRow {
    const char* why;
    const char16_t* defined;
    const char16_t* asked;
    bool isFound;
};

const NameRow kNames[] = {
    {"exact", u"Weight", u"Weight", true},
    {"letter case", u"Weight", u"wEIGHT", true},
    {"sharp s", u"Stra\u00DFe", u"STRASSE", true},
    {"final sigma", u"\u03A3\u039F\u03A3", u"\u03C3\u03BF\u03C2", true},
    {"composed and decomposed", u"caf\u00E9", u"cafe\u0301", true},
    {"soft hyphen", u"part\u00ADno", u"partno", true},
    {"a longer name", u"Weight", u"Weights", false},
    {"a shorter name", u"Weight", u"Weigh", false},
    {"blanks count", u"Weight", u"Weight ", false},
    {"the empty name of an unnamed variable", u"", u"", true},
    {"no name", u"Weight", u"", false},
};

TEST_F(CardVariablesTest, NamesAreComparedAsVariableNamesAre)
{
    for (const NameRow& row : kNames) {
        SCOPED_TRACE(row.why);
        m_library->variables = {{5, VarText, QString::fromUtf16(row.defined)}};
        CardVariables variables(m_manager, {});
        EXPECT_TRUE(variables.mbInitVars());
        EXPECT_EQ(variables.find(QString::fromUtf16(row.asked)) != nullptr, row.isFound);
    }
}

TEST_F(CardVariablesTest, TheFirstMatchWinsAlsoOverALaterExactSpelling)
{
    m_library->variables = {{1, VarText, QStringLiteral("WEIGHT")},
                            {2, VarDate, QStringLiteral("weight")},
                            {3, VarBinary, QStringLiteral("WEIGHT")}};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(found(u"weight"), 1);
    EXPECT_EQ(found(u"WEIGHT"), 1);
    EXPECT_EQ(found(u"Weight"), 1);
}

TEST_F(CardVariablesTest, ANameThatFillsItsArrayEndsWithIt)
{
    const CString name(256, u'x');
    m_library->variables = {{4, VarText, name}};
    EXPECT_TRUE(m_variables.mbInitVars());
    ASSERT_NE(m_variables.find(name), nullptr);
    EXPECT_EQ(m_variables.find(name)->mlId, 4);
    EXPECT_EQ(m_variables.find(name.left(255)), nullptr);
}

TEST_F(CardVariablesTest, NullRecordsArePassedOver)
{
    test::FakeLibrary::Variable none{0, 0, {}, true};
    m_library->variables = {none, kWeight, none, kAuthor, none};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(listed(), (std::vector<LONG>{-1, 1, -1, 2, -1}));
    EXPECT_EQ(found(u"Author"), 2);
    EXPECT_EQ(m_variables.last()->mlId, 2);
}

TEST_F(CardVariablesTest, TheLastIsTheOneAtTheEndOfTheList)
{
    m_library->variables = {kWeight, kAuthor, kReleased};
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(m_variables.last()->mlId, 3);
}

TEST_F(CardVariablesTest, ALoadThatRunsOutOfMemoryIsTakenUpByTheNext)
{
    m_library->variables = {kWeight, kAuthor};
    m_library->getVariables.callsOutOfMemory = 1;
    m_library->getVariables.recordsBeforeFailure = 1;
    EXPECT_THROW(m_variables.mbInitVars(), _com_error);
    EXPECT_TRUE(m_variables.mbInitVars());
    EXPECT_EQ(listed(), (std::vector<LONG>{1, 1, 2}));
    EXPECT_EQ(found(u"Author"), 2);
}

struct TypeRow {
    LONG type;
    ComboCmd defaultOperator;
    LONG argType;
};

// Typed by hand: a variable's type -> its default operator and its argument type.
const TypeRow kTypes[] = {
    {1, static_cast<ComboCmd>(106), 1}, {2, static_cast<ComboCmd>(120), 2},
    {3, static_cast<ComboCmd>(120), 3}, {4, static_cast<ComboCmd>(139), 4},
    {5, static_cast<ComboCmd>(130), 5}, {0, static_cast<ComboCmd>(106), 0},
    {6, static_cast<ComboCmd>(106), 6}, {-7, static_cast<ComboCmd>(106), -7},
};

TEST_F(CardVariablesTest, AVariablesTypeGivesItsOperatorAndPassesThroughAsItsArgumentType)
{
    for (const TypeRow& row : kTypes) {
        SCOPED_TRACE(row.type);
        m_library->variables = {{1, row.type, QStringLiteral("Weight")}};
        CardVariables variables(m_manager, {});
        EXPECT_EQ(variables.meGetDefaultOp(QStringLiteral("weight")), row.defaultOperator);
        EXPECT_EQ(variables.meGetArgumentType(QStringLiteral("weight")), row.argType);
    }
}

TEST_F(CardVariablesTest, AnUnknownNameIsAText)
{
    m_library->variables = {kWeight};
    EXPECT_EQ(m_variables.meGetDefaultOp(QStringLiteral("Height")), 106);
    EXPECT_EQ(m_variables.meGetArgumentType(QStringLiteral("Height")), 1);
    EXPECT_EQ(m_library->getVariables.calls, 1);
}

TEST_F(CardVariablesTest, AFailedLoadGivesAText)
{
    m_library->variables = {kWeight};
    m_library->getVariables.results = {E_FAIL, E_FAIL};
    m_library->getVariables.recordsBeforeFailure = 1;
    EXPECT_EQ(m_variables.meGetDefaultOp(QStringLiteral("Weight")), 106);
    EXPECT_EQ(m_variables.meGetArgumentType(QStringLiteral("Weight")), 1);
    EXPECT_EQ(m_reported.size(), 2U);
    EXPECT_EQ(m_variables.meGetDefaultOp(QStringLiteral("Weight")), 120);
    EXPECT_EQ(m_library->getVariables.calls, 3);
}

TEST_F(CardVariablesTest, WithoutAManagerEverythingIsAText)
{
    m_manager.reset(nullptr);
    EXPECT_EQ(m_variables.meGetDefaultOp(QStringLiteral("Weight")), 106);
    EXPECT_EQ(m_variables.meGetArgumentType(QStringLiteral("Weight")), 1);
    EXPECT_TRUE(m_reported.empty());
}

TEST_F(CardVariablesTest, FiftyThousandNamesFindTheirFirstMatch)
{
    constexpr int kCount = 50000;
    for (int i = 0; i < kCount; ++i) {
        // Each name twice, in two spellings.
        const CString name = QStringLiteral("Name %1").arg(i % (kCount / 2));
        m_library->variables.push_back({i + 1, VarText, i < kCount / 2 ? name : name.toUpper()});
    }
    EXPECT_TRUE(m_variables.mbInitVars());
    for (int i = 0; i < kCount / 2; ++i) {
        const CString name = QStringLiteral("Name %1").arg(i);
        ASSERT_EQ(m_variables.find(name)->mlId, i + 1);
        ASSERT_EQ(m_variables.find(name.toUpper())->mlId, i + 1);
        ASSERT_EQ(m_variables.find(name.toLower())->mlId, i + 1);
    }
}

} // namespace
} // namespace condtree
