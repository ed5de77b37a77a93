#include <condtree/editing/KindList.h>

#include "ChoiceTables.h"
#include "KindListCases.h"
#include "support/FakeLibrary.h"

#include <condtree/refdata/CardVariables.h>
#include <condtree/refdata/ManagerRef.h>

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::allKindLists;
using test::FakeLibraryHolder;
using test::kAsked;
using test::kEnglish;
using test::Lines;
using test::toLines;

struct Offer {
    const char* line;
    bool (*isOffered)(const KindListFor&);
};

bool always(const KindListFor&)
{
    return true;
}

// The list from its top to the variables.
const Offer kOffers[] = {
    {"1|TS Search 39 (Or)|2", [](const KindListFor& list) { return list.isTopLevel; }},
    {"3|TS Workflow 87 (Category)|5", [](const KindListFor& list) { return list.vaultType != 1; }},
    {"5|TS Workflow 20 (FilePath)|5", always},
    {"6|TS Workflow 732 (Object Type)|5", always},
    {"7|TS Workflow 21 (Revision)|5", always},
    {"9|TS Workflow 40 (User)|6",
     [](const KindListFor& list) { return list.vaultType != 1 && list.treeType == 1; }},
    {"10|TS Workflow 180 (Group)|7",
     [](const KindListFor& list) { return list.vaultType != 1 && list.treeType == 1; }},
    {"8|TS Workflow 756 (Child Reference State)|5",
     [](const KindListFor& list) {
         return list.vaultType != 1 && list.treeType != 1 && list.transitionType != 1
                && list.childRefStateOffered;
     }},
    {"2|TS Search 55 (Remove)|4", [](const KindListFor& list) { return !list.isPlaceholder; }},
};

Lines expected(const KindListFor& list)
{
    Lines lines;
    for (const Offer& offer : kOffers) {
        if (offer.isOffered(list))
            lines.emplace_back(offer.line);
    }
    return lines;
}

/// The card variables of a scripted library.
class VariableChoices : public testing::Test {
protected:
    VariableChoices() { m_manager.reset(library.get()); }
    Lines lines()
    {
        EXPECT_TRUE(m_variables.mbInitVars());
        return toLines(variableChoices(m_variables.list()));
    }
    const Lst<VarDef*>& list()
    {
        EXPECT_TRUE(m_variables.mbInitVars());
        return m_variables.list();
    }

    FakeLibraryHolder library;

private:
    ManagerRef m_manager;
    CardVariables m_variables{m_manager, [](HRESULT) {}};
};

} // namespace

TEST(KindCommands, AreOfferedAsTheRowAndTheSetUpAllow)
{
    for (const KindListFor& list : allKindLists())
        EXPECT_EQ(toLines(kindCommands(list, kAsked)), expected(list)) << list;
}

TEST(KindCommands, OfANestedRowBeginWithTheCategory)
{
    const KindListFor nested{false, false, KiroVaultType(0), TreeType(0), 0, true};
    EXPECT_EQ(toLines(kindCommands(nested, kEnglish)),
              (Lines{"3|Category|5", "5|FilePath|5", "6|Object Type|5", "7|Revision|5",
                     "8|Child Reference State|5", "2|Remove|4"}));
}

TEST(KindCommands, OfATopLevelRowWithUsersAndGroupsAreTheLongestList)
{
    const KindListFor topLevel{true, false, KiroVaultType(0), TreeType(1), 0, true};
    EXPECT_EQ(toLines(kindCommands(topLevel, kEnglish)),
              (Lines{"1|Or|2", "3|Category|5", "5|FilePath|5", "6|Object Type|5", "7|Revision|5",
                     "9|User|6", "10|Group|7", "2|Remove|4"}));
}

TEST(KindCommands, OfAReducedVaultAreThreeKindsAndRemove)
{
    const KindListFor nested{false, false, KiroVaultType(1), TreeType(1), 0, true};
    EXPECT_EQ(toLines(kindCommands(nested, kEnglish)),
              (Lines{"5|FilePath|5", "6|Object Type|5", "7|Revision|5", "2|Remove|4"}));
    const KindListFor placeholder{false, true, KiroVaultType(1), TreeType(1), 0, true};
    EXPECT_EQ(toLines(kindCommands(placeholder, kEnglish)),
              (Lines{"5|FilePath|5", "6|Object Type|5", "7|Revision|5"}));
}

TEST(KindCommands, AskForTheSettingOnlyWhereItDecides)
{
    for (const LONG vault : {0, 1, 2}) {
        for (const LONG tree : {0, 1, 2}) {
            for (const LONG transition : {0, 1, 2}) {
                const bool isAsked = vault != 1 && tree != 1 && transition != 1;
                EXPECT_EQ(asksForChildRefState(KiroVaultType(vault), TreeType(tree), transition),
                          isAsked)
                    << vault << ' ' << tree << ' ' << transition;
            }
        }
    }
}

TEST_F(VariableChoices, HaveTheDefaultOperatorOfTheirTypeInTheOrderOfTheLibrary)
{
    library->variables = {
        {31, 1, QStringLiteral("Weight")},  {30, 2, QStringLiteral("Count")},
        {29, 3, QStringLiteral("Price")},   {28, 4, QStringLiteral("Checked")},
        {27, 5, QStringLiteral("Due")},     {26, 0, QStringLiteral("Untyped")},
        {25, 6, QStringLiteral("Strange")}, {24, -1, QStringLiteral("Negative")},
    };
    EXPECT_EQ(lines(),
              (Lines{"1106|Weight|3", "1120|Count|3", "1120|Price|3", "1139|Checked|3",
                     "1130|Due|3", "1106|Untyped|3", "1106|Strange|3", "1106|Negative|3"}));
}

TEST_F(VariableChoices, KeepEqualAndEmptyNames)
{
    library->variables = {
        {1, 1, QStringLiteral("Twice")}, {2, 5, QStringLiteral("Twice")}, {3, 1, {}}};
    EXPECT_EQ(lines(), (Lines{"1106|Twice|3", "1130|Twice|3", "1106||3"}));
}

TEST_F(VariableChoices, SurviveNullsAndNamesWithoutEnd)
{
    library->variables = {{1, 1, {}, true},
                          {2, 1, QString(300, QLatin1Char('x'))},
                          {3, 1, {}, true},
                          {4, 1, QStringLiteral("Last")}};
    EXPECT_EQ(lines(), (Lines{"1106|" + std::string(256, 'x') + "|3", "1106|Last|3"}));
}

TEST_F(VariableChoices, OfAnEmptyListAreNone)
{
    EXPECT_EQ(lines(), Lines{});
}

TEST_F(VariableChoices, OfALongListAreAllocatedAtOnce)
{
    library->variables.assign(20000, {1, 1, QStringLiteral("Name")});
    const ChoiceEntries entries = variableChoices(list());
    EXPECT_EQ(entries.size(), 20000U);
    EXPECT_EQ(entries.capacity(), entries.size());
}

} // namespace condtree
