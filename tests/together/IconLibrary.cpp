#include <condtree/presentation/ConditionImages.h>
#include <condtree/presentation/WfIconLibrary.h>
#include <condtree/values/OperatorCatalogue.h>

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <vector>

namespace condtree {

namespace {

/// The image lists over the real module.
struct Images {
    IconEntryPoints bound;
    WfIconLibrary library{[] { return QStringList{QStringLiteral(CONDTREE_ICON_LIBRARY)}; },
                          ModuleTrust::ofProcess(), bound};
    ConditionImages lists;
    void append() { lists.append(library, {16, 16}, 32); }
};

/// How many pixels of a picture are neither transparent nor white.
int inkOf(const QImage& image)
{
    int ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y)) > 64 && qGray(image.pixel(x, y)) < 224 ? 1 : 0;
    }
    return ink;
}

TEST(IconLibrary, EverySetUpAppendsEightRowIconsAndFortyTwoOperators)
{
    Images images;
    for (const int times : {1, 2}) {
        images.append();
        EXPECT_EQ(images.lists.rows()->count(), 8 * times);
        EXPECT_EQ(images.lists.operators()->count(), 42 * times);
    }
    EXPECT_EQ(images.lists.rows()->image(15), images.lists.rows()->image(7));
    EXPECT_EQ(images.lists.operators()->image(83), images.lists.operators()->image(41));
    EXPECT_NE(images.bound.loadAtSize, nullptr);
}

TEST(IconLibrary, EveryRowIconIsAPictureOfItsOwnInEverySize)
{
    Images images;
    images.append();
    for (const int side : {16, 20, 24, 32, 40, 48}) {
        std::vector<QImage> seen;
        for (int i = 0; i < 8; ++i) {
            const QImage icon = images.lists.rows()->image(i, {side, side});
            EXPECT_EQ(icon.size(), QSize(side, side));
            EXPECT_GT(inkOf(icon), side * side / 16) << side << " " << i;
            EXPECT_EQ(std::count(seen.begin(), seen.end(), icon), 0) << side << " " << i;
            seen.push_back(icon);
        }
    }
}

TEST(IconLibrary, EveryOperatorHasAPictureOfItsOwnInEverySize)
{
    Images images;
    images.append();
    const std::vector<LONG> operators{100, 101, 102, 103, 104, 105, 106, 107, 108, 120, 121,
                                      122, 123, 124, 125, 130, 131, 132, 133, 134, 135, 139};
    for (const int side : {16, 20, 24, 32, 40, 48}) {
        std::vector<QImage> seen;
        for (const LONG op : operators) {
            const QImage icon =
                images.lists.operators()->image(operatorImageIndex(op), {side, side});
            EXPECT_GT(inkOf(icon), side * side / 16) << side << " " << op;
            EXPECT_EQ(qAlpha(icon.pixel(0, side - 1)), 0) << side << " " << op;
            EXPECT_EQ(std::count(seen.begin(), seen.end(), icon), 0) << side << " " << op;
            seen.push_back(icon);
        }
    }
}

// What is drawn for a size has all its pixels: an enlarged picture would differ.
TEST(IconLibrary, PicturesOfAnotherSizeAreTheLibrarysOwn)
{
    Images images;
    images.append();
    IconPixels strip;
    ASSERT_EQ(images.library.loadAtSize(QStringLiteral("PNG_GREEN_OPS"), 40, strip),
              IconResult::Loaded);
    const QImage whole(strip.bytes.data(), strip.width, strip.height, QImage::Format_ARGB32);
    const QImage expected =
        whole.copy(2 * 40, 0, 40, 40).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage picture = images.lists.operators()->image(20, {40, 40});
    for (int y = 0; y < 40; ++y) {
        for (int x = 0; x < 40; ++x) {
            if (qAlpha(expected.pixel(x, y)) == 255) {
                ASSERT_EQ(picture.pixel(x, y), expected.pixel(x, y)) << x << " " << y;
            }
        }
    }
}

} // namespace

} // namespace condtree
