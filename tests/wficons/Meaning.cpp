// That each picture is the one that its name and index stand for, by what distinguishes it.
#include "Module.h"

#include "support/WarningGuard.h"

#include <QColor>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cstdlib>
#include <vector>

using namespace condtree;
using test::Module;
using test::taken;

namespace {

constexpr int kHeight = 32;
constexpr int kMiddle = kHeight / 2;
constexpr QRgb kWhite = 0xFFFFFFFF;

QImage rowIcon(const char16_t* name)
{
    return taken(Module().atSize(name, kHeight));
}

/// One picture of a strip.
QImage operatorImage(const char16_t* strip, int index)
{
    return taken(Module().atSize(strip, kHeight)).copy(index * kHeight, 0, kHeight, kHeight);
}

/// Where a picture is white, black elsewhere.
QImage whiteOf(const QImage& image)
{
    QImage white(image.size(), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            white.setPixel(x, y, image.pixel(x, y) == kWhite ? kWhite : 0xFF000000);
    return white;
}

/// The sign of a text operator: where it is white.
QImage textSign(int index)
{
    return whiteOf(operatorImage(u"PNG_BLUE_OPS", index));
}

bool isWhite(const QImage& sign, int x, int y)
{
    return sign.pixel(x, y) == kWhite;
}

/// The columns of the white pixels of a line.
std::vector<int> whiteColumns(const QImage& sign, int y)
{
    std::vector<int> columns;
    for (int x = 0; x < sign.width(); ++x) {
        if (isWhite(sign, x, y))
            columns.push_back(x);
    }
    return columns;
}

/// The lines that have white, from the top.
std::vector<int> whiteLines(const QImage& sign)
{
    std::vector<int> lines;
    for (int y = 0; y < sign.height(); ++y) {
        if (!whiteColumns(sign, y).empty())
            lines.push_back(y);
    }
    return lines;
}

QImage onWhite(const QImage& image)
{
    QImage page(image.size(), QImage::Format_RGB32);
    page.fill(kWhite);
    QPainter(&page).drawImage(0, 0, image);
    return page;
}

/// Whether no pixel differs by more than the rounding of a soft edge.
bool looksLike(const QImage& a, const QImage& b)
{
    const QImage first = onWhite(a);
    const QImage second = onWhite(b);
    constexpr int rounding = 40;
    for (int y = 0; y < first.height(); ++y) {
        for (int x = 0; x < first.width(); ++x) {
            const QRgb p = first.pixel(x, y);
            const QRgb q = second.pixel(x, y);
            if (std::abs(qRed(p) - qRed(q)) > rounding || std::abs(qGreen(p) - qGreen(q)) > rounding
                || std::abs(qBlue(p) - qBlue(q)) > rounding)
                return false;
        }
    }
    return true;
}

bool isEvenSided(const QImage& image)
{
    return looksLike(image, image.mirrored(true, false));
}

QColor colourAt(const QImage& image, int x, int y)
{
    return QColor::fromRgba(image.pixel(x, y));
}

TEST(OperatorSigns, AreTheSameForEveryType)
{
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(whiteOf(operatorImage(u"PNG_RED_OPS", i)), textSign(i)) << i;
        EXPECT_EQ(whiteOf(operatorImage(u"PNG_GREEN_OPS", i)), textSign(i)) << i;
    }
    EXPECT_EQ(whiteOf(operatorImage(u"PNG_YELLOW_OPS", 0)), textSign(0));
}

TEST(OperatorSigns, EqualIsTwoBarsAndNotEqualStrikesThemOut)
{
    const QImage equal = textSign(0);
    const QImage notEqual = textSign(1);
    EXPECT_TRUE(isEvenSided(equal));
    EXPECT_EQ(whiteLines(equal).size(), 8U); // two bars of two units
    EXPECT_FALSE(isEvenSided(notEqual));
    EXPECT_GT(whiteLines(notEqual).size(), 12U);
    for (const int y : whiteLines(equal)) {
        for (const int x : whiteColumns(equal, y))
            EXPECT_TRUE(isWhite(notEqual, x, y)) << x << ',' << y;
    }
}

TEST(OperatorSigns, LessPointsLeftAndGreaterRight)
{
    for (const int index : {2, 4}) {
        const QImage less = textSign(index);
        const QImage greater = textSign(index + 1);
        EXPECT_TRUE(looksLike(less.mirrored(true, false), greater)) << index;
        const std::vector<int> top = whiteColumns(less, whiteLines(less).front());
        EXPECT_GT(top.front(), kMiddle) << index;
        // The tip is the leftmost of what lies above the bar.
        int leftmost = kHeight;
        for (int y = 0; y < kMiddle + 2; ++y) {
            for (const int x : whiteColumns(less, y))
                leftmost = std::min(leftmost, x);
        }
        EXPECT_LT(leftmost, kMiddle - 4) << index;
    }
}

TEST(OperatorSigns, OrEqualHasABarBelow)
{
    for (const int index : {2, 3, 4, 5}) {
        const QImage sign = textSign(index);
        const std::size_t width = whiteColumns(sign, whiteLines(sign).back() - 1).size();
        if (index < 4)
            EXPECT_LT(width, 6U) << index;
        else
            EXPECT_GT(width, 12U) << index;
    }
}

TEST(OperatorSigns, ContainsHasSomethingBetweenBracketsAndItsContraryAStroke)
{
    const QImage contains = textSign(6);
    const QImage containsNot = textSign(7);
    const int line = (whiteLines(contains).front() + whiteLines(contains).back() + 1) / 2;
    for (const QImage& sign : {contains, containsNot}) {
        const std::vector<int> columns = whiteColumns(sign, line);
        EXPECT_LT(columns.front(), 9);
        EXPECT_GT(columns.back(), 22);
        EXPECT_TRUE(isWhite(sign, kMiddle, line));
    }
    EXPECT_TRUE(isEvenSided(operatorImage(u"PNG_BLUE_OPS", 6)));
    EXPECT_FALSE(isEvenSided(operatorImage(u"PNG_BLUE_OPS", 7)));
}

TEST(OperatorSigns, PatternIsAStar)
{
    const QImage star = textSign(8);
    EXPECT_TRUE(isEvenSided(operatorImage(u"PNG_BLUE_OPS", 8)));
    const std::vector<int> lines = whiteLines(star);
    EXPECT_TRUE(isWhite(star, kMiddle, lines[1]));
    EXPECT_TRUE(isWhite(star, kMiddle, lines[lines.size() / 2]));
    EXPECT_EQ(whiteColumns(star, lines[1]).size(), whiteColumns(star, lines[2]).size());
}

TEST(RowIcons, AndFillsWhatTwoSetsShareAndOrAllOfBoth)
{
    const QImage both = rowIcon(u"PNG_AND");
    const QImage either = rowIcon(u"PNG_OR");
    for (const QImage& icon : {both, either}) {
        EXPECT_TRUE(isEvenSided(icon));
        EXPECT_EQ(qAlpha(icon.pixel(kMiddle, kMiddle)), 0xFF);
        EXPECT_EQ(qAlpha(icon.pixel(6, kMiddle)), 0xFF);
    }
    EXPECT_EQ(both.pixel(kMiddle, kMiddle), either.pixel(kMiddle, kMiddle));
    EXPECT_EQ(either.pixel(6, kMiddle), either.pixel(kMiddle, kMiddle));
    EXPECT_GT(colourAt(both, 6, kMiddle).lightness(),
              colourAt(both, kMiddle, kMiddle).lightness() + 60);
}

TEST(RowIcons, NewIsAGreenPlusAndDeleteIsRed)
{
    const QImage plus = rowIcon(u"PNG_NEW_FILE");
    EXPECT_TRUE(isEvenSided(plus));
    EXPECT_TRUE(looksLike(plus, plus.transformed(QTransform().rotate(90))));
    EXPECT_NEAR(colourAt(plus, kMiddle, kMiddle).hsvHue(), 142, 15);
    EXPECT_EQ(qAlpha(plus.pixel(8, 8)), 0);

    const QImage bin = rowIcon(u"PNG_DELETE");
    EXPECT_TRUE(isEvenSided(bin));
    EXPECT_NEAR(colourAt(bin, kMiddle, 20).hsvHue(), 3, 8);
}

TEST(RowIcons, ThePlusIsInTheMiddleAndOnWholePixelsAtEverySize)
{
    for (const int height : {16, 20, 24, 32, 40, 48}) {
        const QImage plus = taken(Module().atSize(u"PNG_NEW_FILE", height));
        for (const QImage& turned : {plus.mirrored(true, false), plus.mirrored(false, true),
                                     plus.transformed(QTransform().rotate(90))})
            EXPECT_TRUE(looksLike(plus, turned)) << height;
        // Across the upright arm.
        for (int x = 0; x < height; ++x) {
            const int alpha = qAlpha(plus.pixel(x, height * 5 / 16));
            EXPECT_TRUE(alpha == 0 || alpha == 0xFF) << height << ", column " << x;
        }
    }
}

TEST(RowIcons, AUserIsOneFigureAndGroupsAreTwo)
{
    const QImage user = rowIcon(u"PNG_USER");
    const QImage groups = rowIcon(u"PNG_GROUPS");
    EXPECT_TRUE(isEvenSided(user));
    EXPECT_FALSE(isEvenSided(groups));
    EXPECT_EQ(user.pixel(kMiddle, 8), groups.pixel(11, 8));
    EXPECT_EQ(qAlpha(groups.pixel(24, 10)), 0xFF);
    EXPECT_NE(groups.pixel(24, 10), groups.pixel(11, 8));
}

TEST(RowIcons, ACardHasFieldsAndALabelAHole)
{
    const QImage card = rowIcon(u"PNG_ALL_CARD");
    EXPECT_EQ(card.pixel(20, 11), kWhite);
    EXPECT_EQ(card.pixel(20, 19), kWhite);
    EXPECT_EQ(card.pixel(20, 15), card.pixel(4, 25));
    const QImage label = rowIcon(u"PNG_CATEGORIES");
    EXPECT_EQ(label.pixel(11, 11), kWhite);
    EXPECT_EQ(label.pixel(17, 17), card.pixel(4, 25));
}

} // namespace
