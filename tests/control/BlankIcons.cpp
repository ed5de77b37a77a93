#include <condtree/control/BlankIcons.h>
#include <condtree/platform/Services.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace condtree {
namespace {

int metric(int which)
{
    return which == SM_CXSMICON ? 16 : which == SM_CYSMICON ? 20 : 0;
}

bool isClear(const IconPixels& pixels)
{
    return std::all_of(pixels.bytes.begin(), pixels.bytes.end(),
                       [](std::uint8_t byte) { return byte == 0; });
}

TEST(BlankIcons, AnIconHasTheSizeOfSmallIconsAndNothingInIt)
{
    BlankIcons icons(metric);
    IconPixels icon;
    EXPECT_EQ(icons.loadIcon(QStringLiteral("PNG_AND"), 3, icon), IconResult::Loaded);
    EXPECT_EQ(icon.width, 16);
    EXPECT_EQ(icon.height, 20);
    EXPECT_EQ(icon.bytes.size(), 16U * 20U * 4U);
    EXPECT_TRUE(isClear(icon));
}

TEST(BlankIcons, TheFourStripsHoldFortyTwoPictures)
{
    BlankIcons icons(metric);
    int pictures = 0;
    for (const char* name : {"PNG_BLUE_OPS", "PNG_RED_OPS", "PNG_GREEN_OPS", "PNG_YELLOW_OPS"}) {
        IconPixels strip;
        EXPECT_EQ(icons.loadImage(QString::fromLatin1(name), 3, strip), IconResult::Loaded);
        EXPECT_EQ(strip.width % 16, 0);
        EXPECT_TRUE(isClear(strip));
        pictures += strip.width / 16;
    }
    EXPECT_EQ(pictures, 42);
}

TEST(BlankIcons, AnUnknownStripIsNoImage)
{
    BlankIcons icons(metric);
    IconPixels strip;
    EXPECT_EQ(icons.loadImage(QStringLiteral("PNG_PINK_OPS"), 3, strip), IconResult::NoImage);
}

} // namespace
} // namespace condtree
