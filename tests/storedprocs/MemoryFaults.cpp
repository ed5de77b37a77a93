#include "TempDatabase.h"
#include "support/QtPrinters.h"

#include <condtree/platform/WinTypes.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>

namespace {

/// How many blocks may still be had; below zero any number. And how many are out.
struct Memory {
    long left = -1;
    long out = 0;
} g_memory;

} // namespace

namespace condtree {

// The allocator of records and lists, in the place of the platform's in this executable.

void* CoTaskMemAlloc(std::size_t bytes)
{
    if (g_memory.left == 0)
        return nullptr;
    if (g_memory.left > 0)
        --g_memory.left;
    ++g_memory.out;
    return std::malloc(bytes);
}

void CoTaskMemFree(void* memory)
{
    if (memory != nullptr)
        --g_memory.out;
    std::free(memory);
}

} // namespace condtree

namespace condtree::test {
namespace {

/// Calls a procedure that appends to a list of two, with room for ever more blocks of memory until
/// it succeeds. Up to then the list is as it was, down to its records, and nothing leaks.
template <class Record>
void appendUntilItSucceeds(const char* what, const std::function<HRESULT(Lst<Record*>&)>& append)
{
    AutoLst<Lst<Record*>> list;
    Record* const first = SpNew<Record>();
    Record* const second = SpNew<Record>();
    list.AddTail(first);
    list.AddTail(second);
    const long before = g_memory.out;
    long room = 0;
    for (;; ++room) {
        ASSERT_LT(room, 1000) << what;
        g_memory.left = room;
        const HRESULT hr = append(list);
        g_memory.left = -1;
        POSITION at = list.GetHeadPosition();
        EXPECT_EQ(list.GetNext(at), first) << what;
        EXPECT_EQ(list.GetNext(at), second) << what;
        if (hr == S_OK)
            break;
        ASSERT_EQ(hr, E_OUTOFMEMORY) << what << ' ' << room;
        ASSERT_EQ(list.GetCount(), 2) << what << ' ' << room;
        ASSERT_EQ(g_memory.out, before) << what << ' ' << room;
    }
    const long added = list.GetCount() - 2;
    EXPECT_GT(added, 1) << what;
    EXPECT_EQ(g_memory.out, before + 2 * added) << what << ": a record and a node each";
    // Each takes a record and two nodes: it is collected first, and the caller's list gets it only
    // when all are there. So failures at both stages were among those above.
    EXPECT_GT(room, 2 * added) << what;
}

class MemoryFaults : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK);
        manager = database.connected();
        ASSERT_NE(manager, nullptr);
    }
    TempDatabase database;
    ManagerPtr manager;
};

TEST_F(MemoryFaults, AppendAllOfAListOrNothing)
{
    appendUntilItSucceeds<VarDef>("variables", [&](Lst<VarDef*>& list) {
        return procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION)
            .mhGetVariables(list, false);
    });
    appendUntilItSucceeds<SpWorkflowState>("states", [&](Lst<SpWorkflowState*>& list) {
        return procOf<SpWorkflow>(manager, SPID_WORKFLOW).mhGetAllStatesInAllWorkflows(0, list);
    });
    appendUntilItSucceeds<SpuLightData>("users", [&](Lst<SpuLightData*>& list) {
        return procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(list, 0, true);
    });
    appendUntilItSucceeds<SpuLightData>("groups", [&](Lst<SpuLightData*>& list) {
        return procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetGroups(list);
    });
    appendUntilItSucceeds<SpDocType::DocType>(
        "document types", [&](Lst<SpDocType::DocType*>& list) {
            return procOf<SpDocType>(manager, SPID_DOC_TYPE).mhGetDocTypes(list);
        });
}

TEST_F(MemoryFaults, LeaveNothingBehindWhenListsGo)
{
    const long before = g_memory.out;
    {
        AutoLst<Lst<SpuLightData*>> users;
        EXPECT_EQ(procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(users, 0, true), S_OK);
        EXPECT_EQ(g_memory.out, before + 2 * 60);
    }
    EXPECT_EQ(g_memory.out, before);
}

} // namespace
} // namespace condtree::test
