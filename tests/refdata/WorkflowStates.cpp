#include <condtree/refdata/WorkflowStates.h>

#include "support/FakeLibrary.h"

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::FakeLibrary;
using test::FakeLibraryHolder;
using Names = std::map<LONG, CString>;
using InOrder = std::map<LONG, std::pair<LONG, CString>>;

class WorkflowStatesTest : public testing::Test {
protected:
    WorkflowStatesTest() { m_manager.reset(m_library.get()); }

    FakeLibraryHolder m_library;
    ManagerRef m_manager;
    WorkflowStates m_states{m_manager};
};

FakeLibrary::State state(LONG id, const char16_t* workflow, const char16_t* name, DWORD flags = 0)
{
    return {id, QString::fromUtf16(workflow), QString::fromUtf16(name),
            QString::fromUtf16(name) + QStringLiteral("2"), flags};
}

TEST_F(WorkflowStatesTest, AStateIsShownWithItsWorkflowBeforeIt)
{
    m_library->statesNumber = 9;
    m_library->states = {state(7, u"Release", u"Approved"), state(3, u"Release", u"Draft")};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{3, QStringLiteral("Release.Draft")},
                                       {7, QStringLiteral("Release.Approved")}}));
    EXPECT_EQ(m_states.inOrder(), (InOrder{{0, {7, QStringLiteral("Release.Approved")}},
                                           {1, {3, QStringLiteral("Release.Draft")}}}));
    EXPECT_EQ(m_library->statesNumber, 0U);
    EXPECT_EQ(m_library->procRequests[SPID_WORKFLOW], 1);
}

struct FlagRow {
    DWORD flags;
    const char16_t* shown;
};

TEST_F(WorkflowStatesTest, EitherOfTheTwoLowestFlagsShowsTheSecondName)
{
    const FlagRow rows[] = {{0, u"W.s"},          {1, u"W.s2"},          {2, u"W.s2"},
                            {3, u"W.s2"},         {4, u"W.s"},           {5, u"W.s2"},
                            {0xFFFFFFFC, u"W.s"}, {0xFFFFFFFF, u"W.s2"}, {0x80000000, u"W.s"}};
    for (const FlagRow& row : rows) {
        SCOPED_TRACE(row.flags);
        m_library->states = {state(1, u"W", u"s", row.flags)};
        WorkflowStates states(m_manager);
        EXPECT_EQ(states.nameOf(1), QString::fromUtf16(row.shown));
    }
}

TEST_F(WorkflowStatesTest, AStateWithoutAWorkflowIsAbsentAndTakesNoIndex)
{
    m_library->states = {state(1, u"W", u"a"), state(2, u"", u"b"), state(3, u"W", u"c")};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{1, QStringLiteral("W.a")}, {3, QStringLiteral("W.c")}}));
    EXPECT_EQ(m_states.inOrder(),
              (InOrder{{0, {1, QStringLiteral("W.a")}}, {1, {3, QStringLiteral("W.c")}}}));
}

TEST_F(WorkflowStatesTest, OfTwoStatesWithOneIdTheFirstGivesTheNameAndBothAreInOrder)
{
    m_library->states = {state(5, u"W", u"first"), state(5, u"X", u"other")};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{5, QStringLiteral("W.first")}}));
    EXPECT_EQ(m_states.inOrder(),
              (InOrder{{0, {5, QStringLiteral("W.first")}}, {1, {5, QStringLiteral("X.other")}}}));
}

TEST_F(WorkflowStatesTest, AnEmptyStateNameLeavesTheDot)
{
    m_library->states = {{1, QStringLiteral("W"), {}, {}, 0}};
    EXPECT_EQ(m_states.nameOf(1), QStringLiteral("W."));
}

TEST_F(WorkflowStatesTest, LoadingTwiceCallsTheLibraryOnce)
{
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_library->getStates.calls, 1);
}

TEST_F(WorkflowStatesTest, AFailureOfTheLibraryLeavesThemLoadedAndEmpty)
{
    m_library->states = {state(1, u"W", u"a")};
    m_library->getStates.results = {E_FAIL};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.names().empty());
    EXPECT_TRUE(m_states.inOrder().empty());
    EXPECT_EQ(m_states.nameOf(1), QString());
    EXPECT_EQ(m_library->getStates.calls, 1);
}

TEST_F(WorkflowStatesTest, WhatAFailedCallDeliveredCounts)
{
    m_library->states = {state(1, u"W", u"a"), state(2, u"W", u"b")};
    m_library->getStates.results = {E_FAIL};
    m_library->getStates.recordsBeforeFailure = 1;
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{1, QStringLiteral("W.a")}}));
}

TEST_F(WorkflowStatesTest, WithoutTheProcedureObjectTheyAreLoadedAndEmpty)
{
    m_library->missing = {SPID_WORKFLOW};
    m_states.setNames({{1, QStringLiteral("the host's")}});
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.names().empty());
    m_library->missing.clear();
    m_library->states = {state(1, u"W", u"a")};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.names().empty());
    EXPECT_EQ(m_library->getStates.calls, 0);
}

TEST_F(WorkflowStatesTest, WithoutAManagerLoadingFailsAndLeavesTheHostsNames)
{
    m_manager.reset(nullptr);
    m_states.setNames({{4, QStringLiteral("the host's")}});
    EXPECT_FALSE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{4, QStringLiteral("the host's")}}));
    EXPECT_EQ(m_states.nameOf(4), QString()) << "a name needs loaded states";
}

TEST_F(WorkflowStatesTest, LoadingReplacesTheHostsNames)
{
    m_library->states = {state(1, u"W", u"a")};
    m_states.setNames({{1, QStringLiteral("the host's")}, {4, QStringLiteral("too")}});
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names(), (Names{{1, QStringLiteral("W.a")}}));
}

TEST_F(WorkflowStatesTest, TheHostReplacesNamesThatAreLoaded)
{
    m_library->states = {state(1, u"W", u"a"), state(2, u"W", u"b")};
    EXPECT_EQ(m_states.nameOf(1), QStringLiteral("W.a"));
    m_states.setNames({{1, QStringLiteral("the host's")}});
    EXPECT_EQ(m_states.nameOf(1), QStringLiteral("the host's"));
    EXPECT_EQ(m_states.nameOf(2), QString());
    EXPECT_EQ(m_states.inOrder().size(), 2U);
}

TEST_F(WorkflowStatesTest, TheirOwnNamesMayBeGivenBack)
{
    m_states.setNames({{1, QStringLiteral("one")}});
    m_states.setNames(m_states.names());
    EXPECT_EQ(m_states.names(), (Names{{1, QStringLiteral("one")}}));
}

TEST_F(WorkflowStatesTest, ExhaustedMemoryFailsAndTheNextCallTriesAgain)
{
    m_library->states = {state(1, u"W", u"a"), state(2, u"W", u"b")};
    m_library->getStates.callsOutOfMemory = 1;
    m_library->getStates.recordsBeforeFailure = 1;
    EXPECT_FALSE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.names().size(), 2U);
    EXPECT_EQ(m_library->getStates.calls, 2);
}

TEST_F(WorkflowStatesTest, MemoryThatALibraryLacksForARecordIsExhaustedMemoryToo)
{
    m_library->getStates.during = [] { throw _com_error(E_OUTOFMEMORY); };
    EXPECT_FALSE(m_states.mbInitWorkflowStates());
}

TEST_F(WorkflowStatesTest, AFailureThatALibraryThrowsCountsAsNoStates)
{
    m_library->getStates.during = [] { throw _com_error(E_FAIL); };
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_TRUE(m_states.names().empty());
}

TEST_F(WorkflowStatesTest, NullRecordsArePassedOver)
{
    FakeLibrary::State none{};
    none.isNull = true;
    m_library->states = {none, state(1, u"W", u"a"), none};
    EXPECT_TRUE(m_states.mbInitWorkflowStates());
    EXPECT_EQ(m_states.inOrder(), (InOrder{{0, {1, QStringLiteral("W.a")}}}));
}

TEST_F(WorkflowStatesTest, AStateThatNobodyKnowsHasNoName)
{
    m_library->states = {state(1, u"W", u"a")};
    EXPECT_EQ(m_states.nameOf(2), QString());
    EXPECT_EQ(m_states.nameOf(-1), QString());
}

TEST_F(WorkflowStatesTest, NegativeIdsAreIdsLikeAnyOther)
{
    m_library->states = {state(-12, u"W", u"a")};
    EXPECT_EQ(m_states.nameOf(-12), QStringLiteral("W.a"));
    EXPECT_EQ(m_states.nameOf(12), QString());
}

} // namespace
} // namespace condtree
