// How the operators' strips look, pixel by pixel where that is what counts.
#include "Module.h"

#include "support/WarningGuard.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <vector>

using namespace condtree;
using test::Module;
using test::taken;

namespace {

constexpr QRgb kSilver = 0xC0C0C0;
constexpr QRgb kWhite = 0xFFFFFFFF;
constexpr std::array kHeights{16, 20, 24, 32, 40, 48};

/// The operator pictures by the index that the control counts, the four strips beside one another.
std::vector<QImage> operatorImages(int height)
{
    const Module module;
    std::vector<QImage> images;
    for (const char16_t* name :
         {u"PNG_BLUE_OPS", u"PNG_RED_OPS", u"PNG_GREEN_OPS", u"PNG_YELLOW_OPS"}) {
        const QImage strip = taken(module.atSize(name, height));
        for (int x = 0; x < strip.width(); x += height)
            images.push_back(strip.copy(x, 0, height, height));
    }
    return images;
}

constexpr std::array kOperators{0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                11, 12, 13, 14, 18, 19, 20, 21, 22, 23, 27};

bool isOperator(int index)
{
    return std::ranges::find(kOperators, index) != kOperators.end();
}

/// The opaque colour, white aside, that most pixels of a picture have; 0 when there is none.
QRgb mainColour(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (const QRgb pixel = image.pixel(x, y); qAlpha(pixel) == 0xFF && pixel != kWhite)
                ++counts[pixel];
    const auto most = std::ranges::max_element(
        counts, {}, [](const std::pair<const QRgb, int>& count) { return count.second; });
    return most == counts.end() ? 0 : most->first;
}

int count(const QImage& image, QRgb colour)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            pixels += image.pixel(x, y) == colour ? 1 : 0;
    return pixels;
}

/// As web content is judged: 1 for equal colours, 21 for black and white.
double contrastToWhite(QRgb colour)
{
    const auto linear = [](int channel) {
        const double c = channel / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    const double luminance = 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour))
                             + 0.0722 * linear(qBlue(colour));
    return 1.05 / (luminance + 0.05);
}

TEST(OperatorStrips, HoldFortyTwoPictures)
{
    for (const int height : kHeights)
        EXPECT_EQ(operatorImages(height).size(), 42U) << height;
}

TEST(OperatorStrips, EveryOperatorHasAPictureOfItsOwn)
{
    for (const int height : kHeights) {
        const std::vector<QImage> images = operatorImages(height);
        for (auto a = kOperators.begin(); a != kOperators.end(); ++a) {
            for (auto b = kOperators.begin(); b != a; ++b) {
                EXPECT_NE(images.at(static_cast<std::size_t>(*a)),
                          images.at(static_cast<std::size_t>(*b)))
                    << *a << " and " << *b << " at " << height;
            }
        }
    }
}

TEST(OperatorStrips, WhatStandsForNoOperatorIsAlikeAndLikeNoOperator)
{
    for (const int height : kHeights) {
        const std::vector<QImage> images = operatorImages(height);
        const QImage& unused = images.at(15);
        EXPECT_GT(count(unused, mainColour(unused)), 0);
        for (int i = 0; i < 42; ++i)
            EXPECT_EQ(images.at(static_cast<std::size_t>(i)) == unused, !isOperator(i))
                << i << " at " << height;
    }
}

TEST(OperatorStrips, AreSilverExactlyWhereTheyAreTransparent)
{
    for (const int height : {16, 17, 20, 24, 31, 32, 48}) {
        for (const QImage& image : operatorImages(height)) {
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < height; ++x)
                    ASSERT_EQ((image.pixel(x, y) & 0xFFFFFFU) == kSilver,
                              qAlpha(image.pixel(x, y)) == 0)
                        << x << ',' << y << " at " << height;
            EXPECT_EQ(image.pixel(0, 0), kSilver);
            EXPECT_EQ(image.pixel(height - 1, height - 1), kSilver);
        }
    }
}

TEST(OperatorStrips, EdgesBearTheirOwnColourAndNoSilver)
{
    // A circle has soft edges at every size; each of their pixels is of the circle's red.
    const QImage image = operatorImages(16).at(9);
    const QRgb red = mainColour(image);
    int soft = 0;
    for (int y = 0; y < 16; ++y) {
        const QRgb left = image.pixel(1, y);
        if (qAlpha(left) < 64 || qAlpha(left) == 255)
            continue;
        ++soft;
        EXPECT_NEAR(qRed(left), qRed(red), 4);
        EXPECT_NEAR(qGreen(left), qGreen(red), 4);
        EXPECT_NEAR(qBlue(left), qBlue(red), 4);
    }
    EXPECT_GT(soft, 2);
}

TEST(OperatorStrips, SignsAreSolidWhiteOnSolidColour)
{
    for (const int height : kHeights) {
        const std::vector<QImage> images = operatorImages(height);
        for (const int index : kOperators) {
            const QImage& image = images.at(static_cast<std::size_t>(index));
            EXPECT_GE(count(image, kWhite), height * height / 30) << index << " at " << height;
            EXPECT_GE(count(image, mainColour(image)), height * height / 6)
                << index << " at " << height;
        }
    }
}

TEST(OperatorStrips, ColoursAreThoseOfTheirNamesAndSeenOnWhite)
{
    const std::vector<QImage> images = operatorImages(16);
    for (const int index : kOperators) {
        const QImage& image = images.at(static_cast<std::size_t>(index));
        const QColor colour(mainColour(image));
        const int hue = colour.hsvHue();
        EXPECT_GE(contrastToWhite(colour.rgb()), 3.0) << index;
        if (index < 9)
            EXPECT_TRUE(hue > 200 && hue < 240) << index << " blue? " << hue;
        else if (index < 18)
            EXPECT_TRUE(hue < 15 || hue > 345) << index << " red? " << hue;
        else if (index < 27)
            EXPECT_TRUE(hue > 110 && hue < 160) << index << " green? " << hue;
        else
            EXPECT_TRUE(hue > 35 && hue < 65) << index << " yellow? " << hue;
    }
}

TEST(OperatorStrips, TypesDifferInShapeToo)
{
    for (const int height : kHeights) {
        const std::vector<QImage> images = operatorImages(height);
        const std::array equals{images.at(0), images.at(9), images.at(18), images.at(27)};
        for (std::size_t a = 0; a < equals.size(); ++a) {
            for (std::size_t b = 0; b < a; ++b) {
                int different = 0;
                for (int y = 0; y < height; ++y)
                    for (int x = 0; x < height; ++x)
                        different += (qAlpha(equals[a].pixel(x, y)) < 128)
                                             != (qAlpha(equals[b].pixel(x, y)) < 128)
                                         ? 1
                                         : 0;
                EXPECT_GE(different, height / 2) << a << " and " << b << " at " << height;
            }
        }
    }
}

TEST(OperatorStrips, LeaveTheLineFreeWhereARowHasItsFrame)
{
    for (const int height : kHeights) {
        for (const QImage& image : operatorImages(height)) {
            for (int x = 0; x < height; ++x)
                EXPECT_EQ(image.pixel(x, 0), kSilver) << x << " at " << height;
        }
    }
}

TEST(OperatorStrips, BarsBeginAndEndAtWholePixels)
{
    // Down the middle of "equal" there is nothing but the clear, the tile and the white of bars.
    for (const int height : kHeights) {
        const std::vector<QImage> images = operatorImages(height);
        for (const int index : {0, 18, 27}) {
            const QImage& image = images.at(static_cast<std::size_t>(index));
            const QRgb tile = mainColour(image);
            int edges = 0;
            QRgb above = kSilver;
            for (int y = 0; y < height; ++y) {
                const QRgb pixel = image.pixel(height / 2, y);
                EXPECT_TRUE(pixel == kSilver || pixel == tile || pixel == kWhite)
                    << index << " at " << height << ", line " << y << ": " << std::hex << pixel;
                edges += pixel != above ? 1 : 0;
                above = pixel;
            }
            edges += above != kSilver ? 1 : 0;
            EXPECT_EQ(edges, 6) << index << " at " << height;
        }
    }
}

TEST(OperatorStrips, TheUprightArmOfPatternBeginsAndEndsAtWholePixels)
{
    // Across its upper part there is nothing but the clear, the tile and the arm in its middle.
    for (const int height : kHeights) {
        const QImage image = operatorImages(height).at(8);
        const QRgb tile = mainColour(image);
        const int y = height * 5 / 16;
        std::vector<int> arm;
        for (int x = 0; x < height; ++x) {
            const QRgb pixel = image.pixel(x, y);
            EXPECT_TRUE(pixel == kSilver || pixel == tile || pixel == kWhite)
                << height << ", column " << x << ": " << std::hex << pixel;
            if (pixel == kWhite)
                arm.push_back(x);
        }
        ASSERT_GE(arm.size(), 2U) << height;
        EXPECT_EQ(arm.front() + arm.back(), height - 1) << height;
        EXPECT_EQ(arm.back() - arm.front() + 1, static_cast<int>(arm.size())) << height;
    }
}

} // namespace
