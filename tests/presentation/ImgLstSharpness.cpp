#include <condtree/presentation/ImgLst.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <vector>

using namespace condtree;

namespace {

constexpr COLORREF kSilver = 0x00C0C0C0;
constexpr int kPictures = 3;

/// A strip of pictures whose columns of pixels are black and white in turns: blurring it makes
/// grey, and each has its number as the blue of the first pixel.
QImage finest(const QSize& cell)
{
    QImage image(cell.width() * kPictures, cell.height(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, x % cell.width() % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    for (int i = 0; i < kPictures; ++i)
        image.setPixel(i * cell.width(), 0, qRgb(0, 0, 100 + i));
    return image;
}

/// A list of three such pictures of 16 x 16, with all that was redrawn.
struct Fine {
    std::vector<QSize> asked;
    ImgLst list{{16, 16}};
    Fine()
    {
        list.appendStrip(finest({16, 16}), kSilver, [this](const QSize& cell) {
            asked.push_back(cell);
            return finest(cell);
        });
    }
};

/// A sheet of 40 x 30 points with a picture at a point.
QImage sheetWith(const ImgLst& list, int index, double ratio, const QPoint& at,
                 const QTransform& world = {})
{
    QImage sheet(qRound(40 * ratio), qRound(30 * ratio), QImage::Format_ARGB32_Premultiplied);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::green);
    QPainter painter(&sheet);
    painter.setWorldTransform(world);
    list.draw(painter, index, at);
    EXPECT_EQ(painter.worldTransform(), world);
    return sheet;
}

struct Row {
    double ratio;
    int side; ///< of the picture, in pixels
};

const std::vector<Row> kRatios{{1, 16}, {1.25, 20}, {1.5, 24}, {1.75, 28},
                               {2, 32}, {2.5, 40},  {3, 48},   {1.1, 18}};

// At 3 points from the edges the corner is no whole pixel at most of the ratios.
TEST(ImgLstSharpness, EveryPixelOfTheDeviceIsAPixelOfThePictureAtEveryRatio)
{
    for (const Row& row : kRatios) {
        SCOPED_TRACE(row.ratio);
        const Fine fine;
        const QImage sheet = sheetWith(fine.list, 1, row.ratio, {3, 4});
        const QPoint corner(qRound(3 * row.ratio), qRound(4 * row.ratio));
        const QImage picture = sheet.copy(QRect(corner, QSize(row.side, row.side)));
        const QImage expected = finest({row.side, row.side}).copy(row.side, 0, row.side, row.side);
        EXPECT_EQ(picture.convertToFormat(QImage::Format_ARGB32), expected);
        EXPECT_EQ(sheet.pixel(corner + QPoint(row.side, 0)), 0xFF00FF00);
        EXPECT_EQ(sheet.pixel(corner + QPoint(0, row.side)), 0xFF00FF00);
        EXPECT_EQ(sheet.pixel(corner - QPoint(1, 0)), 0xFF00FF00);
    }
}

TEST(ImgLstSharpness, AStripIsRedrawnOnceARatioAndNotForItsOwnSize)
{
    const Fine fine;
    sheetWith(fine.list, 0, 1, {0, 0});
    EXPECT_TRUE(fine.asked.empty());
    for (int i = 0; i < kPictures; ++i) {
        sheetWith(fine.list, i, 2, {0, 0});
        sheetWith(fine.list, i, 1.5, {0, 0});
    }
    EXPECT_EQ(fine.asked, (std::vector<QSize>{{32, 32}, {24, 24}}));
}

TEST(ImgLstSharpness, ManyRatiosDoNotPileUp)
{
    const Fine fine;
    for (int side = 17; side < 60; ++side)
        EXPECT_EQ(fine.list.image(2, {side, side}).size(), QSize(side, side));
    EXPECT_EQ(fine.asked.size(), 43U);
    EXPECT_EQ(qBlue(fine.list.image(2, {17, 17}).pixel(0, 0)), 102);
    EXPECT_EQ(fine.asked.size(), 44U); // it was forgotten, and is drawn again
}

/// Asks for a picture in every side from first to last.
void askForSides(const Fine& fine, int first, int last)
{
    for (int side = first; side <= last; ++side)
        EXPECT_EQ(fine.list.image(2, {side, side}).size(), QSize(side, side));
}

TEST(ImgLstSharpness, AsManyRatiosAsAreKeptAreRedrawnOnce)
{
    const Fine fine;
    askForSides(fine, 17, 24);
    askForSides(fine, 17, 24);
    EXPECT_EQ(fine.asked.size(), 8U);
}

TEST(ImgLstSharpness, OneRatioTooManyForgetsTheOldestAlone)
{
    const Fine fine;
    askForSides(fine, 17, 25);
    askForSides(fine, 18, 25);
    EXPECT_EQ(fine.asked.size(), 9U);
    askForSides(fine, 17, 17);
    EXPECT_EQ(fine.asked.size(), 10U);
    askForSides(fine, 19, 25); // what was made for 18 has gone now
    EXPECT_EQ(fine.asked.size(), 10U);
}

TEST(ImgLstSharpness, PicturesAppendedLaterAreRedrawnToo)
{
    Fine fine;
    EXPECT_EQ(fine.list.image(0, {32, 32}).height(), 32);
    fine.list.append(finest({16, 16}).copy(0, 0, 16, 16));
    fine.list.appendStrip(finest({16, 16}), kSilver, [](const QSize& cell) {
        QImage strip(cell.width() * kPictures, cell.height(), QImage::Format_ARGB32);
        strip.fill(Qt::red);
        return strip;
    });
    EXPECT_EQ(fine.list.image(6, {32, 32}).pixel(9, 9), 0xFFFF0000);
    EXPECT_EQ(fine.list.image(3, {32, 32}).size(), QSize(32, 32)); // scaled
    EXPECT_EQ(qBlue(fine.list.image(2, {32, 32}).pixel(0, 0)), 102);
}

struct Refusal {
    const char* name;
    QImage (*redraw)(const QSize& cell);
};

TEST(ImgLstSharpness, WhatCannotBeRedrawnIsScaled)
{
    const std::vector<Refusal> refusals{
        {"nothing", [](const QSize&) { return QImage(); }},
        {"a picture too few",
         [](const QSize& cell) {
             return finest(cell).copy(0, 0, 2 * cell.width(), cell.height());
         }},
        {"a picture too many", [](const QSize& cell) {
             return finest(cell).copy(0, 0, 4 * cell.width(), cell.height());
         }}};
    for (const Refusal& refusal : refusals) {
        ImgLst list({16, 16});
        QImage strip(48, 16, QImage::Format_ARGB32);
        strip.fill(Qt::blue);
        list.appendStrip(strip, kSilver, refusal.redraw);
        const QImage picture = list.image(1, {24, 24});
        EXPECT_EQ(picture.size(), QSize(24, 24)) << refusal.name;
        EXPECT_EQ(picture.pixel(12, 12), 0xFF0000FF) << refusal.name;
    }
}

TEST(ImgLstSharpness, TheMaskIsAppliedToRedrawnPicturesAndTheDepthKept)
{
    ImgLst list({16, 16}, ImgLst::Depth::Indexed8);
    list.appendStrip(finest({16, 16}), kSilver, [](const QSize& cell) {
        QImage strip = finest(cell);
        strip.setPixel(1, 1, qRgb(0xC0, 0xC0, 0xC0));
        return strip;
    });
    const QImage picture = list.image(0, {32, 32});
    EXPECT_EQ(picture.depth(), 8);
    EXPECT_EQ(qAlpha(picture.pixel(1, 1)), 0);
    EXPECT_EQ(picture.pixel(3, 1), 0xFFFFFFFF);
}

TEST(ImgLstSharpness, AMovedOrScaledPainterIsFollowed)
{
    const Fine fine;
    const QImage moved = sheetWith(fine.list, 1, 1.5, {1, 1}, QTransform::fromTranslate(2, 4));
    EXPECT_EQ(moved, sheetWith(fine.list, 1, 1.5, {3, 5}));
    const QImage doubled = sheetWith(fine.list, 1, 1, {2, 3}, QTransform::fromScale(1.5, 1.5));
    EXPECT_EQ(qBlue(doubled.pixel(3, 5)), 101); // 4.5 is rounded up
    EXPECT_EQ(fine.asked.back(), QSize(24, 24));
}

TEST(ImgLstSharpness, ATurnedPainterAndAHugeOneDrawWhatIsThere)
{
    const Fine fine;
    const QImage turned =
        sheetWith(fine.list, 1, 1, {0, 0}, QTransform().translate(20, 0).rotate(90));
    EXPECT_EQ(qBlue(turned.pixel(19, 0)), 101);
    EXPECT_EQ(turned.pixel(30, 20), 0xFF00FF00);
    sheetWith(fine.list, 1, 1, {0, 0}, QTransform::fromScale(100, 100));
    EXPECT_TRUE(fine.asked.empty());
}

TEST(ImgLstSharpness, AnIndexOutsideTheListIsNullInEverySize)
{
    const Fine fine;
    for (const int index : {-1, 3, 99})
        EXPECT_TRUE(fine.list.image(index, {32, 32}).isNull());
}

} // namespace
