#include <condtree/editing/ValueLists.h>

#include "ChoiceTables.h"
#include "support/FakeLibrary.h"

#include <condtree/refdata/ManagerRef.h>

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::FakeLibrary;
using test::FakeLibraryHolder;
using test::kAsked;
using test::kEnglish;
using test::Lines;
using test::toLines;

/// The lists of a scripted library.
class ReferenceLists : public testing::Test {
protected:
    ReferenceLists() { m_manager.reset(library.get()); }

    const Lst<SpuLightData*>& users()
    {
        EXPECT_TRUE(m_users.init());
        return m_users.list();
    }
    const Lst<SpuLightData*>& groups()
    {
        EXPECT_TRUE(m_groups.init());
        return m_groups.list();
    }
    Lines docTypes()
    {
        auto* proc = m_manager.proc<SpDocType>(SPID_DOC_TYPE);
        AutoLst<Lst<SpDocType::DocType*>> types;
        proc->mhGetDocTypes(types);
        return toLines(docTypeChoices(types));
    }
    Lines states()
    {
        EXPECT_TRUE(m_states.mbInitWorkflowStates());
        return toLines(stateChoices(m_states));
    }

    FakeLibraryHolder library;

private:
    ManagerRef m_manager;
    People m_users{People::Kind::Users, m_manager, [](HRESULT) {}};
    People m_groups{People::Kind::Groups, m_manager, [](HRESULT) {}};
    WorkflowStates m_states{m_manager};
};

const std::vector<FakeLibrary::Person> kPeople{
    {7, QStringLiteral("zoe"), QStringLiteral("Zoe Zander")},
    {5, QStringLiteral("ann"), {}},
    {6, {}, QStringLiteral("Bob Baker")},
    {8, {}, {}},
};

} // namespace

TEST(ObjectTypes, AreThreeInAVaultOfType0)
{
    EXPECT_EQ(toLines(objectTypeChoices(KiroVaultType(0), kEnglish)),
              (Lines{"136|File|-1", "137|BOM|-1", "138|Item|-1"}));
}

TEST(ObjectTypes, AreOnlyFilesInEveryOtherVault)
{
    for (const LONG vault : {-1, 1, 2, 3})
        EXPECT_EQ(toLines(objectTypeChoices(KiroVaultType(vault), kEnglish)),
                  (Lines{"136|File|-1"}))
            << vault;
}

TEST(ObjectTypes, AreAskedForLikeOperatorsWithTheirOwnTextsAsDefault)
{
    EXPECT_EQ(toLines(objectTypeChoices(KiroVaultType(0), kAsked)),
              (Lines{"136|OpName Search 136 (TS Workflow 733 (File))|-1",
                     "137|OpName Search 137 (TS Workflow 734 (BOM))|-1",
                     "138|OpName Search 138 (TS ItemMgr 15 (Item))|-1"}));
}

TEST(YesAndNo, AreOfferedInThisOrder)
{
    EXPECT_EQ(toLines(yesNoChoices(kEnglish)), (Lines{"140|Yes|-1", "141|No|-1"}));
    EXPECT_EQ(toLines(yesNoChoices(kAsked)),
              (Lines{"140|OpName Search 140 (TS Workflow 58 (Yes))|-1",
                     "141|OpName Search 141 (TS Workflow 59 (No))|-1"}));
}

TEST_F(ReferenceLists, UsersAreOfferedByTheirFirstName)
{
    library->users = kPeople;
    EXPECT_EQ(toLines(userChoices(users(), ShownName::First)),
              (Lines{"2001|zoe|0", "2001|ann|0", "2001||0", "2001||0"}));
}

TEST_F(ReferenceLists, UsersAreOfferedByTheirSecondNameUnlessItIsEmpty)
{
    library->users = kPeople;
    EXPECT_EQ(toLines(userChoices(users(), ShownName::Second)),
              (Lines{"2001|Zoe Zander|0", "2001|ann|0", "2001|Bob Baker|0", "2001||0"}));
}

TEST_F(ReferenceLists, GroupsAreOfferedByTheirFirstName)
{
    library->groups = kPeople;
    EXPECT_EQ(toLines(groupChoices(groups())),
              (Lines{"3000|zoe|0", "3000|ann|0", "3000||0", "3000||0"}));
}

TEST_F(ReferenceLists, NullsAndNamesWithoutEndAreSurvived)
{
    const QString longName(1200, QLatin1Char('n'));
    const QString longSecondName(300, QLatin1Char('s'));
    library->users = {{1, {}, {}, true}, {2, longName, longSecondName}, {3, {}, {}, true}};
    library->groups = library->users;
    const std::string first = "|" + std::string(1001, 'n') + "|0";
    EXPECT_EQ(toLines(userChoices(users(), ShownName::First)), (Lines{"2001" + first}));
    EXPECT_EQ(toLines(userChoices(users(), ShownName::Second)),
              (Lines{"2001|" + std::string(256, 's') + "|0"}));
    EXPECT_EQ(toLines(groupChoices(groups())), (Lines{"3000" + first}));
}

TEST_F(ReferenceLists, DocumentTypesAreOfferedByTheirName)
{
    library->docTypes = {{QStringLiteral("Drawing"), QStringLiteral("second")},
                         {{}, {}, true},
                         {QStringLiteral("Assembly"), {}}};
    EXPECT_EQ(docTypes(), (Lines{"4|Drawing|-1", "4|Assembly|-1"}));
}

TEST_F(ReferenceLists, StatesAreOfferedInTheOrderOfTheirTable)
{
    library->states = {{9, QStringLiteral("Flow"), QStringLiteral("Zero"), {}},
                       {3, {}, QStringLiteral("No flow"), {}},
                       {5, QStringLiteral("Flow"), QStringLiteral("a"), QStringLiteral("b"), 1},
                       {9, QStringLiteral("Other"), QStringLiteral("Again"), {}}};
    EXPECT_EQ(states(), (Lines{"142|Flow.Zero|-1", "142|Flow.b|-1", "142|Other.Again|-1"}));
}

TEST_F(ReferenceLists, WithoutRecordsGiveNoEntries)
{
    EXPECT_EQ(toLines(userChoices(users(), ShownName::Second)), Lines{});
    EXPECT_EQ(toLines(groupChoices(groups())), Lines{});
    EXPECT_EQ(docTypes(), Lines{});
    EXPECT_EQ(states(), Lines{});
}

TEST_F(ReferenceLists, OfAHundredThousandUsersAreAllocatedAtOnce)
{
    library->users.assign(100000, kPeople[0]);
    const ChoiceEntries entries = userChoices(users(), ShownName::Second);
    EXPECT_EQ(entries.size(), 100000U);
    EXPECT_EQ(entries.capacity(), entries.size());
}

} // namespace condtree
