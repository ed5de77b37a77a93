#include "Module.h"

#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <rapidcheck/gtest.h>

#include <array>
#include <string>

using namespace condtree;
using test::Module;
using test::taken;

namespace {

constexpr std::array kRowIcons{u"PNG_NEW_FILE", u"PNG_AND",        u"PNG_OR",   u"PNG_ALL_CARD",
                               u"PNG_DELETE",   u"PNG_CATEGORIES", u"PNG_USER", u"PNG_GROUPS"};

struct StripName {
    const char16_t* name;
    int cells;
};
constexpr std::array kStrips{StripName{u"PNG_BLUE_OPS", 9}, StripName{u"PNG_RED_OPS", 9},
                             StripName{u"PNG_GREEN_OPS", 9}, StripName{u"PNG_YELLOW_OPS", 15}};

constexpr std::array kHeights{16, 20, 24, 32, 48};

TEST(WfIconsModule, EveryRowIconComesAsAnIconOfTheSmallIconsSize)
{
    const Module module;
    for (const char16_t* name : kRowIcons) {
        const QImage icon = taken(module.icon(name));
        EXPECT_EQ(icon.size(), QSize(16, 16)) << QString::fromUtf16(name).toStdString();
    }
}

TEST(WfIconsModule, EveryStripComesAsAnImageOfItsCells)
{
    const Module module;
    int cells = 0;
    for (const StripName& strip : kStrips) {
        const QImage image = taken(module.image(strip.name));
        EXPECT_EQ(image.size(), QSize(16 * strip.cells, 16));
        cells += image.width() / 16;
    }
    EXPECT_EQ(cells, 42);
}

TEST(WfIconsModule, EveryPictureComesAtEverySize)
{
    const Module module;
    for (const int height : {1, 7, 16, 18, 20, 24, 25, 32, 40, 48, 256}) {
        for (const char16_t* name : kRowIcons)
            EXPECT_EQ(taken(module.atSize(name, height)).size(), QSize(height, height));
        for (const StripName& strip : kStrips)
            EXPECT_EQ(taken(module.atSize(strip.name, height)).size(),
                      QSize(height * strip.cells, height));
    }
}

TEST(WfIconsModule, AtTheCurrentSizeIsTheSameAsAtSize)
{
    const Module module;
    EXPECT_EQ(taken(module.icon(u"PNG_OR")), taken(module.atSize(u"PNG_OR", 16)));
    EXPECT_EQ(taken(module.image(u"PNG_RED_OPS")), taken(module.atSize(u"PNG_RED_OPS", 16)));
}

TEST(WfIconsModule, RowIconsAreOfTheirOwnPicturesAndClearAround)
{
    const Module module;
    for (const int height : kHeights) {
        std::vector<QImage> seen;
        for (const char16_t* name : kRowIcons) {
            const QImage icon = taken(module.atSize(name, height));
            int opaque = 0;
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < height; ++x)
                    opaque += qAlpha(icon.pixel(x, y)) == 0xFF ? 1 : 0;
            EXPECT_GT(opaque, height * height / 10) << QString::fromUtf16(name).toStdString();
            EXPECT_EQ(icon.pixel(0, 0), 0U) << QString::fromUtf16(name).toStdString();
            for (const QImage& other : seen)
                EXPECT_NE(icon, other) << QString::fromUtf16(name).toStdString();
            seen.push_back(icon);
        }
    }
}

TEST(WfIconsModule, EachEntryPointHasItsOwnNamesOnly)
{
    const Module module;
    for (const char16_t* name : kRowIcons)
        EXPECT_EQ(module.image(name), nullptr);
    for (const StripName& strip : kStrips)
        EXPECT_EQ(module.icon(strip.name), nullptr);
}

TEST(WfIconsModule, UnknownAndMissingNamesHaveNoPicture)
{
    const Module module;
    for (const char16_t* name : {static_cast<const char16_t*>(nullptr), u"", u"PNG_", u"PNG_and",
                                 u"png_AND", u"PNG_AND ", u"PNG_ANDY", u"and", u"../and"}) {
        EXPECT_EQ(module.icon(name), nullptr);
        EXPECT_EQ(module.image(name), nullptr);
        EXPECT_EQ(module.atSize(name, 16), nullptr);
    }
}

RC_GTEST_PROP(WfIconsModule, NoOtherNameHasAPicture, (const std::u16string& name))
{
    const Module module;
    RC_ASSERT(module.icon(name.c_str()) == nullptr);
    RC_ASSERT(module.image(name.c_str()) == nullptr);
    RC_ASSERT(module.atSize(name.c_str(), 16) == nullptr);
}

TEST(WfIconsModule, OtherUsesThanSmallIconsHaveNoPicture)
{
    const Module module;
    for (const int use : {-2147483647 - 1, -1, 0, 1, 2, 4, 5, 6, 7, 2147483647}) {
        EXPECT_EQ(module.icon(u"PNG_AND", use), nullptr) << use;
        EXPECT_EQ(module.image(u"PNG_BLUE_OPS", use), nullptr) << use;
    }
}

TEST(WfIconsModule, SizesThatNoScreenNeedsHaveNoPicture)
{
    const Module module;
    for (const int height : {-2147483647 - 1, -16, 0, 1025, 2147483647}) {
        EXPECT_EQ(module.atSize(u"PNG_AND", height), nullptr) << height;
        EXPECT_EQ(module.atSize(u"PNG_YELLOW_OPS", height), nullptr) << height;
    }
    EXPECT_EQ(taken(module.atSize(u"PNG_YELLOW_OPS", 1024)).size(), QSize(15 * 1024, 1024));
}

TEST(WfIconsModule, PicturesOutliveTheModuleWhichCanBeLoadedAgain)
{
    WfImage* first = nullptr;
    {
        const Module module;
        first = module.icon(u"PNG_USER");
    }
    EXPECT_EQ(dlopen(CONDTREE_WFICONS_MODULE, RTLD_NOW | RTLD_NOLOAD), nullptr)
        << "the module stayed loaded";
    const Module again;
    const QImage picture = taken(first);
    EXPECT_FALSE(picture.isNull());
    EXPECT_EQ(picture, taken(again.icon(u"PNG_USER")));
}

} // namespace
