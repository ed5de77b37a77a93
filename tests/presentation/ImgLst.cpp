#include <condtree/presentation/ImgLst.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <limits>
#include <type_traits>

using namespace condtree;

namespace {

constexpr COLORREF kSilver = 0x00C0C0C0;

QImage plain(int width, int height, QRgb colour)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(colour);
    return image;
}

/// A strip of so many pictures, each of one grey: 10, 20, 30...
QImage strip(int pictures, int width, int height)
{
    QImage image(pictures * width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grey = 10 * (x / width + 1);
            image.setPixel(x, y, qRgb(grey, grey, grey));
        }
    }
    return image;
}

TEST(ImgLst, StartsEmptyAndKnowsItsSize)
{
    const ImgLst list({16, 12});
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.imageSize(), QSize(16, 12));
}

// It owns its pictures, and whoever derives from it may be deleted as the list.
static_assert(!std::is_copy_constructible_v<ImgLst> && !std::is_copy_assignable_v<ImgLst>);
static_assert(!std::is_move_constructible_v<ImgLst> && !std::is_move_assignable_v<ImgLst>);
static_assert(std::has_virtual_destructor_v<ImgLst>);

TEST(ImgLst, PicturesAreReachedInTheOrderInWhichTheyCame)
{
    ImgLst list({2, 2});
    list.append(plain(2, 2, 0xFF0000FF));
    list.append(plain(2, 2, 0xFF00FF00));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.image(0).pixel(0, 0), 0xFF0000FF);
    EXPECT_EQ(list.image(1).pixel(0, 0), 0xFF00FF00);
}

TEST(ImgLst, AnIndexOutsideTheListIsANullImage)
{
    ImgLst list({2, 2});
    list.append(plain(2, 2, 0xFF0000FF));
    EXPECT_TRUE(list.image(-1).isNull());
    EXPECT_TRUE(list.image(1).isNull());
}

TEST(ImgLst, AStripIsCutIntoPicturesOfTheListsWidth)
{
    ImgLst list({4, 3});
    list.appendStrip(strip(5, 4, 3), kSilver);
    ASSERT_EQ(list.count(), 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(list.image(i).size(), QSize(4, 3));
        EXPECT_EQ(qRed(list.image(i).pixel(0, 0)), 10 * (i + 1));
        EXPECT_EQ(qRed(list.image(i).pixel(3, 2)), 10 * (i + 1));
    }
}

TEST(ImgLst, StripsAreAppendedBehindOneAnother)
{
    ImgLst list({4, 3});
    list.appendStrip(strip(2, 4, 3), kSilver);
    list.appendStrip(strip(3, 4, 3), kSilver);
    ASSERT_EQ(list.count(), 5);
    EXPECT_EQ(qRed(list.image(2).pixel(0, 0)), 10);
}

TEST(ImgLst, WhatIsLeftOfAStripAtTheRightIsIgnored)
{
    ImgLst list({4, 3});
    list.appendStrip(plain(11, 3, 0xFF0000FF), kSilver);
    EXPECT_EQ(list.count(), 2);
    ImgLst wide({4, 3});
    wide.appendStrip(plain(3, 3, 0xFF0000FF), kSilver);
    EXPECT_EQ(wide.count(), 0);
}

TEST(ImgLst, AHigherStripHoldsPicturesOfMorePixels)
{
    ImgLst list({4, 3});
    list.appendStrip(strip(5, 8, 6), kSilver);
    ASSERT_EQ(list.count(), 5);
    EXPECT_EQ(list.image(4).size(), QSize(8, 6));
    EXPECT_EQ(qRed(list.image(4).pixel(7, 5)), 50);
}

TEST(ImgLst, ALowerStripIsTransparentBelow)
{
    ImgLst list({4, 3});
    list.appendStrip(strip(2, 4, 2), kSilver);
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.image(1).size(), QSize(4, 3));
    EXPECT_EQ(qAlpha(list.image(1).pixel(0, 1)), 255);
    EXPECT_EQ(qAlpha(list.image(1).pixel(0, 2)), 0);
}

TEST(ImgLst, NoStripAppendsNothing)
{
    ImgLst list({4, 3});
    list.appendStrip(QImage(), kSilver);
    EXPECT_EQ(list.count(), 0);
    ImgLst sizeless({0, 0});
    sizeless.appendStrip(strip(2, 4, 3), kSilver);
    EXPECT_EQ(sizeless.count(), 0);
}

TEST(ImgLst, PixelsOfTheMaskColourBecomeTransparent)
{
    QImage image = plain(4, 3, qRgb(0xC0, 0xC0, 0xC0));
    image.setPixel(0, 0, qRgb(0xC0, 0xC0, 0xC1));
    image.setPixel(1, 0, qRgb(0xC1, 0xC0, 0xC0));
    image.setPixel(2, 0, qRgba(0xC0, 0xC0, 0xC0, 0x80));
    ImgLst list({4, 3});
    list.appendStrip(image, kSilver);
    ASSERT_EQ(list.count(), 1);
    EXPECT_EQ(list.image(0).pixel(0, 0), 0xFFC0C0C1);
    EXPECT_EQ(list.image(0).pixel(1, 0), 0xFFC1C0C0);
    EXPECT_EQ(qAlpha(list.image(0).pixel(2, 0)), 0);
    EXPECT_EQ(qAlpha(list.image(0).pixel(3, 2)), 0);
}

TEST(ImgLst, TheMaskIsBlueGreenRed)
{
    ImgLst list({1, 1});
    list.appendStrip(plain(1, 1, qRgb(0x11, 0x22, 0x33)), 0x00332211);
    list.appendStrip(plain(1, 1, qRgb(0x33, 0x22, 0x11)), 0x00332211);
    EXPECT_EQ(qAlpha(list.image(0).pixel(0, 0)), 0);
    EXPECT_EQ(qAlpha(list.image(1).pixel(0, 0)), 255);
}

TEST(ImgLst, AListOfEightBitsKeepsItsPicturesSo)
{
    ImgLst list({4, 3}, ImgLst::Depth::Indexed8);
    QImage image = strip(2, 4, 3);
    image.setPixel(0, 0, qRgb(0xC0, 0xC0, 0xC0));
    list.appendStrip(image, kSilver);
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.image(0).depth(), 8);
    EXPECT_EQ(list.image(1).depth(), 8);
    EXPECT_EQ(qAlpha(list.image(0).pixel(0, 0)), 0);
    EXPECT_EQ(list.image(0).pixel(1, 0), qRgb(10, 10, 10));
    EXPECT_EQ(list.image(1).pixel(0, 0), qRgb(20, 20, 20));
}

TEST(ImgLst, APictureOfManyColoursIsReducedToEightBits)
{
    QImage gradient(32, 32, QImage::Format_ARGB32);
    for (int y = 0; y < 32; ++y) {
        for (int x = 0; x < 32; ++x)
            gradient.setPixel(x, y, qRgb(8 * x, 8 * y, 128));
    }
    gradient.setPixel(0, 0, qRgba(0, 0, 0, 0));
    ImgLst list({32, 32}, ImgLst::Depth::Indexed8);
    list.append(gradient);
    ASSERT_EQ(list.image(0).depth(), 8);
    EXPECT_EQ(qAlpha(list.image(0).pixel(0, 0)), 0);
    EXPECT_NEAR(qRed(list.image(0).pixel(31, 0)), 248, 60);
    EXPECT_NEAR(qGreen(list.image(0).pixel(0, 31)), 248, 60);
}

TEST(ImgLst, AListOtherwiseKeepsThirtyTwoBits)
{
    ImgLst list({4, 3});
    list.append(plain(4, 3, 0xFF0000FF).convertToFormat(QImage::Format_Indexed8));
    EXPECT_EQ(list.image(0).depth(), 32);
}

/// A white sheet on which picture 0 of a list was drawn at (1,1).
QImage drawn(const ImgLst& list, int index, qreal ratio = 1)
{
    QImage sheet = plain(qRound(8 * ratio), qRound(8 * ratio), 0xFFFFFFFF);
    sheet.setDevicePixelRatio(ratio);
    QPainter painter(&sheet);
    list.draw(painter, index, {1, 1});
    return sheet;
}

TEST(ImgLst, APictureIsDrawnWithItsTopLeftCornerAtThePoint)
{
    ImgLst list({2, 3});
    list.append(plain(2, 3, 0xFF0000FF));
    const QImage sheet = drawn(list, 0);
    EXPECT_EQ(sheet.pixel(0, 1), 0xFFFFFFFF);
    EXPECT_EQ(sheet.pixel(1, 1), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(2, 3), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(3, 3), 0xFFFFFFFF);
    EXPECT_EQ(sheet.pixel(2, 4), 0xFFFFFFFF);
}

TEST(ImgLst, TransparentPixelsShowWhatIsBelow)
{
    ImgLst list({2, 2});
    list.appendStrip(plain(2, 2, qRgb(0xC0, 0xC0, 0xC0)), kSilver);
    EXPECT_EQ(drawn(list, 0), drawn(list, 99));
}

TEST(ImgLst, WhereAPictureIsTransparentTheBackgroundIsShown)
{
    for (const ImgLst::Depth depth : {ImgLst::Depth::Colour32, ImgLst::Depth::Indexed8}) {
        QImage strip = plain(2, 2, qRgb(0xC0, 0xC0, 0xC0));
        strip.setPixel(1, 1, 0xFF0000FF);
        ImgLst list({2, 2}, depth);
        list.appendStrip(strip, kSilver, [](const QSize& cell) {
            return plain(cell.width(), cell.height(), qRgb(0xC0, 0xC0, 0xC0));
        });
        EXPECT_EQ(drawn(list, 0).pixel(1, 1), 0xFFFFFFFF); // the sheet
        list.setBackground(0x0000FFFF);
        EXPECT_EQ(drawn(list, 0).pixel(1, 1), 0xFFFFFF00);
        EXPECT_EQ(drawn(list, 0).pixel(2, 2), 0xFF0000FF);
        EXPECT_EQ(drawn(list, 0).pixel(3, 3), 0xFFFFFFFF);
        EXPECT_EQ(drawn(list, 0, 2).pixel(3, 3), 0xFFFFFF00);
        EXPECT_EQ(list.image(0, {2, 2}).pixel(0, 0), 0xFFFFFF00);
        EXPECT_EQ(list.image(0, {5, 5}).pixel(4, 4), 0xFFFFFF00);
        EXPECT_EQ(qAlpha(list.image(0).pixel(0, 0)), 0); // as it was appended
        list.setBackground(0x000000FF);
        EXPECT_EQ(drawn(list, 0).pixel(1, 1), 0xFFFF0000);
    }
}

TEST(ImgLst, PicturesOfAbsurdSizesAreNullAndNotRedrawn)
{
    ImgLst list({2, 2});
    QList<QSize> asked;
    list.appendStrip(plain(2, 2, 0xFF0000FF), kSilver, [&asked](const QSize& cell) {
        asked << cell;
        return QImage();
    });
    for (const QSize& size : {QSize(0, 2), QSize(2, 0), QSize(-2, -2), QSize(2, 1025),
                              QSize(1025, 2), QSize(2147483647, 2147483647)})
        EXPECT_TRUE(list.image(0, size).isNull()) << size.width() << 'x' << size.height();
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_EQ(list.image(0, {1024, 1024}).size(), QSize(1024, 1024));
}

TEST(ImgLst, AHugeScaleEnlargesThePictureThatIsThere)
{
    ImgLst list({2, 2});
    list.append(plain(2, 2, 0xFF0000FF));
    EXPECT_EQ(list.place(0, 1e300, 2), QSize(1025, 4));
    EXPECT_EQ(list.place(0, -1, std::numeric_limits<double>::quiet_NaN()), QSize(0, 0));
    EXPECT_TRUE(list.place(1, 1, 1).isEmpty());
    QImage sheet = plain(8, 8, 0xFFFFFFFF);
    QPainter painter(&sheet);
    painter.scale(1, 600);
    list.draw(painter, 0, {1, 0});
    EXPECT_EQ(sheet.pixel(1, 7), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(3, 7), 0xFFFFFFFF);
}

TEST(ImgLst, ALargerPictureIsReducedToTheListsSize)
{
    ImgLst list({2, 2});
    list.append(plain(4, 4, 0xFF0000FF));
    const QImage sheet = drawn(list, 0);
    EXPECT_EQ(sheet.pixel(1, 1), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(2, 2), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(3, 3), 0xFFFFFFFF);
}

TEST(ImgLst, ALargerPictureIsReducedSmoothly)
{
    QImage stripes(4, 4, QImage::Format_ARGB32);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x)
            stripes.setPixel(x, y, x % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    ImgLst list({2, 2});
    list.append(stripes);
    const int grey = qRed(drawn(list, 0).pixel(2, 2));
    EXPECT_GT(grey, 0x20);
    EXPECT_LT(grey, 0xE0);
}

TEST(ImgLst, ALargerPictureKeepsItsPixelsOnADenseScreen)
{
    QImage dotted = plain(4, 4, 0xFF0000FF);
    dotted.setPixel(3, 0, 0xFFFF0000);
    ImgLst list({2, 2});
    list.append(dotted);
    const QImage sheet = drawn(list, 0, 2);
    EXPECT_EQ(sheet.pixel(2, 2), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(5, 2), 0xFFFF0000);
    EXPECT_EQ(sheet.pixel(6, 2), 0xFFFFFFFF);
}

TEST(ImgLst, ASmallerPictureIsDrawnAsItIs)
{
    ImgLst list({4, 4});
    list.append(plain(2, 2, 0xFF0000FF));
    const QImage sheet = drawn(list, 0);
    EXPECT_EQ(sheet.pixel(2, 2), 0xFF0000FF);
    EXPECT_EQ(sheet.pixel(3, 3), 0xFFFFFFFF);
}

TEST(ImgLst, AnIndexOutsideTheListDrawsNothing)
{
    ImgLst list({2, 2});
    list.append(plain(2, 2, 0xFF0000FF));
    const QImage blank = plain(8, 8, 0xFFFFFFFF);
    for (const int index : {-1, 1, 48})
        EXPECT_EQ(drawn(list, index), blank) << index;
}

TEST(ImgLst, DrawingLeavesThePaintersHints)
{
    ImgLst list({2, 2});
    list.append(plain(4, 4, 0xFF0000FF));
    for (const bool smooth : {false, true}) {
        QImage sheet = plain(8, 8, 0xFFFFFFFF);
        QPainter painter(&sheet);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
        list.draw(painter, 0, {0, 0});
        EXPECT_EQ(painter.testRenderHint(QPainter::SmoothPixmapTransform), smooth);
    }
}

} // namespace
