#include <condtree/wficons/CellSize.h>
#include <condtree/wficons/Pictures.h>

#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <array>

using namespace condtree;

namespace {

TEST(Pictures, AreFoundByTheirExactNames)
{
    ASSERT_NE(findPicture(u"PNG_DELETE"), nullptr);
    EXPECT_EQ(findPicture(u"PNG_DELETE")->kind, Picture::Kind::RowIcon);
    ASSERT_NE(findPicture(u"PNG_BLUE_OPS"), nullptr);
    EXPECT_EQ(findPicture(u"PNG_BLUE_OPS")->kind, Picture::Kind::OperatorStrip);
    EXPECT_EQ(findPicture(u"PNG_BLUE_OP"), nullptr);
    EXPECT_EQ(findPicture(u""), nullptr);
}

TEST(Pictures, FillTheMiddleOfCellsThatAreNotSquare)
{
    const QImage square = drawPicture(*findPicture(u"PNG_USER"), {16, 16});
    const QImage wide = drawPicture(*findPicture(u"PNG_USER"), {21, 16});
    ASSERT_EQ(wide.size(), QSize(21, 16));
    EXPECT_EQ(wide.copy(2, 0, 16, 16), square);
    const QImage high = drawPicture(*findPicture(u"PNG_USER"), {16, 20});
    ASSERT_EQ(high.size(), QSize(16, 20));
    EXPECT_EQ(high.copy(0, 2, 16, 16), square);

    const QImage strip = drawPicture(*findPicture(u"PNG_RED_OPS"), {20, 16});
    ASSERT_EQ(strip.size(), QSize(9 * 20, 16));
    EXPECT_EQ(strip.copy(20 + 2, 0, 16, 16),
              drawPicture(*findPicture(u"PNG_RED_OPS"), {16, 16}).copy(16, 0, 16, 16));
}

TEST(Pictures, OfASizeThatNoImageHoldsAreNull)
{
    EXPECT_TRUE(drawPicture(*findPicture(u"PNG_YELLOW_OPS"), {5'000'000, 1}).isNull());
}

// "and" and "or" are curves alone: they have no edges that could lie between pixels.
TEST(Drawings, WithStraightEdgesAreThereOnEveryGrid)
{
    const QDir folder(QStringLiteral(":/condtree/wficons"));
    const QStringList files = folder.entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    ASSERT_GT(files.size(), 60);
    int drawings = 0;
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        if (name.endsWith(QStringLiteral("-20")) || name.endsWith(QStringLiteral("-24"))) {
            EXPECT_TRUE(files.contains(name.chopped(3) + QStringLiteral(".svg")))
                << qPrintable(name);
            continue;
        }
        ++drawings;
        const bool isCurved = name == QStringLiteral("and") || name == QStringLiteral("or");
        for (const char* const grid : {"-20.svg", "-24.svg"})
            EXPECT_NE(files.contains(name + QLatin1String(grid)), isCurved)
                << qPrintable(name) << grid;
    }
    EXPECT_EQ(drawings, 22);
}

TEST(Drawings, AreAsLargeAsTheGridThatTheyAreNamedAfter)
{
    const QDir folder(QStringLiteral(":/condtree/wficons"));
    for (const QString& name : folder.entryList({QStringLiteral("*.svg")}, QDir::Files)) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const int grid = name.endsWith(QStringLiteral("-20.svg"))   ? 20
                         : name.endsWith(QStringLiteral("-24.svg")) ? 24
                                                                    : 16;
        const QByteArray size = QByteArray::number(grid);
        EXPECT_TRUE(file.readAll().contains(' ' + size + ' ' + size + "\">")) << qPrintable(name);
    }
}

TEST(MaskColour, ReplacesTheTransparentAndIsTakenFromAllElse)
{
    constexpr std::array<QRgb, 6> before{0x00000000, 0x00123456, 0x00C0C0C0,
                                         0x01C0C0C0, 0xFFC0C0C0, 0xFFC0C0C1};
    constexpr std::array<QRgb, 6> after{0x00C0C0C0, 0x00C0C0C0, 0x00C0C0C0,
                                        0x01C0C0C1, 0xFFC0C0C1, 0xFFC0C0C1};
    QImage strip(3, 2, QImage::Format_ARGB32);
    for (int i = 0; i < 6; ++i)
        strip.setPixel(i % 3, i / 3, before.at(static_cast<std::size_t>(i)));
    applyMaskColour(strip);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(strip.pixel(i % 3, i / 3), after.at(static_cast<std::size_t>(i))) << i;
}

struct CellRow {
    SIZE dpi;
    double pixelsPerPoint;
    QSize cell;
};

TEST(SmallIconCell, GrowsWithTheResolutionAndThePixelsOfAPoint)
{
    const std::array rows{
        CellRow{{96, 96}, 1.0, {16, 16}},       CellRow{{96, 96}, 1.25, {20, 20}},
        CellRow{{96, 96}, 1.5, {24, 24}},       CellRow{{96, 96}, 1.75, {28, 28}},
        CellRow{{96, 96}, 2.0, {32, 32}},       CellRow{{96, 96}, 3.0, {48, 48}},
        CellRow{{120, 120}, 1.0, {20, 20}},     CellRow{{144, 144}, 1.0, {24, 24}},
        CellRow{{144, 144}, 2.0, {48, 48}},     CellRow{{192, 96}, 1.0, {32, 16}},
        CellRow{{96, 192}, 1.0, {16, 32}},      CellRow{{100, 110}, 1.3, {21, 23}},
        CellRow{{0, 0}, 1.0, {1, 1}},           CellRow{{-96, -96}, 1.0, {1, 1}},
        CellRow{{96, 96}, 0.0, {1, 1}},         CellRow{{96, 96}, 1000.0, {1024, 1024}},
        CellRow{{9600, 96}, 10.0, {1024, 160}},
    };
    for (const CellRow& row : rows)
        EXPECT_EQ(smallIconCell(row.dpi, row.pixelsPerPoint), row.cell)
            << row.dpi.cx << " x " << row.dpi.cy << ", " << row.pixelsPerPoint;
}

} // namespace
