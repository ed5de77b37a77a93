#include <condtree/editing/ChoiceCache.h>

#include "ChoiceTables.h"
#include "support/FakeLibrary.h"

#include <condtree/refdata/CardVariables.h>
#include <condtree/refdata/ManagerRef.h>

#include <gtest/gtest.h>

#include <memory>

namespace condtree {
namespace {

using test::FakeLibraryHolder;
using test::kEnglish;
using test::Lines;
using test::toLines;

class ChoiceCacheTest : public testing::Test {
protected:
    ChoiceCacheTest() { m_manager.reset(library.get()); }

    void loadStates(int count)
    {
        for (int i = 0; i < count; ++i)
            library->states.push_back(
                {i + 1, QStringLiteral("Flow"), QStringLiteral("S%1").arg(i), {}});
        EXPECT_TRUE(states->mbInitWorkflowStates());
    }

    FakeLibraryHolder library;
    std::unique_ptr<ChoiceCache> cache = std::make_unique<ChoiceCache>();

private:
    ManagerRef m_manager;

protected:
    CardVariables variables{m_manager, [](HRESULT) {}};
    People users{People::Kind::Users, m_manager, [](HRESULT) {}};
    People groups{People::Kind::Groups, m_manager, [](HRESULT) {}};
    std::unique_ptr<WorkflowStates> states = std::make_unique<WorkflowStates>(m_manager);
};

/// Answers with a text for the choice of a state, else with the default.
StringSource namingStates(const QString& text)
{
    return [text](LONG id, const char16_t*, const char16_t*, const char16_t* given) {
        return id == 142 ? text : QString::fromUtf16(given);
    };
}

} // namespace

TEST_F(ChoiceCacheTest, VariablesAreMadeOnce)
{
    library->variables = {{1, 1, QStringLiteral("Weight")}};
    EXPECT_TRUE(variables.mbInitVars());
    const SharedChoices first = cache->variables(variables.list());
    EXPECT_EQ(toLines(*first), (Lines{"1106|Weight|3"}));
    EXPECT_EQ(cache->variables(variables.list()), first);
}

TEST_F(ChoiceCacheTest, VariablesAreMadeAnewWhenTheListHasGrown)
{
    library->variables = {{1, 1, QStringLiteral("Weight")}, {2, 5, QStringLiteral("Due")}};
    library->getVariables.results = {E_FAIL};
    library->getVariables.recordsBeforeFailure = 1;
    EXPECT_FALSE(variables.mbInitVars());
    const SharedChoices before = cache->variables(variables.list());
    EXPECT_EQ(toLines(*before), (Lines{"1106|Weight|3"}));
    EXPECT_TRUE(variables.mbInitVars());
    EXPECT_EQ(toLines(*cache->variables(variables.list())),
              (Lines{"1106|Weight|3", "1106|Weight|3", "1130|Due|3"}));
    EXPECT_EQ(toLines(*before), (Lines{"1106|Weight|3"}));
}

TEST_F(ChoiceCacheTest, EmptyListsAreKeptToo)
{
    EXPECT_TRUE(variables.mbInitVars());
    const SharedChoices none = cache->variables(variables.list());
    ASSERT_NE(none, nullptr);
    EXPECT_TRUE(none->empty());
    EXPECT_EQ(cache->variables(variables.list()), none);
    loadStates(0);
    const SharedChoices noStates = cache->states(*states, kEnglish);
    ASSERT_NE(noStates, nullptr);
    EXPECT_TRUE(noStates->empty());
    EXPECT_EQ(cache->states(*states, kEnglish), noStates);
}

TEST_F(ChoiceCacheTest, UsersAreMadeAnewOnlyWhenAnotherNameIsShown)
{
    library->users = {{7, QStringLiteral("zoe"), QStringLiteral("Zoe Zander")}};
    EXPECT_TRUE(users.init());
    const SharedChoices byFirst = cache->users(users.list(), ShownName::First);
    EXPECT_EQ(toLines(*byFirst), (Lines{"2001|zoe|0"}));
    EXPECT_EQ(cache->users(users.list(), ShownName::First), byFirst);
    const SharedChoices bySecond = cache->users(users.list(), ShownName::Second);
    EXPECT_EQ(toLines(*bySecond), (Lines{"2001|Zoe Zander|0"}));
    EXPECT_EQ(cache->users(users.list(), ShownName::Second), bySecond);
    EXPECT_EQ(toLines(*cache->users(users.list(), ShownName::First)), (Lines{"2001|zoe|0"}));
}

TEST_F(ChoiceCacheTest, PeopleAreMadeAnewWhenTheListWasFilledAnewWithAsMany)
{
    library->groups = {{1, QStringLiteral("Old"), {}}};
    library->getGroups.results = {E_FAIL};
    library->getGroups.recordsBeforeFailure = 1;
    EXPECT_FALSE(groups.init());
    EXPECT_EQ(toLines(*cache->groups(groups.list())), (Lines{"3000|Old|0"}));
    library->groups = {{1, QStringLiteral("New"), {}}};
    EXPECT_TRUE(groups.init());
    const SharedChoices made = cache->groups(groups.list());
    EXPECT_EQ(toLines(*made), (Lines{"3000|New|0"}));
    EXPECT_EQ(cache->groups(groups.list()), made);
}

TEST_F(ChoiceCacheTest, EachListIsKeptForItself)
{
    library->users = {{1, QStringLiteral("user"), {}}};
    library->groups = {{1, QStringLiteral("group"), {}}};
    EXPECT_TRUE(users.init());
    EXPECT_TRUE(groups.init());
    const SharedChoices ofUsers = cache->users(users.list(), ShownName::First);
    const SharedChoices ofGroups = cache->groups(groups.list());
    EXPECT_EQ(toLines(*ofUsers), (Lines{"2001|user|0"}));
    EXPECT_EQ(toLines(*ofGroups), (Lines{"3000|group|0"}));
    EXPECT_EQ(cache->users(users.list(), ShownName::First), ofUsers);
    EXPECT_EQ(cache->groups(groups.list()), ofGroups);
}

TEST_F(ChoiceCacheTest, StatesAreMadeOnce)
{
    loadStates(3);
    const SharedChoices made = cache->states(*states, kEnglish);
    EXPECT_EQ(toLines(*made), (Lines{"142|Flow.S0|-1", "142|Flow.S1|-1", "142|Flow.S2|-1"}));
    EXPECT_EQ(cache->states(*states, kEnglish), made);
}

TEST_F(ChoiceCacheTest, KeptStatesAreOfferedAfterOneQuestionToTheStringLibrary)
{
    int questions = 0;
    const StringSource counting = [&questions](LONG, const char16_t*, const char16_t*,
                                               const char16_t* given) {
        ++questions;
        return QString::fromUtf16(given);
    };
    loadStates(100);
    EXPECT_EQ(cache->states(*states, counting)->size(), 100U);
    questions = 0;
    EXPECT_EQ(cache->states(*states, counting)->size(), 100U);
    EXPECT_EQ(questions, 1);
}

TEST_F(ChoiceCacheTest, StatesAreShownAsTheStringLibraryHasThem)
{
    loadStates(2);
    EXPECT_EQ(toLines(*cache->states(*states, namingStates(QStringLiteral("Zustand")))),
              (Lines{"142|Zustand|-1", "142|Zustand|-1"}));
    EXPECT_EQ(toLines(*cache->states(*states, namingStates(QStringLiteral("Tillst\u00E5nd")))),
              (Lines{"142|Tillst\u00E5nd|-1", "142|Tillst\u00E5nd|-1"}));
    EXPECT_EQ(toLines(*cache->states(*states, kEnglish)),
              (Lines{"142|Flow.S0|-1", "142|Flow.S1|-1"}));
}

TEST_F(ChoiceCacheTest, StatesLoadedSinceAreOffered)
{
    EXPECT_TRUE(cache->states(*states, kEnglish)->empty());
    loadStates(1);
    EXPECT_EQ(toLines(*cache->states(*states, kEnglish)), (Lines{"142|Flow.S0|-1"}));
}

TEST_F(ChoiceCacheTest, EverythingMayEndWhileAStateIsNamed)
{
    loadStates(2);
    std::unique_ptr<StringSource> strings;
    strings = std::make_unique<StringSource>(
        [this, &strings](LONG, const char16_t*, const char16_t*, const char16_t* given) {
            const QString text = QString::fromUtf16(given);
            cache.reset();
            states.reset();
            strings.reset();
            return text;
        });
    const SharedChoices made = cache->states(*states, *strings);
    EXPECT_EQ(toLines(*made), (Lines{"142|Flow.S0|-1", "142|Flow.S1|-1"}));
    EXPECT_EQ(cache, nullptr);
}

} // namespace condtree
