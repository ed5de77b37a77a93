#include <condtree/presentation/RowPainter.h>

#include <condtree/presentation/FittedTexts.h>
#include <condtree/presentation/ImgLst.h>

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <string>

using namespace condtree;

namespace {

constexpr QRgb kPaper = 0xFFFFFFFF;
constexpr COLORREF kBlue = 0x00FF0000;
constexpr QRgb kBluePixel = 0xFF0000FF;
constexpr unsigned kFormat = 0x8024;

void paintRow(QPainter& painter, const RowPicture& picture, const ImgLst& images)
{
    FittedTexts texts;
    paintRow(painter, picture, &images, texts);
}

class Sheet {
public:
    explicit Sheet(int width = 60, int height = 40)
        : m_image(width, height, QImage::Format_RGB32)
    {
        m_image.fill(kPaper);
    }

    Sheet& paint(const RowPicture& picture, const ImgLst& images = ImgLst({16, 16}))
    {
        QPainter painter(&m_image);
        paintRow(painter, picture, &images, texts);
        return *this;
    }

    FittedTexts texts;

    [[nodiscard]] bool isPainted(int x, int y) const { return m_image.pixel(x, y) != kPaper; }
    [[nodiscard]] const QImage& image() const { return m_image; }
    [[nodiscard]] QImage& image() { return m_image; }

    /// The painted pixels as text: a line a row, '#' for painted.
    [[nodiscard]] std::string toText() const
    {
        std::string text;
        for (int y = 0; y < m_image.height(); ++y) {
            text += '\n';
            for (int x = 0; x < m_image.width(); ++x)
                text += isPainted(x, y) ? '#' : '.';
        }
        return text;
    }

    /// The smallest rectangle around the painted pixels.
    [[nodiscard]] QRect ink() const
    {
        QRect ink;
        for (int y = 0; y < m_image.height(); ++y) {
            for (int x = 0; x < m_image.width(); ++x) {
                if (isPainted(x, y))
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

private:
    QImage m_image;
};

RowPicture text(const QString& shown, const RECT& rect)
{
    return {TextPrimitive{shown, rect, kFormat}};
}

TEST(RowPainter, ATintIsLaidOverWhatIsThere)
{
    Sheet sheet;
    const QImage& image = sheet
                              .paint({FillPrimitive{{10, 10, 20, 20}, 0x00000000},
                                      TintPrimitive{{5, 5, 15, 15}, kBlue, 51}})
                              .image();
    EXPECT_EQ(image.pixel(4, 5), kPaper);
    EXPECT_EQ(image.pixel(5, 5), qRgb(204, 204, 255));
    EXPECT_EQ(image.pixel(12, 12), qRgb(0, 0, 51));
    EXPECT_EQ(image.pixel(15, 15), qRgb(0, 0, 0));
    Sheet empty;
    EXPECT_EQ(empty.paint({TintPrimitive{{15, 15, 5, 5}, kBlue, 51}}).image(), Sheet().image());
}

TEST(RowPainter, AFillCoversItsRectangleAndNoMore)
{
    EXPECT_EQ(Sheet(6, 5).paint({FillPrimitive{{1, 1, 4, 3}, kBlue}}).toText(), R"(
......
.###..
.###..
......
......)");
}

TEST(RowPainter, AFrameLiesInsideItsRectangle)
{
    EXPECT_EQ(Sheet(7, 6).paint({FramePrimitive{{1, 1, 6, 5}, kBlue}}).toText(), R"(
.......
.#####.
.#...#.
.#...#.
.#####.
.......)");
}

TEST(RowPainter, AFrameOfOnePixelIsOnePixel)
{
    EXPECT_EQ(Sheet(3, 3).paint({FramePrimitive{{1, 1, 2, 2}, kBlue}}).toText(), R"(
...
.#.
...)");
}

TEST(RowPainter, AFrameHasItsColour)
{
    const Sheet sheet = Sheet().paint({FramePrimitive{{1, 1, 6, 5}, 0x00DCA0A0}});
    EXPECT_EQ(sheet.image().pixel(1, 1), 0xFFA0A0DC);
    EXPECT_EQ(sheet.image().pixel(5, 4), 0xFFA0A0DC);
}

TEST(RowPainter, AnOpenFrameHasNoBottomEdge)
{
    // The first point is drawn, the last one is not.
    const PolylinePrimitive frame{{{{1, 4}, {1, 1}, {5, 1}, {5, 4}}}, kBlue};
    EXPECT_EQ(Sheet(7, 6).paint({frame}).toText(), R"(
.......
.#####.
.#...#.
.#...#.
.#.....
.......)");
}

TEST(RowPainter, ALineLeavesOutItsEnd)
{
    const auto line = [](POINT from, POINT to) {
        return Sheet(5, 4).paint({LinePrimitive{from, to, kBlue}}).toText();
    };
    EXPECT_EQ(line({2, 0}, {2, 3}), R"(
..#..
..#..
..#..
.....)");
    EXPECT_EQ(line({2, 3}, {2, 0}), R"(
.....
..#..
..#..
..#..)");
    EXPECT_EQ(line({1, 2}, {4, 2}), R"(
.....
.....
.###.
.....)");
    EXPECT_EQ(line({4, 2}, {1, 2}), R"(
.....
.....
..###
.....)");
}

TEST(RowPainter, ALineFromAPointToItselfDrawsNothing)
{
    EXPECT_TRUE(Sheet().paint({LinePrimitive{{2, 2}, {2, 2}, kBlue}}).ink().isNull());
}

TEST(RowPainter, LinesAndFramesStayCrispUnderAnAntialiasingPainter)
{
    Sheet sheet(7, 6);
    QPainter painter(&sheet.image());
    painter.setRenderHint(QPainter::Antialiasing);
    paintRow(painter, {FramePrimitive{{1, 1, 6, 5}, kBlue}}, ImgLst({16, 16}));
    painter.end();
    EXPECT_EQ(sheet.toText(), R"(
.......
.#####.
.#...#.
.#...#.
.#####.
.......)");
    EXPECT_EQ(sheet.image().pixel(3, 1), kBluePixel);
}

TEST(RowPainter, AreasWithoutAreaDrawNothing)
{
    for (const RECT& rect : {RECT{5, 5, 5, 9}, RECT{5, 5, 9, 5}, RECT{9, 5, 5, 9}, RECT{5, 9, 9, 5},
                             RECT{9, 9, 5, 5}}) {
        Sheet sheet;
        sheet.paint({FillPrimitive{rect, kBlue}, FramePrimitive{rect, kBlue},
                     TextPrimitive{QStringLiteral("WWW"), rect, kFormat}});
        EXPECT_TRUE(sheet.ink().isNull()) << rect.left << ' ' << rect.top;
    }
}

TEST(RowPainter, AnImageIsDrawnAtItsPoint)
{
    ImgLst images({3, 2});
    QImage picture(3, 2, QImage::Format_RGB32);
    picture.fill(kBluePixel);
    images.append(picture);
    EXPECT_EQ(Sheet(7, 5).paint({ImagePrimitive{0, {2, 1}}}, images).toText(), R"(
.......
..###..
..###..
.......
.......)");
}

TEST(RowPainter, AnImageOutsideTheListDrawsNothing)
{
    ImgLst images({3, 2});
    images.append(QImage(3, 2, QImage::Format_RGB32));
    for (const int index : {-101, -1, 1, 48}) {
        EXPECT_TRUE(Sheet().paint({ImagePrimitive{index, {2, 1}}}, images).ink().isNull()) << index;
        EXPECT_TRUE(Sheet().paint({ImagePrimitive{index, {2, 1}}}).ink().isNull()) << index;
    }
}

TEST(RowPainter, PrimitivesAreDrawnInTheirOrder)
{
    const FillPrimitive below{{0, 0, 4, 4}, kBlue};
    const FillPrimitive above{{0, 0, 4, 4}, 0x000000FF};
    EXPECT_EQ(Sheet().paint({below, above}).image().pixel(1, 1), 0xFFFF0000);
    EXPECT_EQ(Sheet().paint({above, below}).image().pixel(1, 1), kBluePixel);
}

TEST(RowPainter, ATextHasThePensColour)
{
    Sheet sheet(200, 40);
    QPainter painter(&sheet.image());
    painter.setPen(QColor(255, 0, 0));
    paintRow(painter, text(QStringLiteral("Text"), {0, 0, 200, 40}), ImgLst({16, 16}));
    painter.end();
    const QRect ink = sheet.ink();
    ASSERT_FALSE(ink.isNull());
    int least = 255;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x) {
            EXPECT_EQ(qRed(sheet.image().pixel(x, y)), 255);
            least = std::min(least, qGreen(sheet.image().pixel(x, y)));
        }
    }
    EXPECT_LT(least, 128);
}

TEST(RowPainter, ATextStaysInsideItsRectangle)
{
    Sheet sheet(400, 60);
    QPainter painter(&sheet.image());
    QFont large = painter.font();
    large.setPixelSize(50);
    large.setItalic(true);
    painter.setFont(large);
    paintRow(painter, text(QStringLiteral("fWjgWfWjgWfWjgW"), {50, 20, 350, 40}), ImgLst({16, 16}));
    painter.end();
    ASSERT_FALSE(sheet.ink().isNull());
    EXPECT_TRUE(QRect(50, 20, 300, 20).contains(sheet.ink()));
    // It is cut off, not made smaller.
    EXPECT_EQ(sheet.ink().top(), 20);
    EXPECT_EQ(sheet.ink().bottom(), 39);
}

TEST(RowPainter, ATextBeginsAtItsRectanglesLeftEdge)
{
    const QRect ink = Sheet(200, 40).paint(text(QStringLiteral("HH"), {50, 0, 200, 40})).ink();
    EXPECT_GE(ink.left(), 50);
    EXPECT_LE(ink.left(), 53);
}

TEST(RowPainter, ATextIsCentredVertically)
{
    const auto ink = [](const RECT& rect) {
        return Sheet(80, 100).paint(text(QStringLiteral("Hx"), rect)).ink();
    };
    const QRect first = ink({0, 0, 80, 30});
    EXPECT_EQ(ink({0, 0, 80, 50}), first.translated(0, 10));
    EXPECT_EQ(ink({0, 20, 80, 50}), first.translated(0, 20));
    // The whole line is centred, not the ink alone: what is above "H" is more than what is below.
    EXPECT_NEAR(first.center().y(), 15, 3);
}

TEST(RowPainter, ATooLongTextEndsInAnEllipsis)
{
    const auto letters = [](int count) { return QString(count, QLatin1Char('w')); };
    Sheet sheet(400, 30);
    const QFontMetrics metrics(QFont(), &sheet.image());
    int fitting = 0;
    while (metrics.horizontalAdvance(letters(fitting + 1) + QChar(0x2026)) <= 100)
        ++fitting;
    const std::string elided = sheet.paint(text(letters(40), {0, 0, 100, 30})).toText();
    const auto shortened = [&](int count) {
        return Sheet(400, 30).paint(text(letters(count) + QChar(0x2026), {0, 0, 400, 30})).toText();
    };
    // The font code may be more careful than the sum of the widths, by one letter.
    ASSERT_GT(fitting, 2);
    EXPECT_TRUE(elided == shortened(fitting) || elided == shortened(fitting - 1)) << elided;
}

TEST(RowPainter, ATextThatFitsIsNotElided)
{
    const QString shown = QStringLiteral("it fits");
    const auto inWidth = [&shown](int width) {
        return Sheet(200, 30).paint(text(shown, {0, 0, width, 30})).toText();
    };
    Sheet sheet(200, 30);
    // Widths are rounded, so that the exact one may be a fraction too narrow.
    const int width = QFontMetrics(QFont(), &sheet.image()).horizontalAdvance(shown) + 1;
    EXPECT_EQ(inWidth(width), inWidth(200));
    EXPECT_NE(inWidth(width - 3), inWidth(200));
}

TEST(RowPainter, LineBreaksAndControlCharactersAreBlanks)
{
    const RECT rect{0, 0, 200, 60};
    const std::string expected = Sheet(200, 60).paint(text(QStringLiteral("a b"), rect)).toText();
    for (const char16_t c : {u'\n', u'\r', u'\t', u'\v', u'\f', u'\u0001', u'\u0085', u'\u009C',
                             u'\u2028', u'\u2029'}) {
        const QString broken = QLatin1Char('a') + QString(QChar(c)) + QLatin1Char('b');
        EXPECT_EQ(Sheet(200, 60).paint(text(broken, rect)).toText(), expected) << unsigned{c};
    }
}

TEST(RowPainter, AnAmpersandIsDrawnAsItIs)
{
    const RECT rect{0, 0, 200, 40};
    const auto ink = [&](const QString& shown) {
        return Sheet(200, 40).paint(text(shown, rect)).ink();
    };
    const int one = ink(QStringLiteral("H&H")).width();
    EXPECT_GT(one, ink(QStringLiteral("HH")).width());
    EXPECT_GT(ink(QStringLiteral("H&&H")).width(), one);
    // No letter is underlined.
    EXPECT_EQ(ink(QStringLiteral("&H")).bottom(), ink(QStringLiteral("&")).bottom());
}

TEST(RowPainter, OfAVeryLongTextTheFirstThousandCharactersAreLookedAt)
{
    const RECT rect{0, 0, 20000, 30};
    const auto sheet = [&](const QString& shown) {
        return Sheet(20000, 30).paint(text(shown, rect)).image();
    };
    const QString thousand(1000, QLatin1Char('i'));
    const QString cut = thousand.left(999) + QChar(0x2026);
    EXPECT_EQ(sheet(thousand + QLatin1Char('i')), sheet(cut));
    EXPECT_NE(sheet(thousand), sheet(cut));
    EXPECT_EQ(sheet(QString(1 << 20, QLatin1Char('i'))), sheet(cut));
}

TEST(RowPainter, AVeryLongTextIsNotCutInsideACharacter)
{
    const RECT rect{0, 0, 20000, 30};
    const QString begin(998, QLatin1Char('i'));
    const QString smiley = QString::fromUcs4(U"\U0001F600", 1);
    const QString cut = begin + QChar(0x2026);
    EXPECT_EQ(Sheet(20000, 30).paint(text(begin + smiley + begin, rect)).image(),
              Sheet(20000, 30).paint(text(cut, rect)).image());
}

TEST(RowPainter, AnEmptyTextDrawsNothing)
{
    EXPECT_TRUE(Sheet().paint(text(QString(), {0, 0, 60, 40})).ink().isNull());
}

TEST(RowPainter, ThePaintersOwnClipHoldsToo)
{
    Sheet sheet(100, 30);
    QPainter painter(&sheet.image());
    painter.setClipRect(0, 0, 20, 30);
    paintRow(painter, text(QStringLiteral("WWWWWWWWWW"), {0, 0, 100, 30}), ImgLst({16, 16}));
    painter.end();
    ASSERT_FALSE(sheet.ink().isNull());
    EXPECT_LT(sheet.ink().right(), 20);
}

TEST(RowPainter, ThePainterIsLeftAsItWas)
{
    ImgLst images({4, 4});
    QImage large(8, 8, QImage::Format_RGB32);
    large.fill(kBluePixel);
    images.append(large);
    Sheet sheet;
    QPainter painter(&sheet.image());
    painter.setPen(QPen(Qt::green, 3));
    painter.setBrush(Qt::red);
    painter.setClipRect(1, 1, 50, 30);
    painter.translate(2, 1);
    const QFont font = painter.font();
    const QTransform transform = painter.transform();
    const QRect clip = painter.clipRegion().boundingRect();
    const QPainter::RenderHints hints = painter.renderHints();
    const RECT rect{0, 0, 40, 20};
    paintRow(painter,
             {FillPrimitive{rect, kBlue}, FramePrimitive{rect, kBlue},
              PolylinePrimitive{{{{1, 4}, {1, 1}, {5, 1}, {5, 4}}}, kBlue},
              LinePrimitive{{0, 0}, {0, 9}, kBlue}, ImagePrimitive{0, {2, 2}},
              TextPrimitive{QStringLiteral("Text"), rect, kFormat}},
             images);
    EXPECT_EQ(painter.pen(), QPen(Qt::green, 3));
    EXPECT_EQ(painter.brush(), QBrush(Qt::red));
    EXPECT_EQ(painter.font(), font);
    EXPECT_EQ(painter.transform(), transform);
    EXPECT_TRUE(painter.hasClipping());
    EXPECT_EQ(painter.clipRegion().boundingRect(), clip);
    EXPECT_EQ(painter.renderHints(), hints);
}

TEST(RowPainter, AFrameIsOneLogicalPixelOnADenseScreen)
{
    Sheet sheet(10, 8);
    sheet.image().setDevicePixelRatio(2);
    QPainter painter(&sheet.image());
    paintRow(painter, {FramePrimitive{{1, 1, 4, 4}, kBlue}}, ImgLst({16, 16}));
    painter.end();
    EXPECT_EQ(sheet.toText(), R"(
..........
..........
..######..
..######..
..##..##..
..##..##..
..######..
..######..)");
}

TEST(RowPainter, WithoutAListOfImagesTheRestIsPainted)
{
    QImage sheet(40, 40, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    FittedTexts texts;
    condtree::paintRow(painter, {ImagePrimitive{0, {1, 1}}, FramePrimitive{{1, 1, 6, 5}, kBlue}},
                       nullptr, texts);
    EXPECT_EQ(sheet.pixel(1, 1), kBluePixel);
    EXPECT_EQ(sheet.pixel(3, 3), kPaper);
}

} // namespace
