#include <condtree/platform/StoredProcs.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <thread>
#include <type_traits>
#include <vector>

// The address sanitizer stops the program at an exhausted memory unless it is told not to.
extern "C" CONDTREE_EXPORT const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace condtree {

namespace {

class Manager final : public SpMgr {
public:
    explicit Manager(int& deleted)
        : m_deleted(deleted)
    {
    }
    SpProc* mpoGetProc(SPID) override { return nullptr; }
    bool mbGetConnectInfo(SpConnectInfo&) override { return false; }

private:
    ~Manager() override { ++m_deleted; }
    int& m_deleted;
};

struct Settings final : SpSettings {
    explicit Settings(int& deleted)
        : m_deleted(deleted)
    {
    }
    ~Settings() override { ++m_deleted; }
    HRESULT mhGetUserSettings(LONG, SpSettingsData&, bool) override { return S_OK; }
    int& m_deleted;
};

/// Larger than any memory.
struct Huge {
    char bytes[std::size_t{1} << 60];
};

template <class T>
bool isAllZero(const T& record)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(&record);
    return std::all_of(bytes, bytes + sizeof(T), [](unsigned char byte) { return byte == 0; });
}

/// Leaves a block of a size full of ones for the allocator to hand out again.
void dirtyMemory(std::size_t size)
{
    void* memory = CoTaskMemAlloc(size);
    ASSERT_NE(memory, nullptr);
    std::memset(memory, 0xFF, size);
    CoTaskMemFree(memory);
}

} // namespace

static_assert(!std::is_copy_constructible_v<Manager>);
static_assert(std::has_virtual_destructor_v<SpProc>);
static_assert(sizeof(VarDef::mName) == 256 * sizeof(char16_t));
static_assert(sizeof(SpuLightData::mName) == 1001 * sizeof(char16_t));
static_assert(sizeof(SpuLightData::mSecondName) == 256 * sizeof(char16_t));
static_assert(offsetof(VarDef, mlId) == 0 && offsetof(VarDef, mlType) == 4
              && offsetof(VarDef, mName) == 8);
static_assert(offsetof(SpuLightData, mlId) == 0 && offsetof(SpuLightData, mName) == 4
              && offsetof(SpuLightData, mSecondName) == 4 + 1001 * 2);

TEST(Procedures, HaveTheNumbersOfTheLibrary)
{
    EXPECT_EQ(SPID_VARIABLE_DEFINITION, 2);
    EXPECT_EQ(SPID_USER, 23);
    EXPECT_EQ(SPID_WORKFLOW, 27);
    EXPECT_EQ(SPID_USER_MGR, 40);
    EXPECT_EQ(SPID_SETTINGS, 41);
    EXPECT_EQ(SPID_DOC_TYPE, 49);
}

TEST(Procedures, AreDestroyedThroughTheirBase)
{
    int deleted = 0;
    const SpProc* proc = new Settings(deleted);
    delete proc;
    EXPECT_EQ(deleted, 1);
}

TEST(SpNew, MakesZeroedPlainRecords)
{
    dirtyMemory(sizeof(VarDef));
    auto* variable = SpNew<VarDef>();
    EXPECT_TRUE(isAllZero(*variable));
    SpDelete(variable);

    dirtyMemory(sizeof(SpuLightData));
    auto* user = SpNew<SpuLightData>();
    EXPECT_TRUE(isAllZero(*user));
    SpDelete(user);
}

TEST(SpNew, MakesConstructedRecordsWithTexts)
{
    dirtyMemory(sizeof(SpWorkflowState));
    auto* state = SpNew<SpWorkflowState>();
    EXPECT_EQ(state->mlId, 0);
    EXPECT_EQ(state->mlFlags, 0U);
    EXPECT_EQ(state->moName.length(), 0);
    EXPECT_EQ(state->moSecondName.length(), 0);
    EXPECT_EQ(state->moWorkflowName.length(), 0);
    state->moName = SpStr(u"Open");
    EXPECT_TRUE(state->moName == u"Open");
    SpDelete(state);
}

TEST(SpDelete, DoesNothingForNull)
{
    VarDef* none = nullptr;
    SpDelete(none);
    CoTaskMemFree(nullptr);
}

TEST(CoTaskMemAlloc, GivesABlockEvenForNoBytes)
{
    void* nothing = CoTaskMemAlloc(0);
    EXPECT_NE(nothing, nullptr);
    CoTaskMemFree(nothing);
}

TEST(SpNew, ThrowsWhenTheMemoryIsExhausted)
{
    try {
        SpDelete(SpNew<Huge>());
        ADD_FAILURE() << "there was room";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
    }
}

TEST(SpMgr, IsMadeWithOneReference)
{
    int deleted = 0;
    auto* manager = new Manager(deleted);
    EXPECT_EQ(manager->Release(), 0);
    EXPECT_EQ(deleted, 1);
}

TEST(SpMgr, IsDeletedByTheLastReference)
{
    int deleted = 0;
    auto* manager = new Manager(deleted);
    EXPECT_EQ(manager->AddRef(), 2);
    EXPECT_EQ(manager->AddRef(), 3);
    EXPECT_EQ(manager->Release(), 2);
    EXPECT_EQ(manager->Release(), 1);
    EXPECT_EQ(deleted, 0);
    EXPECT_EQ(manager->Release(), 0);
    EXPECT_EQ(deleted, 1);
}

TEST(SpMgr, CountsReferencesOfSeveralThreads)
{
    int deleted = 0;
    auto* manager = new Manager(deleted);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([manager] {
            for (int turn = 0; turn < 10000; ++turn) {
                manager->AddRef();
                manager->Release();
            }
            manager->AddRef();
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(manager->AddRef(), 6);
    for (LONG left = 5; left >= 0; --left)
        EXPECT_EQ(manager->Release(), left);
    EXPECT_EQ(deleted, 1);
}

TEST(SpConnectInfo, NamesNobodyAtFirst)
{
    const SpConnectInfo info;
    EXPECT_EQ(std::size(info.moStrings), 6U);
    for (const CString& text : info.moStrings)
        EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(info.mlNumber, -1);
}

TEST(SpSettingsData, HasNoEntryUntilItIsSet)
{
    const SpSettingsData settings;
    EXPECT_EQ(settings.mpoGet(24), nullptr);
    EXPECT_EQ(settings.mpoGet(0), nullptr);
}

TEST(SpSettingsData, KeepsTheLastValueOfEachEntry)
{
    SpSettingsData settings;
    settings.mvSet(24, u"0"_qs);
    settings.mvSet(25, u"x"_qs);
    settings.mvSet(24, u"1"_qs);
    ASSERT_NE(settings.mpoGet(24), nullptr);
    EXPECT_EQ(settings.mpoGet(24)->toStdString(), "1");
    EXPECT_EQ(settings.mpoGet(25)->toStdString(), "x");
    EXPECT_EQ(settings.mpoGet(23), nullptr);
}

TEST(SpSettingsData, TellsAnEmptyEntryFromNone)
{
    SpSettingsData settings;
    settings.mvSet(24, CString());
    ASSERT_NE(settings.mpoGet(24), nullptr);
    EXPECT_TRUE(settings.mpoGet(24)->isEmpty());
}

} // namespace condtree
