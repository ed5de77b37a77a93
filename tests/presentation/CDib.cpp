#include <condtree/presentation/CDib.h>

#include <gtest/gtest.h>

#include <set>

using namespace condtree;

namespace {

TEST(CDib, StartsWithoutBitmapDescriptionAndPalette)
{
    const CDib dib;
    EXPECT_TRUE(dib.bitmap().isNull());
    EXPECT_EQ(dib.description().bmWidth, 0);
    EXPECT_EQ(dib.description().bmBits, nullptr);
    EXPECT_EQ(dib.palette().version, 0);
    CPalette palette;
    EXPECT_FALSE(dib.createPalette(palette));
    EXPECT_EQ(palette.version, 0);
}

struct Row {
    QImage::Format format;
    int width;
    int widthBytes;
    int bitsPixel;
};

TEST(CDib, DescribesItsBitmap)
{
    for (const Row& row :
         {Row{QImage::Format_ARGB32, 5, 20, 32}, Row{QImage::Format_RGB888, 5, 16, 24},
          Row{QImage::Format_Indexed8, 5, 8, 8}, Row{QImage::Format_Mono, 5, 4, 1}}) {
        QImage image(row.width, 7, row.format);
        image.fill(0);
        CDib dib;
        dib.attach(image);
        const BITMAP& description = dib.description();
        EXPECT_EQ(description.bmType, 0);
        EXPECT_EQ(description.bmWidth, row.width);
        EXPECT_EQ(description.bmHeight, 7);
        EXPECT_EQ(description.bmWidthBytes, row.widthBytes);
        EXPECT_EQ(description.bmPlanes, 1);
        EXPECT_EQ(description.bmBitsPixel, row.bitsPixel);
        EXPECT_EQ(description.bmBits, dib.bitmap().constBits());
    }
}

TEST(CDib, ThePaletteIsMadeOfTheBitmapsColourTable)
{
    QImage image(2, 2, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3), qRgba(40, 50, 60, 0), qRgb(255, 0, 9)});
    image.fill(0);
    CDib dib;
    dib.attach(image);
    EXPECT_EQ(dib.palette().version, 0x300);
    EXPECT_EQ(dib.palette().entries,
              (std::vector<QRgb>{qRgb(1, 2, 3), qRgb(40, 50, 60), qRgb(255, 0, 9)}));
    CPalette palette;
    EXPECT_TRUE(dib.createPalette(palette));
    EXPECT_EQ(palette.entries, dib.palette().entries);
}

TEST(CDib, AFullColourTableIsTakenWhole)
{
    QImage image(2, 2, QImage::Format_Indexed8);
    QList<QRgb> table;
    for (int i = 0; i < 256; ++i)
        table << qRgb(i, 255 - i, 7);
    image.setColorTable(table);
    image.fill(0);
    CDib dib;
    dib.attach(image);
    EXPECT_EQ(dib.palette().entries.size(), 256U);
    EXPECT_EQ(dib.palette().entries[200], qRgb(200, 55, 7));
}

TEST(CDib, WithoutAColourTableThePaletteIsTheHalftoneOne)
{
    CDib dib;
    dib.attach(QImage(2, 2, QImage::Format_ARGB32));
    EXPECT_EQ(dib.palette().version, 0x300);
    EXPECT_EQ(dib.palette().entries, halftonePalette().entries);
}

TEST(CDib, TheHalftonePaletteHas256ColoursOfACubeAndOfGrey)
{
    const CPalette palette = halftonePalette();
    EXPECT_EQ(palette.version, 0x300);
    ASSERT_EQ(palette.entries.size(), 256U);
    const std::set<QRgb> colours(palette.entries.begin(), palette.entries.end());
    for (const int red : {0, 51, 102, 153, 204, 255}) {
        for (const int green : {0, 51, 102, 153, 204, 255}) {
            for (const int blue : {0, 51, 102, 153, 204, 255})
                EXPECT_EQ(colours.count(qRgb(red, green, blue)), 1U);
        }
    }
    for (std::size_t i = 216; i < 256; ++i) {
        EXPECT_EQ(qRed(palette.entries[i]), qGreen(palette.entries[i]));
        EXPECT_EQ(qRed(palette.entries[i]), qBlue(palette.entries[i]));
    }
}

TEST(CDib, ACopyKeepsTheBitsThatItDescribes)
{
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(0xFF0000FF);
    CDib copy;
    {
        CDib dib;
        dib.attach(image);
        copy = dib;
    }
    image.fill(0xFFFF0000);
    image = {};
    ASSERT_EQ(copy.description().bmBits, copy.bitmap().constBits());
    EXPECT_EQ(*static_cast<const QRgb*>(copy.description().bmBits), 0xFF0000FF);
}

TEST(CDib, AttachingNothingLetsGo)
{
    CDib dib;
    dib.attach(QImage(2, 2, QImage::Format_ARGB32));
    dib.attach(QImage());
    EXPECT_TRUE(dib.bitmap().isNull());
    EXPECT_EQ(dib.description().bmWidth, 0);
    EXPECT_TRUE(dib.palette().entries.empty());
}

} // namespace
