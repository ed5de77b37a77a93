#include <condtree/presentation/SystemMetrics.h>

#include <condtree/platform/Services.h>
#include <condtree/presentation/CDPIHelper.h>

#include <gtest/gtest.h>

#include <QtGlobal>

#include <vector>

using namespace condtree;

namespace {

// Before the application is made: it reads its screens' resolution once. Unless the toolkit's own
// scaling is off, it turns the resolution into a device pixel ratio, and lengths stay those of 96.
const bool kIsSet = qputenv("QT_FONT_DPI", "144") && qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");

struct Row {
    const char* name;
    int metric;
    int at96, at120, at144, at192, at240;
};

TEST(SystemMetrics, GrowWithTheResolution)
{
    const std::vector<Row> rows{
        {"SM_CXVSCROLL", 2, 17, 21, 26, 34, 43}, {"SM_CXICON", 11, 32, 40, 48, 64, 80},
        {"SM_CYICON", 12, 32, 40, 48, 64, 80},   {"SM_CYMENU", 15, 19, 24, 29, 38, 48},
        {"SM_CXDOUBLECLK", 36, 4, 5, 6, 8, 10},  {"SM_CYDOUBLECLK", 37, 4, 5, 6, 8, 10},
        {"SM_CXEDGE", 45, 2, 3, 3, 4, 5},        {"SM_CXSMICON", 49, 16, 20, 24, 32, 40},
        {"SM_CYSMICON", 50, 16, 20, 24, 32, 40},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(systemMetricAt(row.metric, {96, 96}), row.at96) << row.name;
        EXPECT_EQ(systemMetricAt(row.metric, {120, 120}), row.at120) << row.name;
        EXPECT_EQ(systemMetricAt(row.metric, {144, 144}), row.at144) << row.name;
        EXPECT_EQ(systemMetricAt(row.metric, {192, 192}), row.at192) << row.name;
        EXPECT_EQ(systemMetricAt(row.metric, {240, 240}), row.at240) << row.name;
    }
}

TEST(SystemMetrics, WidthsFollowTheHorizontalResolutionAndHeightsTheVertical)
{
    const SIZE dpi{192, 96};
    for (const int metric : {SM_CXVSCROLL, SM_CXICON, SM_CXDOUBLECLK, SM_CXEDGE, SM_CXSMICON})
        EXPECT_EQ(systemMetricAt(metric, dpi), 2 * systemMetricAt(metric, {96, 96})) << metric;
    for (const int metric : {SM_CYICON, SM_CYMENU, SM_CYDOUBLECLK, SM_CYSMICON})
        EXPECT_EQ(systemMetricAt(metric, dpi), systemMetricAt(metric, {96, 96})) << metric;
}

TEST(SystemMetrics, AMetricThatIsNotKnownIsNothing)
{
    for (const int metric : {-1, 0, 1, 3, 51, 1000})
        EXPECT_EQ(systemMetricAt(metric, {96, 96}), 0) << metric;
    EXPECT_EQ(realSystemMetric(1000), 0);
}

TEST(SystemMetrics, TheRealOnesAreThoseOfThePrimaryScreensLogicalResolution)
{
    ASSERT_TRUE(kIsSet);
    ASSERT_TRUE(primaryScreenDpi().has_value());
    EXPECT_EQ(*primaryScreenDpi(), (SIZE{144, 144}));
    EXPECT_EQ(realSystemMetric(SM_CXSMICON), 24);
    EXPECT_EQ(realSystemMetric(SM_CYMENU), 29);
}

TEST(SystemMetrics, TheDpiHelperUsesThem)
{
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS(), 144);
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS_Y(), 144);
    EXPECT_EQ(CDPIHelper::get()->getToolbarButtonSizeExp(), 32);
    EXPECT_EQ(CDPIHelper::get()->getImageSizeSuffix(ImageUseLargeIcon), QStringLiteral("_48"));
    CDPIHelper::deleteInstance();
}

} // namespace
