#include <condtree/platform/Services.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/presentation/SystemMetrics.h>

#include <gtest/gtest.h>

using namespace condtree;

// What resolutions and metrics are in an application without windows.
namespace {

TEST(WithoutScreen, ThereIsNoResolution)
{
    EXPECT_FALSE(primaryScreenDpi().has_value());
}

TEST(WithoutScreen, TheMetricsAreThoseOf96)
{
    EXPECT_EQ(realSystemMetric(SM_CXSMICON), 16);
    EXPECT_EQ(realSystemMetric(SM_CYMENU), 19);
    EXPECT_EQ(realSystemMetric(SM_CXVSCROLL), 17);
}

TEST(WithoutScreen, TheDpiHelperIsAt96AndNotInitialised)
{
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS(), 96);
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS_Y(), 96);
    EXPECT_EQ(CDPIHelper::get()->iInit(), 0);
    EXPECT_EQ(CDPIHelper::get()->getToolbarButtonSizeExp(), 24);
    CDPIHelper::deleteInstance();
}

} // namespace
