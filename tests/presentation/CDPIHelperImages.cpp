#include <condtree/presentation/CDPIHelper.h>

#include "presentation/DpiHelper.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

using namespace condtree;
using namespace condtree::test;

// The images that the DPI helper chooses: their sizes and the suffixes of their names.
namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

e_kiroImageUseType use(int number)
{
    return static_cast<e_kiroImageUseType>(number);
}

TEST(CDPIHelperImages, TheUsesHaveTheirNumbers)
{
    EXPECT_EQ(ImageUseToolbar, 0);
    EXPECT_EQ(ImageUseTreeItem, 1);
    EXPECT_EQ(ImageUseScreen, 2);
    EXPECT_EQ(ImageUseSmallIcon, 3);
    EXPECT_EQ(ImageUseLargeIcon, 4);
    EXPECT_EQ(ImageUseIconSheet, 5);
    EXPECT_EQ(ImageUseFixed, 6);
}

TEST(CDPIHelperImages, TheFirstToolbarStylesButtonsStartAt28)
{
    DpiHelper helper(96);
    EXPECT_EQ(helper.getToolbarButtonSizeVx(), 28);
    EXPECT_EQ(helper.setToolbarButtonSizeVx(40), 40);
    EXPECT_EQ(helper.getToolbarButtonSizeVx(), 40);
}

TEST(CDPIHelperImages, TheSecondToolbarStyleFollowsTheSmallIcons)
{
    for (const auto& [icon, button] : {std::pair{16, 24}, {20, 28}, {24, 32}, {32, 40}, {40, 48}}) {
        Desktop desktop;
        desktop.smallIconX = icon;
        DpiHelper helper(96, desktop);
        EXPECT_EQ(helper.getToolbarButtonSizeExp(), button);
        EXPECT_EQ(helper.setToolbarButtonSizeExp(), button);
        EXPECT_EQ(helper.getToolbarButtonSizeExp(), button);
        EXPECT_EQ(helper.getToolbarImageSizeExp(), icon);
    }
}

struct Button {
    int button;
    int image;
    const char* suffix;
};

TEST(CDPIHelperImages, AToolbarImageIsTheLargestThatFitsItsButton)
{
    const std::vector<Button> rows{
        {kMin, 20, "_20"}, {-8, 20, "_20"},    {0, 20, "_20"},     {28, 20, "_20"},
        {39, 20, "_20"},   {40, 32, "_32"},    {47, 32, "_32"},    {48, 40, "_40"},
        {71, 40, "_40"},   {72, 64, "_64"},    {103, 64, "_64"},   {104, 96, "_96"},
        {135, 96, "_96"},  {136, 128, "_128"}, {137, 128, "_128"}, {kMax, 128, "_128"},
    };
    for (const Button& row : rows) {
        DpiHelper helper(96);
        helper.setToolbarButtonSizeVx(row.button);
        EXPECT_EQ(helper.getToolbarImageSizeVx(), row.image) << row.button;
        EXPECT_EQ(helper.getDesiredBitmapImageSz(use(0)), row.image) << row.button;
        EXPECT_EQ(helper.getDesiredBitmapImageSize(use(0), {1, 2}), (SIZE{row.image, row.image}));
        EXPECT_EQ(helper.getImageSizeSuffix(use(0)).toStdString(), row.suffix) << row.button;
    }
}

struct ButtonType {
    int dpi;
    int plain, type1, type2;
};

TEST(CDPIHelperImages, AToolbarTypeMakesButtonsForTheResolutionInUse)
{
    const std::vector<ButtonType> rows{
        {96, 28, 40, 48},   {120, 28, 40, 48},   {144, 40, 48, 72},    {192, 48, 72, 104},
        {240, 48, 72, 104}, {288, 72, 104, 136}, {384, 104, 136, 136}, {480, 136, 136, 136},
    };
    for (const ButtonType& row : rows) {
        for (const Setting& setting : {Setting{row.dpi, true, 77}, Setting{77, false, row.dpi}}) {
            const auto sizeFor = [&setting](int type) {
                DpiHelper helper(setting);
                const int size = helper.setToolBarBtnTypeVx(type);
                EXPECT_EQ(helper.getToolbarButtonSizeVx(), size);
                return size;
            };
            SCOPED_TRACE(testing::PrintToString(setting));
            EXPECT_EQ(sizeFor(1), row.type1);
            EXPECT_EQ(sizeFor(2), row.type2);
            for (const int type : {0, 3, -1, kMin, kMax})
                EXPECT_EQ(sizeFor(type), row.plain) << type;
        }
    }
}

TEST(CDPIHelperImages, AToolbarTypeDoesNotDependOnTheSizeBefore)
{
    DpiHelper helper(96);
    helper.setToolBarBtnTypeVx(2);
    helper.setToolBarBtnTypeVx(1);
    EXPECT_EQ(helper.getToolbarButtonSizeVx(), 40);
}

TEST(CDPIHelperImages, TheNextSizeClimbsTheLadder)
{
    for (const auto& [size, next] : {std::pair{20, 32},
                                     {32, 40},
                                     {40, 64},
                                     {64, 96},
                                     {96, 128},
                                     {128, 128},
                                     {0, 128},
                                     {21, 128},
                                     {-20, 128},
                                     {256, 128}})
        EXPECT_EQ(CDPIHelper::getNextImageSize(size), next) << size;
}

struct TreeImage {
    Setting setting;
    int menu;
    int height;
    int image;
    const char* suffix;
};

TEST(CDPIHelperImages, ATreeImageFollowsTheHeightOfTheRows)
{
    const std::vector<TreeImage> rows{
        {{96, true, 240}, 60, 22, 20, "_20"},
        {{120, true, 192}, 60, 28, 20, "_20"},
        {{131, true, 96}, 60, 30, 20, "_20"},
        {{138, true, 96}, 60, 32, 32, "_32"},
        {{144, true, 96}, 60, 32, 32, "_32"},
        {{172, true, 96}, 60, 38, 32, "_32"},
        {{173, true, 96}, 60, 40, 40, "_40"},
        {{192, true, 120}, 60, 44, 40, "_40"},
        {{240, true, 144}, 60, 54, 40, "_40"},
        // The application's resolution, on one as high, a lower and a higher one.
        {{96, false, 96}, 19, 22, 20, "_20"},
        {{240, false, 96}, 19, 10, 20, "_20"},
        {{120, false, 120}, 19, 24, 20, "_20"},
        {{96, false, 120}, 19, 28, 20, "_20"},
        {{192, false, 120}, 19, 14, 20, "_20"},
        {{144, false, 144}, 19, 32, 32, "_32"},
        {{96, false, 144}, 19, 32, 32, "_32"},
        {{192, false, 144}, 19, 26, 20, "_20"},
        {{192, false, 192}, 19, 44, 40, "_40"},
        {{120, false, 192}, 19, 44, 40, "_40"},
        {{240, false, 192}, 19, 34, 32, "_32"},
        {{240, false, 240}, 19, 44, 40, "_40"},
        {{96, false, 240}, 19, 54, 40, "_40"},
    };
    for (const TreeImage& row : rows) {
        SCOPED_TRACE(testing::PrintToString(row.setting));
        Desktop desktop;
        desktop.menu = row.menu;
        DpiHelper helper(row.setting, desktop);
        EXPECT_EQ(helper.getDesiredBitmapImageSz(use(1)), row.image);
        EXPECT_EQ(helper.getDesiredBitmapImageSize(use(1), {1, 2}), (SIZE{row.image, row.image}));
        EXPECT_EQ(helper.getImageSizeSuffix(use(1)).toStdString(), row.suffix);
        EXPECT_EQ(helper.getTreeItemHeight(), row.height);
    }
}

struct ScreenImage {
    int dpi;
    int image;
    const char* suffix;
};

const std::vector<ScreenImage> kScreenImages{
    {0, 20, "_20"},   {96, 20, "_20"},  {120, 20, "_20"}, {143, 20, "_20"}, {144, 32, "_32"},
    {192, 32, "_32"}, {193, 40, "_40"}, {240, 40, "_40"}, {960, 40, "_40"},
};

TEST(CDPIHelperImages, AScreenImageFollowsTheOperatingSystemWhicheverIsInUse)
{
    for (const ScreenImage& row : kScreenImages) {
        for (const bool usesOs : {true, false}) {
            DpiHelper helper(Setting{row.dpi, usesOs, 150});
            EXPECT_EQ(helper.getDesiredBitmapImageSz(use(2)), row.image) << row.dpi;
            EXPECT_EQ(helper.getDesiredBitmapImageSize(use(2), {1, 2}),
                      (SIZE{row.image, row.image}));
            EXPECT_EQ(helper.getImageSizeSuffix(use(2)).toStdString(), row.suffix) << row.dpi;
        }
    }
}

TEST(CDPIHelperImages, TheInstancesImageSizeIsAScreenImages)
{
    for (const ScreenImage& row : kScreenImages) {
        const InstanceForTest instance(Setting{row.dpi, false, 150});
        EXPECT_EQ(CDPIHelper::getImageSize(use(2)), row.image) << row.dpi;
        for (const int other : {-1, 0, 1, 3, 4, 5, 6, 7})
            EXPECT_EQ(CDPIHelper::getImageSize(use(other)), 0) << other;
    }
}

TEST(CDPIHelperImages, AskingForAScreenImageMakesTheInstance)
{
    CDPIHelper::deleteInstance();
    EXPECT_GE(CDPIHelper::getImageSize(ImageUseScreen), 20);
    EXPECT_NE(CDPIHelper::pInstance, nullptr);
    CDPIHelper::deleteInstance();
}

TEST(CDPIHelperImages, IconImagesAreTheDesktops)
{
    const Desktop desktop{17, 18, 33, 34, 19};
    DpiHelper helper(96, desktop);
    EXPECT_EQ(helper.getDesiredBitmapImageSz(use(3)), 17);
    EXPECT_EQ(helper.getDesiredBitmapImageSize(use(3), {1, 2}), (SIZE{17, 18}));
    EXPECT_EQ(helper.getDesiredBitmapImageSz(use(4)), 33);
    EXPECT_EQ(helper.getDesiredBitmapImageSize(use(4), {1, 2}), (SIZE{33, 34}));
}

TEST(CDPIHelperImages, TheFixedImageIs256)
{
    DpiHelper helper(96);
    EXPECT_EQ(helper.getDesiredBitmapImageSz(use(6)), 256);
    EXPECT_EQ(helper.getDesiredBitmapImageSize(use(6), {1, 2}), (SIZE{256, 256}));
    EXPECT_EQ(helper.getImageSizeSuffix(use(6)), QStringLiteral("_256"));
}

TEST(CDPIHelperImages, OtherUsesHaveNoSize)
{
    DpiHelper helper(240);
    for (const int other : {5, 7, 100, -1, kMin, kMax}) {
        EXPECT_EQ(helper.getDesiredBitmapImageSz(use(other)), 0) << other;
        EXPECT_EQ(helper.getDesiredBitmapImageSize(use(other), {11, 12}), (SIZE{11, 12})) << other;
    }
}

struct IconSuffix {
    int icon;
    const char* suffix;
};

TEST(CDPIHelperImages, ASmallIconsSuffixFollowsItsWidth)
{
    const std::vector<IconSuffix> rows{
        {0, ""},     {16, ""},    {19, ""},    {20, "_20"}, {23, "_20"}, {24, "_24"},
        {31, "_24"}, {32, "_32"}, {39, "_32"}, {40, "_40"}, {41, "_40"}, {64, "_40"},
    };
    for (const IconSuffix& row : rows) {
        Desktop desktop;
        desktop.smallIconX = row.icon;
        EXPECT_EQ(DpiHelper(96, desktop).getImageSizeSuffix(use(3)).toStdString(), row.suffix)
            << row.icon;
    }
}

TEST(CDPIHelperImages, ALargeIconsSuffixFollowsItsWidth)
{
    const std::vector<IconSuffix> rows{
        {0, "_32"},  {32, "_32"}, {39, "_32"}, {40, "_40"}, {47, "_40"},  {48, "_48"},
        {63, "_48"}, {64, "_64"}, {79, "_64"}, {80, "_80"}, {200, "_80"},
    };
    for (const IconSuffix& row : rows) {
        Desktop desktop;
        desktop.iconX = row.icon;
        EXPECT_EQ(DpiHelper(96, desktop).getImageSizeSuffix(use(4)).toStdString(), row.suffix)
            << row.icon;
    }
}

TEST(CDPIHelperImages, AnIconSheetsSuffixFollowsTheLargeIcons)
{
    const std::vector<IconSuffix> rows{
        {0, "_256"},  {31, "_256"}, {32, "_96"},  {40, "_96"},  {64, "_96"},
        {65, "_128"}, {80, "_128"}, {96, "_128"}, {97, "_256"}, {200, "_256"},
    };
    for (const IconSuffix& row : rows) {
        Desktop desktop;
        desktop.iconX = row.icon;
        EXPECT_EQ(DpiHelper(96, desktop).getImageSizeSuffix(use(5)).toStdString(), row.suffix)
            << row.icon;
    }
}

TEST(CDPIHelperImages, OtherUsesHaveNoSuffix)
{
    DpiHelper helper(240);
    for (const int other : {7, 100, -1, kMin, kMax})
        EXPECT_EQ(helper.getImageSizeSuffix(use(other)), CString()) << other;
}

struct Step {
    int use;
    const char16_t* current;
    const char16_t* smaller;
};

const std::vector<Step> kSteps{
    {0, u"_128", u"_96"},
    {0, u"_96", u"_64"},
    {0, u"_64", u"_40"},
    {0, u"_40", u"_32"},
    {0, u"_32", u"_20"},
    {0, u"_20", u"_20"},
    {0, u"", u"_20"},
    {0, u"_256", u"_20"},
    {0, u"_48", u"_20"},
    {1, u"_40", u"_32"},
    {1, u"_32", u"_20"},
    {1, u"_20", u""},
    {1, u"", u""},
    {1, u"_64", u""},
    {2, u"_40", u"_32"},
    {2, u"_32", u"_20"},
    {2, u"_20", u""},
    {2, u"", u""},
    {2, u"_64", u""},
    {3, u"_40", u"_32"},
    {3, u"_32", u"_24"},
    {3, u"_24", u"_20"},
    {3, u"_20", u""},
    {3, u"", u""},
    {3, u"_48", u""},
    {4, u"_80", u"_64"},
    {4, u"_64", u"_48"},
    {4, u"_48", u"_40"},
    {4, u"_40", u"_32"},
    {4, u"_32", u"_32"},
    {4, u"", u"_32"},
    {4, u"_96", u"_32"},
    {4, u"_256", u"_32"},
    {5, u"_256", u""},
    {5, u"_128", u""},
    {5, u"", u""},
    {6, u"_256", u"_128"},
    {6, u"_128", u"_96"},
    {6, u"_96", u"_80"},
    {6, u"_80", u"_64"},
    {6, u"_64", u"_48"},
    {6, u"_48", u"_40"},
    {6, u"_40", u"_32"},
    {6, u"_32", u"_32"},
    {6, u"", u"_32"},
    {6, u"_20", u"_32"},
    {7, u"_256", u""},
    {-1, u"_40", u""},
    {100, u"_80", u""},
    {kMin, u"_32", u""},
    // Exactly the suffix, nothing that resembles it.
    {3, u"_40 ", u""},
    {3, u"40", u""},
    {0, u"_1280", u"_20"},
};

TEST(CDPIHelperImages, TheSmallerSuffixIsOneStepDown)
{
    for (const Step& row : kSteps) {
        const CString smaller = CDPIHelper::getSmallerImageSizeSuffix(use(row.use), row.current);
        EXPECT_EQ(smaller.toStdString(), CString::fromUtf16(row.smaller).toStdString())
            << row.use << ' ' << CString::fromUtf16(row.current).toStdString();
    }
}

TEST(CDPIHelperImages, NoSuffixAtAllIsAnEmptyOne)
{
    EXPECT_EQ(CDPIHelper::getSmallerImageSizeSuffix(use(0), nullptr), QStringLiteral("_20"));
    EXPECT_EQ(CDPIHelper::getSmallerImageSizeSuffix(use(3), nullptr), CString());
    EXPECT_EQ(CDPIHelper::getSmallerImageSizeSuffix(use(4), nullptr), QStringLiteral("_32"));
}

struct AtResolution {
    int dpi;
    Desktop desktop;
    /// Sizes, then suffixes, of the uses 0 to 6.
    std::vector<int> sizes;
    std::vector<std::string> suffixes;
    /// The tree's image, use 1, with the application at 96, 120, 144, 192 and 240, and in use.
    std::vector<int> treeImages;
};

const std::vector<AtResolution> kUsualDesktops{
    {96,
     {16, 16, 32, 32, 19},
     {20, 20, 20, 16, 32, 0, 256},
     {"_20", "_20", "_20", "", "_32", "_96", "_256"},
     {20, 20, 32, 40, 40}},
    {120,
     {20, 20, 40, 40, 24},
     {20, 20, 20, 20, 40, 0, 256},
     {"_20", "_20", "_20", "_20", "_40", "_96", "_256"},
     {20, 20, 32, 40, 40}},
    {144,
     {24, 24, 48, 48, 29},
     {20, 32, 32, 24, 48, 0, 256},
     {"_20", "_32", "_32", "_24", "_48", "_96", "_256"},
     {20, 20, 32, 40, 40}},
    {192,
     {32, 32, 64, 64, 38},
     {20, 40, 32, 32, 64, 0, 256},
     {"_20", "_40", "_32", "_32", "_64", "_96", "_256"},
     {20, 20, 20, 40, 40}},
    {240,
     {40, 40, 80, 80, 48},
     {20, 40, 40, 40, 80, 0, 256},
     {"_20", "_40", "_40", "_40", "_80", "_128", "_256"},
     {20, 20, 20, 32, 40}},
};

void expectImage(DpiHelper& helper, int number, int size, const std::string& suffix)
{
    EXPECT_EQ(helper.getDesiredBitmapImageSz(use(number)), size) << number;
    EXPECT_EQ(helper.getImageSizeSuffix(use(number)).toStdString(), suffix) << number;
}

TEST(CDPIHelperImages, TheUsualDesktopsHaveTheirImages)
{
    for (const AtResolution& row : kUsualDesktops) {
        for (const int application : {77, 96, 120, 144, 192, 240}) {
            const Setting setting{row.dpi, true, application};
            SCOPED_TRACE(testing::PrintToString(setting));
            DpiHelper helper(setting, row.desktop);
            for (std::size_t number = 0; number <= 6; ++number)
                expectImage(helper, int(number), row.sizes[number], row.suffixes[number]);
        }
    }
}

TEST(CDPIHelperImages, OnTheUsualDesktopsOnlyTheTreesImageFollowsAnApplicationInUse)
{
    const std::vector<int> applications{96, 120, 144, 192, 240};
    for (const AtResolution& row : kUsualDesktops) {
        for (std::size_t at = 0; at < applications.size(); ++at) {
            const Setting setting{row.dpi, false, applications[at]};
            SCOPED_TRACE(testing::PrintToString(setting));
            DpiHelper helper(setting, row.desktop);
            expectImage(helper, 1, row.treeImages[at], "_" + std::to_string(row.treeImages[at]));
            for (const std::size_t number : {0U, 2U, 3U, 4U, 5U, 6U})
                expectImage(helper, int(number), row.sizes[number], row.suffixes[number]);
        }
    }
}

} // namespace
