#include <condtree/presentation/CDPIHelper.h>

#include "presentation/DpiHelper.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>

#include <optional>
#include <string>
#include <type_traits>
#include <vector>

using namespace condtree;
using namespace condtree::test;

namespace {

/// Every resolution of the tables below, in the place of either one that may be in use. The
/// application has another one than the operating system that is in use.
const std::vector<Setting> kOsInUse{
    {96, true, 240}, {120, true, 192}, {144, true, 96}, {192, true, 120}, {240, true, 144}};
const std::vector<Setting> kOsInUseBeforeApplication{
    {96, true, 96}, {120, true, 96}, {144, true, 96}, {192, true, 96}, {240, true, 96}};
const std::vector<Setting> kApplicationInUse{
    {96, false, 96}, {96, false, 120}, {96, false, 144}, {96, false, 192}, {96, false, 240}};
const std::vector<Setting> kApplicationBehindOs{
    {96, false, 96}, {120, false, 96}, {144, false, 96}, {192, false, 96}, {240, false, 96}};

/// The application's resolutions in use, on one of the operating system's.
std::vector<Setting> applicationInUseOn(int os)
{
    return {
        {os, false, 96}, {os, false, 120}, {os, false, 144}, {os, false, 192}, {os, false, 240}};
}

/// The results of an operation in each of the settings of a list.
template <class Operation>
std::vector<int> results(const std::vector<Setting>& settings, Operation operation,
                         const Desktop& desktop = {})
{
    std::vector<int> found;
    for (const Setting& setting : settings) {
        DpiHelper helper(setting, desktop);
        found.push_back(operation(helper));
    }
    return found;
}

using Results = std::vector<int>;

TEST(CDPIHelper, StartsAtTheScreensResolutionWithTheApplicationsAt96)
{
    const DpiHelper helper(144, 120, Desktop{});
    EXPECT_EQ(helper.getDPI_OS(), 144);
    EXPECT_EQ(helper.getSystemDPI(), 144);
    EXPECT_EQ(helper.getDPI_OS_Y(), 120);
    EXPECT_EQ(helper.getDPI_inUse(), 144);
    EXPECT_EQ(helper.usingOSDPI(), 1);
    EXPECT_EQ(helper.scale_VeltrixToSystem(96), 144);
}

TEST(CDPIHelper, TheFlagSaysWhichResolutionIsInUse)
{
    DpiHelper helper(144);
    helper.setVeltrixDPI(192);
    EXPECT_EQ(helper.getDPI_inUse(), 144);
    helper.setUseOSDPI(false);
    EXPECT_EQ(helper.usingOSDPI(), 0);
    EXPECT_EQ(helper.getDPI_inUse(), 192);
    EXPECT_EQ(helper.getDPI_OS(), 144);
    helper.setUseOSDPI(true);
    EXPECT_EQ(helper.usingOSDPI(), 1);
    EXPECT_EQ(helper.getDPI_inUse(), 144);
}

TEST(CDPIHelper, AResolutionThatCouldNotBeReadIs96UntilItIsInitialised)
{
    std::optional<SIZE> screen;
    int questions = 0;
    DpiHelper helper([&] {
        ++questions;
        return screen;
    });
    EXPECT_EQ(helper.getDPI_OS(), 96);
    EXPECT_EQ(helper.getDPI_OS_Y(), 96);
    EXPECT_EQ(helper.iInit(), 0);
    screen = SIZE{144, 120};
    EXPECT_EQ(helper.iInit(), 1);
    EXPECT_EQ(helper.getDPI_OS(), 144);
    EXPECT_EQ(helper.getDPI_OS_Y(), 120);
    EXPECT_EQ(questions, 3);
}

TEST(CDPIHelper, AResolutionThatWasReadIsNotReadAgain)
{
    int questions = 0;
    DpiHelper helper([&] {
        ++questions;
        return std::optional(SIZE{96 * questions, 96 * questions});
    });
    EXPECT_EQ(helper.iInit(), 1);
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(helper.getDPI_OS(), 96);
}

struct Tests {
    int dpi;
    int is96, is144, is192, is240;
    int is96AndAbove, isGreaterThan96, isAtLeast120, isAtLeast144;
};

TEST(CDPIHelper, TheTestsLookAtTheResolutionInUse)
{
    const std::vector<Tests> rows{
        // dpi 96 144 192 240   >96 97-119 120-143 >=144
        {95, 0, 0, 0, 0, 0, 0, 0, 0},  {96, 1, 0, 0, 0, 0, 0, 0, 0},  {97, 0, 0, 0, 0, 1, 1, 0, 0},
        {119, 0, 0, 0, 0, 1, 1, 0, 0}, {120, 0, 0, 0, 0, 1, 0, 1, 0}, {143, 0, 0, 0, 0, 1, 0, 1, 0},
        {144, 0, 1, 0, 0, 1, 0, 0, 1}, {145, 0, 0, 0, 0, 1, 0, 0, 1}, {192, 0, 0, 1, 0, 1, 0, 0, 1},
        {240, 0, 0, 0, 1, 1, 0, 0, 1}, {480, 0, 0, 0, 0, 1, 0, 0, 1},
    };
    for (const Tests& row : rows) {
        for (const Setting& setting : {Setting{row.dpi, true, 77}, Setting{77, false, row.dpi}}) {
            const DpiHelper helper(setting);
            SCOPED_TRACE(testing::PrintToString(setting));
            EXPECT_EQ(helper.is_96DPI(), row.is96);
            EXPECT_EQ(helper.is_144DPI(), row.is144);
            EXPECT_EQ(helper.is_192DPI(), row.is192);
            EXPECT_EQ(helper.is_240DPI(), row.is240);
            EXPECT_EQ(helper.is_96DPIandAbove(), row.is96AndAbove);
            EXPECT_EQ(helper.isGreaterThan_96DPI(), row.isGreaterThan96);
            EXPECT_EQ(helper.isGreaterThanOrEqualTo_120DPI(), row.isAtLeast120);
            EXPECT_EQ(helper.isGreaterThanOrEqualTo_144DPI(), row.isAtLeast144);
        }
    }
}

TEST(CDPIHelper, EveryAccessorAndTestAnswersAnInt)
{
    using H = CDPIHelper;
    for (int (H::*const test)() const :
         {&H::getDPI_OS, &H::getSystemDPI, &H::getDPI_inUse, &H::usingOSDPI, &H::is_96DPI,
          &H::is_144DPI, &H::is_192DPI, &H::is_240DPI, &H::is_96DPIandAbove,
          &H::isGreaterThan_96DPI, &H::isGreaterThanOrEqualTo_120DPI,
          &H::isGreaterThanOrEqualTo_144DPI, &H::getToolbarButtonSizeVx,
          &H::getToolbarButtonSizeExp, &H::getToolbarImageSizeExp})
        EXPECT_NE(test, nullptr);
    static_assert(std::is_same_v<decltype(&H::setToolbarButtonSizeVx), int (H::*)(int)>);
    static_assert(std::is_same_v<decltype(&H::setToolbarButtonSizeExp), int (H::*)()>);
}

struct Scaling {
    int value;
    Results scaled;   ///< At 96, 120, 144, 192 and 240 in use.
    Results unscaled; ///< Likewise.
};

TEST(CDPIHelper, LengthsAreScaledByTheResolutionInUse)
{
    const std::vector<Scaling> rows{
        {0, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}},
        {1, {1, 1, 2, 2, 3}, {1, 1, 1, 1, 0}},
        {10, {10, 13, 15, 20, 25}, {10, 8, 7, 5, 4}},
        {-10, {-10, -13, -15, -20, -25}, {-10, -8, -7, -5, -4}},
        {25, {25, 31, 38, 50, 63}, {25, 20, 17, 13, 10}},
        {96, {96, 120, 144, 192, 240}, {96, 77, 64, 48, 38}},
    };
    for (const std::vector<Setting>& settings : {kOsInUse, kApplicationInUse}) {
        for (const Scaling& row : rows) {
            const int v = row.value;
            const auto at = [&](auto operation) { return results(settings, operation); };
            EXPECT_EQ(at([v](auto& h) { return h.scaleX(v); }), row.scaled) << v;
            EXPECT_EQ(at([v](auto& h) { return h.scaleY(v); }), row.scaled) << v;
            EXPECT_EQ(at([v](auto& h) { return h.unscaleX(v); }), row.unscaled) << v;
            EXPECT_EQ(at([v](auto& h) { return h.unscaleY(v); }), row.unscaled) << v;
        }
    }
}

TEST(CDPIHelper, BothDirectionsFollowTheHorizontalResolution)
{
    const DpiHelper helper(192, 96, Desktop{});
    EXPECT_EQ(helper.scaleY(10), 20);
    EXPECT_EQ(helper.unscaleY(10), 5);
}

struct Shapes {
    int dpi;
    RECT rect;
    SIZE size;
    POINT point;
};

TEST(CDPIHelper, RectanglesSizesAndPointsAreScaledMemberByMember)
{
    const std::vector<Shapes> rows{{96, {1, -2, 30, 41}, {7, 10}, {-3, 9}},
                                   {120, {1, -3, 38, 51}, {9, 13}, {-4, 11}},
                                   {144, {2, -3, 45, 62}, {11, 15}, {-5, 14}},
                                   {192, {2, -4, 60, 82}, {14, 20}, {-6, 18}},
                                   {240, {3, -5, 75, 103}, {18, 25}, {-8, 23}}};
    for (const Shapes& row : rows) {
        for (const Setting& setting : {Setting{row.dpi, true, 77}, Setting{77, false, row.dpi}}) {
            const DpiHelper helper(setting);
            SCOPED_TRACE(testing::PrintToString(setting));
            RECT rect{1, -2, 30, 41};
            helper.scaleRect(&rect);
            EXPECT_EQ(rect, row.rect);
            SIZE size{7, 10};
            helper.scaleSize(&size);
            EXPECT_EQ(size, row.size);
            POINT point{-3, 9};
            helper.scalePoint(&point);
            EXPECT_EQ(point, row.point);
        }
    }
}

TEST(CDPIHelper, NullIsNotScaled)
{
    const DpiHelper helper(144);
    helper.scaleRect(nullptr);
    helper.scaleSize(nullptr);
    helper.scalePoint(nullptr);
    EXPECT_EQ(helper.getDPI_inUse(), 144);
}

TEST(CDPIHelper, FontHeightsAreScaledOnAGridOf104)
{
    const auto scaled = [](auto& h) { return h.scaleFontHeight(13); };
    const auto unscaled = [](auto& h) { return h.unscaleFontHeight(13); };
    EXPECT_EQ(results(kOsInUse, scaled), (Results{13, 15, 18, 24, 30}));
    EXPECT_EQ(results(kOsInUse, unscaled), (Results{13, 11, 9, 7, 6}));
}

TEST(CDPIHelper, FontHeightsStayWhenTheOperatingSystemIsAt96)
{
    EXPECT_EQ(results(kApplicationInUse, [](auto& h) { return h.scaleFontHeight(13); }),
              (Results{13, 13, 13, 13, 13}));
    EXPECT_EQ(results(kApplicationInUse, [](auto& h) { return h.unscaleFontHeight(13); }),
              (Results{13, 13, 13, 13, 13}));
}

TEST(CDPIHelper, FontHeightsFollowTheApplicationInUseWhenTheOperatingSystemIsNotAt96)
{
    EXPECT_EQ(results(kApplicationBehindOs, [](auto& h) { return h.scaleFontHeight(13); }),
              (Results{13, 12, 12, 12, 12}));
    EXPECT_EQ(results(kApplicationBehindOs, [](auto& h) { return h.unscaleFontHeight(13); }),
              (Results{13, 14, 14, 14, 14}));
    for (const int os : {95, 97, 120, 144, 192, 240}) {
        const std::vector<Setting> settings = applicationInUseOn(os);
        EXPECT_EQ(results(settings, [](auto& h) { return h.scaleFontHeight(13); }),
                  (Results{12, 15, 18, 24, 30}))
            << os;
        EXPECT_EQ(results(settings, [](auto& h) { return h.unscaleFontHeight(13); }),
                  (Results{14, 11, 9, 7, 6}))
            << os;
    }
}

TEST(CDPIHelper, TheFontHeightOfPointsIsNegativeAndTheInstances)
{
    const auto heightOf = [](int points) {
        return [points](const Setting& setting) {
            const InstanceForTest instance(setting);
            return CDPIHelper::getOstraLogFontHeight(points);
        };
    };
    for (const std::vector<Setting>& settings : {kOsInUse, kApplicationInUse}) {
        Results eight;
        Results twelve;
        for (const Setting& setting : settings) {
            eight.push_back(heightOf(8)(setting));
            twelve.push_back(heightOf(12)(setting));
        }
        EXPECT_EQ(eight, (Results{-11, -13, -16, -21, -27}));
        EXPECT_EQ(twelve, (Results{-16, -20, -24, -32, -40}));
    }
}

TEST(CDPIHelper, AskingForTheFontHeightOfPointsMakesTheInstance)
{
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::getOstraLogFontHeight(0), 0);
    EXPECT_NE(CDPIHelper::pInstance, nullptr);
    CDPIHelper::deleteInstance();
}

TEST(CDPIHelper, LengthsAreConvertedBetweenTheTwoResolutionsWhicheverIsInUse)
{
    const auto toSystem = [](auto& h) { return h.scale_VeltrixToSystem(10); };
    const auto toVeltrix = [](auto& h) { return h.scale_SystemToVeltrix(10); };
    for (const std::vector<Setting>& settings : {kOsInUseBeforeApplication, kApplicationBehindOs}) {
        EXPECT_EQ(results(settings, toSystem), (Results{10, 13, 15, 20, 25}));
        EXPECT_EQ(results(settings, toVeltrix), (Results{10, 8, 7, 5, 4}));
    }
    EXPECT_EQ(results(kApplicationInUse, toSystem), (Results{10, 8, 7, 5, 4}));
    EXPECT_EQ(results(kApplicationInUse, toVeltrix), (Results{10, 13, 15, 20, 25}));
    EXPECT_EQ(DpiHelper(Setting{144, true, 120}).scale_VeltrixToSystem(10), 12);
    EXPECT_EQ(DpiHelper(Setting{144, true, 120}).scale_SystemToVeltrix(10), 8);
}

Results treeItemHeights(const std::vector<Setting>& settings, int menu)
{
    Desktop desktop;
    desktop.menu = menu;
    return results(
        settings, [](auto& h) { return h.getTreeItemHeight(); }, desktop);
}

TEST(CDPIHelper, TheTreeItemHeightIsAtMostTheMenusOrTheIcons)
{
    // The wished heights are 22, 28, 33, 44 and 55, the icons 24, 24, 36, 44 and 44.
    EXPECT_EQ(treeItemHeights(kOsInUse, 19), (Results{22, 24, 32, 44, 44}));
    EXPECT_EQ(treeItemHeights(kOsInUse, 20), (Results{22, 24, 32, 44, 44}));
    EXPECT_EQ(treeItemHeights(kOsInUse, 25), (Results{22, 24, 32, 44, 44}));
    EXPECT_EQ(treeItemHeights(kOsInUse, 27), (Results{22, 26, 32, 44, 44}));
    EXPECT_EQ(treeItemHeights(kOsInUse, 48), (Results{22, 28, 32, 44, 48}));
    EXPECT_EQ(treeItemHeights(kOsInUse, 60), (Results{22, 28, 32, 44, 54}));
}

TEST(CDPIHelper, ANegativeMenuHeightIsNone)
{
    EXPECT_EQ(treeItemHeights(kOsInUse, -1), (Results{22, 24, 32, 44, 44}));
    EXPECT_EQ(treeItemHeights(kOsInUse, -1000), (Results{22, 24, 32, 44, 44}));
}

struct Heights {
    int os;
    int menu;
    Results heights; ///< With the application at 96, 120, 144, 192 and 240, and in use.
};

TEST(CDPIHelper, TheTreeItemsLimitIsInTheApplicationsResolutionWhenThatIsInUse)
{
    // The wished heights are 22, 28, 33, 44 and 55, the icons 24, 24, 36, 44 and 44. The limit is
    // the larger of icon and menu, by the application's resolution over the system's.
    const std::vector<Heights> rows{
        {96, -1, {22, 28, 32, 44, 54}},  {96, 19, {22, 28, 32, 44, 54}},
        {96, 30, {22, 28, 32, 44, 54}},  {96, 48, {22, 28, 32, 44, 54}},
        {120, -1, {18, 24, 32, 44, 54}}, {120, 19, {18, 24, 32, 44, 54}},
        {120, 30, {22, 28, 32, 44, 54}}, {120, 48, {22, 28, 32, 44, 54}},
        {144, -1, {16, 20, 32, 44, 54}}, {144, 19, {16, 20, 32, 44, 54}},
        {144, 30, {20, 24, 32, 44, 54}}, {144, 48, {22, 28, 32, 44, 54}},
        {192, -1, {12, 14, 26, 44, 54}}, {192, 19, {12, 14, 26, 44, 54}},
        {192, 30, {14, 18, 26, 44, 54}}, {192, 48, {22, 28, 32, 44, 54}},
        {240, -1, {10, 12, 22, 34, 44}}, {240, 19, {10, 12, 22, 34, 44}},
        {240, 30, {12, 14, 22, 34, 44}}, {240, 48, {18, 24, 28, 38, 48}},
    };
    for (const Heights& row : rows)
        EXPECT_EQ(treeItemHeights(applicationInUseOn(row.os), row.menu), row.heights)
            << row.os << ' ' << row.menu;
}

TEST(CDPIHelper, TheIconOfTheTreeItemHeightGrowsAt32And40)
{
    // The wished heights are noted beside the results.
    const auto height = [](int dpi) {
        Desktop desktop;
        desktop.menu = 0;
        return DpiHelper(dpi, desktop).getTreeItemHeight();
    };
    EXPECT_EQ(height(137), 24); // 31
    EXPECT_EQ(height(138), 32); // 32
    EXPECT_EQ(height(172), 36); // 39
    EXPECT_EQ(height(173), 40); // 40
    EXPECT_EQ(height(192), 44); // 44
    EXPECT_EQ(height(480), 44); // 110
}

TEST(CDPIHelper, TheTreeItemHeightIsAlwaysEven)
{
    for (int dpi = 40; dpi < 500; ++dpi) {
        Desktop desktop;
        desktop.menu = 1000;
        EXPECT_EQ(DpiHelper(dpi, desktop).getTreeItemHeight() % 2, 0) << dpi;
    }
}

TEST(CDPIHelper, TheTreeItemHeightIsWorkedOutOnce)
{
    DpiHelper helper(144);
    EXPECT_EQ(helper.getTreeItemHeight(), 32);
    helper.setVeltrixDPI(96);
    helper.setUseOSDPI(false);
    EXPECT_EQ(helper.getTreeItemHeight(), 32);
}

Results menuItemHeights(const std::vector<Setting>& settings, int menu, int a, int b)
{
    Desktop desktop;
    desktop.menu = menu;
    return results(
        settings, [a, b](auto& h) { return h.getMenuItemHeight(a, b); }, desktop);
}

struct LargestOfThree {
    int menu, a, b;
    int height;
};

TEST(CDPIHelper, AMenuItemIsAsHighAsTheLargestOfThree)
{
    const std::vector<LargestOfThree> rows{
        {19, 10, 12, 19}, {19, 30, 12, 30}, {19, 10, 41, 41},  {19, -1, -2, 19},
        {38, 10, 12, 38}, {38, 30, 12, 38}, {38, 10, 41, 41},  {48, 47, 46, 48},
        {0, -1, -2, 0},   {-9, -1, -2, -1}, {-9, -30, -2, -2}, {-9, -30, -20, -9},
    };
    for (const LargestOfThree& row : rows)
        EXPECT_EQ(menuItemHeights(kOsInUse, row.menu, row.a, row.b), Results(5, row.height))
            << row.menu << ' ' << row.a << ' ' << row.b;
}

struct MenuItems {
    int os;
    int menu, a, b;
    Results heights; ///< With the application at 96, 120, 144, 192 and 240, and in use.
};

TEST(CDPIHelper, AMenuItemIsInTheApplicationsResolutionWhenThatIsInUse)
{
    const std::vector<MenuItems> rows{
        {96, 19, 10, 12, {19, 24, 29, 38, 48}},  {96, 38, 10, 12, {38, 48, 57, 76, 95}},
        {96, 38, 10, 41, {41, 51, 62, 82, 103}}, {96, 19, 30, 12, {30, 38, 45, 60, 75}},
        {120, 19, 10, 12, {15, 19, 23, 30, 38}}, {120, 38, 10, 12, {30, 38, 46, 61, 76}},
        {120, 38, 10, 41, {33, 41, 49, 66, 82}}, {120, 19, 30, 12, {24, 30, 36, 48, 60}},
        {144, 19, 10, 12, {13, 16, 19, 25, 32}}, {144, 38, 10, 12, {25, 32, 38, 51, 63}},
        {144, 38, 10, 41, {27, 34, 41, 55, 68}}, {144, 19, 30, 12, {20, 25, 30, 40, 50}},
        {192, 19, 10, 12, {10, 12, 14, 19, 24}}, {192, 38, 10, 12, {19, 24, 29, 38, 48}},
        {192, 38, 10, 41, {21, 26, 31, 41, 51}}, {192, 19, 30, 12, {15, 19, 23, 30, 38}},
        {240, 19, 10, 12, {8, 10, 11, 15, 19}},  {240, 38, 10, 12, {15, 19, 23, 30, 38}},
        {240, 38, 10, 41, {16, 21, 25, 33, 41}}, {240, 19, 30, 12, {12, 15, 18, 24, 30}},
    };
    for (const MenuItems& row : rows)
        EXPECT_EQ(menuItemHeights(applicationInUseOn(row.os), row.menu, row.a, row.b), row.heights)
            << row.os << ' ' << row.menu << ' ' << row.a << ' ' << row.b;
}

TEST(CDPIHelper, ListItemsAre20HighOnTheDesignGrid)
{
    const auto height = [](auto& h) { return h.getListAndComboBoxItemHeight(); };
    EXPECT_EQ(results(kOsInUse, height), (Results{20, 25, 30, 40, 50}));
    EXPECT_EQ(results(kApplicationInUse, height), (Results{20, 25, 30, 40, 50}));
    EXPECT_EQ(results(kApplicationBehindOs, height), (Results{20, 20, 20, 20, 20}));
}

TEST(CDPIHelper, ThereIsOneInstanceUntilItIsDeleted)
{
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::pInstance, nullptr);
    CDPIHelper* const helper = CDPIHelper::get();
    ASSERT_NE(helper, nullptr);
    EXPECT_EQ(CDPIHelper::get(), helper);
    EXPECT_EQ(CDPIHelper::pInstance, helper);
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::pInstance, nullptr);
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::pInstance, nullptr);
}

TEST(CDPIHelper, ANewInstanceHasItsDefaultsAgain)
{
    CDPIHelper::deleteInstance();
    CDPIHelper::get()->setVeltrixDPI(192);
    CDPIHelper::get()->setUseOSDPI(false);
    CDPIHelper::get()->setToolbarButtonSizeVx(72);
    CDPIHelper::deleteInstance();
    EXPECT_EQ(CDPIHelper::get()->usingOSDPI(), 1);
    EXPECT_EQ(CDPIHelper::get()->getToolbarButtonSizeVx(), 28);
    CDPIHelper::get()->setUseOSDPI(false);
    EXPECT_EQ(CDPIHelper::get()->getDPI_inUse(), 96);
    CDPIHelper::deleteInstance();
}

TEST(CDPIHelper, OnlyItselfMakesAndFreesIt)
{
    EXPECT_FALSE(std::is_default_constructible_v<CDPIHelper>);
    EXPECT_FALSE(std::is_copy_constructible_v<CDPIHelper>);
    EXPECT_FALSE(std::is_destructible_v<CDPIHelper>);
}

TEST(CDPIHelper, TheInstanceIsAtThePrimaryScreensResolution)
{
    CDPIHelper::deleteInstance();
    const QScreen* screen = QGuiApplication::primaryScreen();
    ASSERT_NE(screen, nullptr);
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS(), qRound(screen->logicalDotsPerInchX()));
    EXPECT_EQ(CDPIHelper::get()->getDPI_OS_Y(), qRound(screen->logicalDotsPerInchY()));
    EXPECT_EQ(CDPIHelper::get()->iInit(), 1);
    CDPIHelper::deleteInstance();
}

} // namespace
