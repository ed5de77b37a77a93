#include <condtree/refdata/ManagerRef.h>

#include "support/FakeLibrary.h"

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::FakeLibrary;
using test::FakeLibraryHolder;

TEST(ManagerRef, HoldsNoneAtFirst)
{
    const ManagerRef manager;
    EXPECT_EQ(manager.get(), nullptr);
    EXPECT_EQ(manager.proc<SpUserMgr>(SPID_USER_MGR), nullptr);
}

TEST(ManagerRef, AddsOneReference)
{
    const FakeLibraryHolder library;
    ManagerRef manager;
    manager.reset(library.get());
    EXPECT_EQ(manager.get(), library.get());
    EXPECT_EQ(library->references(), 2);
}

TEST(ManagerRef, TheSameManagerTwiceLeavesExactlyOneReference)
{
    const FakeLibraryHolder library;
    ManagerRef manager;
    manager.reset(library.get());
    manager.reset(library.get());
    EXPECT_EQ(library->references(), 2);
}

TEST(ManagerRef, AManagerThatNobodyElseHoldsSurvivesBeingGivenAgain)
{
    bool destroyed = false;
    FakeLibrary* library = FakeLibrary::make();
    library->destroyed = &destroyed;
    {
        ManagerRef manager;
        manager.reset(library);
        library->Release();
        manager.reset(library);
        EXPECT_FALSE(destroyed);
        EXPECT_EQ(library->references(), 1);
    }
    EXPECT_TRUE(destroyed);
}

TEST(ManagerRef, ANewManagerReplacesTheOldOneWhichIsReleased)
{
    const FakeLibraryHolder first;
    const FakeLibraryHolder second;
    ManagerRef manager;
    manager.reset(first.get());
    manager.reset(second.get());
    EXPECT_EQ(manager.get(), second.get());
    EXPECT_EQ(first->references(), 1);
    EXPECT_EQ(second->references(), 2);
}

TEST(ManagerRef, NullReleasesAndHoldsNone)
{
    const FakeLibraryHolder library;
    ManagerRef manager;
    manager.reset(library.get());
    manager.reset(nullptr);
    EXPECT_EQ(manager.get(), nullptr);
    EXPECT_EQ(library->references(), 1);
}

TEST(ManagerRef, ItsEndReleases)
{
    const FakeLibraryHolder library;
    {
        ManagerRef manager;
        manager.reset(library.get());
    }
    EXPECT_EQ(library->references(), 1);
}

TEST(ManagerRef, GivesTheProcedureObjectOfANumberAndNullForOneThatIsMissing)
{
    const FakeLibraryHolder library;
    library->missing = {SPID_USER};
    ManagerRef manager;
    manager.reset(library.get());
    EXPECT_NE(dynamic_cast<SpUserMgr*>(manager.proc<SpUserMgr>(SPID_USER_MGR)), nullptr);
    EXPECT_EQ(manager.proc<SpUser>(SPID_USER), nullptr);
    EXPECT_EQ(library->procRequests[SPID_USER_MGR], 1);
}

} // namespace
} // namespace condtree
