#include <condtree/presentation/ColumnShares.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using condtree::ColumnShares;

namespace {

constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();

void expectShares(const ColumnShares& shares, double share0, double share1, double share2)
{
    EXPECT_DOUBLE_EQ(shares.share(0), share0);
    EXPECT_DOUBLE_EQ(shares.share(1), share1);
    EXPECT_DOUBLE_EQ(shares.share(2), share2);
}

TEST(ColumnShares, EachOfTheFirstThreeColumnsStartsWithAQuarter)
{
    expectShares(ColumnShares{}, 0.25, 0.25, 0.25);
}

TEST(ColumnShares, ARowOf400PixelsHasFourColumnsOf100)
{
    const ColumnShares shares;
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(shares.width(column, 400), 100) << column;
}

TEST(ColumnShares, TheFourthColumnTakesWhatTruncationLeaves)
{
    const ColumnShares shares;
    EXPECT_EQ(shares.width(0, 401), 100);
    EXPECT_EQ(shares.width(1, 401), 100);
    EXPECT_EQ(shares.width(2, 401), 100);
    EXPECT_EQ(shares.width(3, 401), 101);
    EXPECT_EQ(shares.width(2, 403), 100);
    EXPECT_EQ(shares.width(3, 403), 103);
}

TEST(ColumnShares, AnyOtherColumnIsLikeTheFourth)
{
    const ColumnShares shares;
    for (const int column : {4, 100, -1, kMin, kMax})
        EXPECT_EQ(shares.width(column, 401), 101) << column;
}

TEST(ColumnShares, ARowWithoutWidthHasColumnsWithoutWidth)
{
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(ColumnShares{}.width(column, 0), 0) << column;
}

TEST(ColumnShares, WidthsAreTruncatedTowardZero)
{
    ColumnShares shares;
    shares.resize(0, 0, 10); // -5, 5 and 5 pixels of 10
    EXPECT_EQ(shares.width(0, 5), -2);
    EXPECT_EQ(shares.width(1, 5), 2);
    EXPECT_EQ(shares.width(3, 5), 3);
}

TEST(ColumnShares, WidthsSaturate)
{
    ColumnShares shares;
    shares.resize(2, kMin, 1);
    EXPECT_EQ(shares.width(2, kMax), kMin);
    EXPECT_EQ(shares.width(3, kMax), kMax);
    EXPECT_EQ(shares.width(2, kMin), kMax);
    EXPECT_EQ(shares.width(3, kMin), kMin);
}

struct Kept {
    const char* name;
    std::array<double, 3> shares;
    std::optional<std::array<double, 3>> usable;
};

class KeptShares : public testing::TestWithParam<Kept> {};

TEST_P(KeptShares, AreUsableOrNot)
{
    const auto usable = condtree::usableShares(GetParam().shares);
    EXPECT_EQ(usable ? std::optional(usable->shares()) : std::nullopt, GetParam().usable);
}

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    ColumnShares, KeptShares,
    testing::Values(Kept{"Quarters", {0.25, 0.25, 0.25}, {{0.25, 0.25, 0.25}}},
                    Kept{"Nothing", {0, 0, 0}, {{0, 0, 0}}},
                    Kept{"TheWholeRow", {0.5, 0.25, 0.25}, {{0.5, 0.25, 0.25}}},
                    Kept{"OneAll", {0, 1, 0}, {{0, 1, 0}}},
                    Kept{"RoundedBelowNothing", {0.5, -1e-12, 0.25}, {{0.5, 0, 0.25}}},
                    Kept{"RoundedAboveAll", {1 + 1e-12, 0, 0}, {{1, 0, 0}}},
                    Kept{"RoundedSum", {0.7, 0.2, 0.1 + 1e-12}, {{0.7, 0.2, 0.1 + 1e-12}}},
                    Kept{"BelowNothing", {0.5, 0.2, -0.001}, {}},
                    Kept{"AboveAll", {1.001, 0, 0}, {}}, Kept{"TooMuch", {0.5, 0.3, 0.201}, {}},
                    Kept{"NoNumberFirst", {kNone, 0, 0}, {}},
                    Kept{"NoNumberLast", {0, 0, kNone}, {}},
                    Kept{"Infinite", {0, kInfinite, 0}, {}},
                    Kept{"InfiniteBelow", {0, -kInfinite, 0}, {}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ColumnShares, TheThirdColumnGivesUpWhatIsBeyondTheRow)
{
    using condtree::sharesWithinRow;
    EXPECT_EQ(sharesWithinRow({0.25, 0.25, 0.25}), (std::array{0.25, 0.25, 0.25}));
    EXPECT_EQ(sharesWithinRow({0.25, 0.5, 0.25}), (std::array{0.25, 0.5, 0.25}));
    EXPECT_EQ(sharesWithinRow({0.25, 0.5, 0.5}), (std::array{0.25, 0.5, 0.25}));
    EXPECT_EQ(sharesWithinRow({0.5, 0.75, 0.5}), (std::array{0.5, 0.75, 0.0}));
    EXPECT_EQ(sharesWithinRow({0.5, 0.75, -0.5}), (std::array{0.5, 0.75, -0.5}));
}

struct Resize {
    const char* name;
    int column;
    int newWidth;
    int total;
    /// In pixels of total.
    int width0, width1, width2;
};

class Resizing : public testing::TestWithParam<Resize> {};

TEST_P(Resizing, GivesTheShares)
{
    const Resize& row = GetParam();
    ColumnShares shares;
    shares.resize(row.column, row.newWidth, row.total);
    const double total = row.total;
    expectShares(shares, row.width0 / total, row.width1 / total, row.width2 / total);
}

INSTANTIATE_TEST_SUITE_P(
    ColumnShares, Resizing,
    testing::Values(
        // The first column: the boundary behind column 1 stays, until it is pushed.
        Resize{"FirstShrinks", 0, 50, 400, 50, 150, 100},
        Resize{"FirstToNothing", 0, 0, 400, 0, 200, 100},
        Resize{"FirstBelowNothing", 0, -10, 400, -10, 210, 100},
        Resize{"FirstUnchanged", 0, 100, 400, 100, 100, 100},
        Resize{"FirstGrowsIntoSecond", 0, 150, 400, 150, 50, 100},
        Resize{"FirstLeavesSecondTen", 0, 190, 400, 190, 10, 100},
        Resize{"FirstPushesSecond", 0, 191, 400, 191, 10, 99},
        Resize{"FirstPushesSecondIntoThird", 0, 280, 400, 280, 10, 10},
        Resize{"FirstLeavesThirdFive", 0, 285, 400, 285, 10, 5},
        Resize{"FirstPushesThird", 0, 286, 400, 286, 10, 5},
        Resize{"FirstJustAtTheLimit", 0, 385, 400, 385, 10, 5},
        Resize{"FirstBeyondTheLimit", 0, 386, 400, 385, 5, 5},
        Resize{"FirstAsWideAsTheRow", 0, 400, 400, 385, 5, 5},
        Resize{"FirstWiderThanTheRow", 0, 100000, 400, 385, 5, 5},
        Resize{"FirstWidest", 0, kMax, 400, 385, 5, 5},
        // Odd totals: the boundaries behind it are the truncated ones.
        Resize{"FirstInAnOddRow", 0, 60, 403, 60, 140, 100},
        Resize{"FirstPinnedInAnOddRow", 0, 389, 403, 388, 5, 5},
        // A row narrower than the margins always pins.
        Resize{"FirstInATinyRow", 0, 5, 10, -5, 5, 5},
        Resize{"FirstInARowOfFifteen", 0, 0, 15, 0, 10, 5},
        // The second column takes its growth from the third.
        Resize{"SecondGrows", 1, 150, 400, 100, 150, 50},
        Resize{"SecondShrinks", 1, 50, 400, 100, 50, 150},
        Resize{"SecondToNothing", 1, 0, 400, 100, 0, 200},
        Resize{"SecondUnchanged", 1, 100, 400, 100, 100, 100},
        Resize{"SecondEatsTheThird", 1, 200, 400, 100, 200, 0},
        Resize{"SecondBeyondTheThird", 1, 250, 400, 100, 250, -50},
        Resize{"SecondJustAtItsLimit", 1, 290, 400, 100, 290, -90},
        Resize{"SecondBeyondItsLimit", 1, 291, 400, 100, 290, -90},
        Resize{"SecondWiderThanTheRow", 1, 386, 400, 100, 290, -90},
        Resize{"SecondWidest", 1, kMax, 400, 100, 290, -90},
        // The third column takes from what is left.
        Resize{"ThirdGrows", 2, 150, 400, 100, 100, 150},
        Resize{"ThirdShrinks", 2, 20, 400, 100, 100, 20},
        Resize{"ThirdToNothing", 2, 0, 400, 100, 100, 0},
        Resize{"ThirdJustAtItsLimit", 2, 195, 400, 100, 100, 195},
        Resize{"ThirdBeyondItsLimit", 2, 196, 400, 100, 100, 195},
        Resize{"ThirdWiderThanTheRow", 2, 386, 400, 100, 100, 195},
        Resize{"ThirdWidest", 2, kMax, 400, 100, 100, 195},
        // No boundary to drag.
        Resize{"FourthChangesNothing", 3, 50, 400, 100, 100, 100},
        Resize{"FifthChangesNothing", 4, 50, 400, 100, 100, 100},
        Resize{"NegativeColumnChangesNothing", -1, 50, 400, 100, 100, 100}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ColumnShares, ARowWithoutWidthChangesNothing)
{
    for (const int total : {0, -1, -400, kMin}) {
        for (int column = 0; column < 4; ++column) {
            ColumnShares shares;
            shares.resize(column, 50, total);
            expectShares(shares, 0.25, 0.25, 0.25);
        }
    }
}

TEST(ColumnShares, ResizingTheSecondColumnKeepsTheUntruncatedRestOfTheThird)
{
    ColumnShares shares;
    shares.resize(1, 99, 403); // a quarter of 403 is 100.75
    EXPECT_DOUBLE_EQ(shares.share(1), 99.0 / 403);
    EXPECT_DOUBLE_EQ(shares.share(2), 0.5 - 99.0 / 403);
}

/// The rules in their own words, for comparison.
struct Model {
    double s0 = 0.25, s1 = 0.25, s2 = 0.25;

    void resize(int column, double newWidth, double total)
    {
        const double c0 = std::trunc(total * s0);
        const double c1 = std::trunc(total * s1);
        const double c2 = std::trunc(total * s2);
        double x = newWidth > total - 15 ? total : newWidth;
        switch (column) {
        case 0:
            if (x > total - 15)
                set(total, total - 15, total - 10, total - 5);
            else {
                const double end1 = x + 10 > c0 + c1 ? x + 10 : c0 + c1;
                double end2 = c0 + c1 + c2;
                if (end2 < end1 + 5)
                    end2 = end1 + 5;
                set(total, x, end1, end2);
            }
            return;
        case 1: {
            if (c0 + x > total - 10)
                x = total - 10 - c0;
            const double before = s1;
            s1 = x / total;
            s2 = s2 - (s1 - before);
            return;
        }
        case 2:
            if (c0 + c1 + x > total - 5)
                x = total - 5 - c0 - c1;
            s2 = x / total;
            return;
        default:
            return;
        }
    }

    void set(double total, double end0, double end1, double end2)
    {
        s0 = end0 / total;
        s1 = (end1 - end0) / total;
        s2 = (end2 - end1) / total;
    }
};

RC_GTEST_PROP(ColumnShares, AnyDraggingFollowsTheRules, ())
{
    ColumnShares shares;
    Model model;
    const int drags = *rc::gen::inRange(1, 8);
    for (int i = 0; i < drags; ++i) {
        const int column = *rc::gen::inRange(-1, 5);
        const int total = *rc::gen::inRange(1, 1500);
        const int newWidth = *rc::gen::inRange(-40, 1600);
        shares.resize(column, newWidth, total);
        model.resize(column, newWidth, total);
        RC_ASSERT(std::abs(shares.share(0) - model.s0) < 1e-9);
        RC_ASSERT(std::abs(shares.share(1) - model.s1) < 1e-9);
        RC_ASSERT(std::abs(shares.share(2) - model.s2) < 1e-9);
    }
}

RC_GTEST_PROP(ColumnShares, TheFourColumnsAlwaysFillTheRow, ())
{
    ColumnShares shares;
    shares.resize(*rc::gen::inRange(0, 3), *rc::gen::inRange(0, 1600), *rc::gen::inRange(1, 1500));
    const int total = *rc::gen::inRange(0, 5000);
    int sum = 0;
    for (int column = 0; column < 4; ++column)
        sum += shares.width(column, total);
    RC_ASSERT(sum == total);
}

} // namespace
