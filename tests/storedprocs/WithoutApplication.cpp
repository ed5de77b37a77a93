#include "TempDatabase.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>

namespace condtree::test {
namespace {

// This executable has a main of its own, which makes no application.

TEST(WithoutApplication, NothingIsOpenedAndNothingIsInitialised)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    const TempDatabase database;
    HRESULT hr = S_OK;
    EXPECT_EQ(SpConnect(database.url(), QString(), &hr), nullptr);
    EXPECT_EQ(hr, static_cast<HRESULT>(0x80040201U));
    EXPECT_EQ(SpMakeSampleDatabase(database.url()), static_cast<HRESULT>(0x80040201U));
    EXPECT_FALSE(QFile::exists(database.path()));
}

} // namespace
} // namespace condtree::test
