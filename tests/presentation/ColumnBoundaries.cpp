#include <condtree/presentation/ColumnBoundaries.h>

#include <condtree/presentation/RowLayout.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace condtree {
// So that failures show numbers.
void PrintTo(const TitlePlace& place, std::ostream* out)
{
    *out << place.left << " - " << place.right << ", text " << place.textLeft;
}
} // namespace condtree

using namespace condtree;

namespace {

/// Shares that make these widths in a row of 400 pixels.
ColumnShares sharesOf(double first, double second, double third)
{
    return ColumnShares({first / 400, second / 400, third / 400});
}

const ColumnShares kQuarters;

struct Place {
    const char* name;
    LONG left;
    int width;
    ColumnShares shares;
    std::vector<TitlePlace> titles;
};

class TitlePlaces : public testing::TestWithParam<Place> {};

TEST_P(TitlePlaces, AreThoseOfTheColumns)
{
    const Place& row = GetParam();
    const ColumnBoundaries boundaries(row.left, row.width, row.shares);
    for (int column = 0; column < 4; ++column)
        EXPECT_EQ(boundaries.title(column), row.titles[static_cast<std::size_t>(column)]) << column;
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(boundaries.boundary(column), row.titles[static_cast<std::size_t>(column)].right);
}

INSTANTIATE_TEST_SUITE_P(
    ColumnBoundaries, TitlePlaces,
    testing::Values(Place{"Quarters",
                          0,
                          400,
                          {},
                          {{0, 100, 3}, {100, 200, 103}, {200, 300, 203}, {300, 400, 303}}},
                    Place{"RowsBehindAFrame",
                          7,
                          400,
                          {},
                          {{7, 107, 10}, {107, 207, 110}, {207, 307, 210}, {307, 407, 310}}},
                    Place{"RowsLeftOfTheStrip",
                          -5,
                          400,
                          {},
                          {{-5, 95, -2}, {95, 195, 98}, {195, 295, 198}, {295, 395, 298}}},
                    Place{"EachWidthIsTruncated",
                          2,
                          403,
                          {},
                          {{2, 102, 5}, {102, 202, 105}, {202, 302, 205}, {302, 405, 305}}},
                    Place{"OneOverAThird",
                          0,
                          401,
                          ColumnShares({0.5, 0.25, 0.1}),
                          {{0, 200, 3}, {200, 300, 203}, {300, 340, 303}, {340, 401, 343}}},
                    Place{"NoWidth", 4, 0, {}, {{4, 4, 7}, {4, 4, 7}, {4, 4, 7}, {4, 4, 7}}},
                    Place{"OnePixel", 0, 1, {}, {{0, 0, 3}, {0, 0, 3}, {0, 0, 3}, {0, 1, 3}}},
                    Place{"FirstSqueezed",
                          1,
                          400,
                          sharesOf(0, 200, 100),
                          {{1, 1, 4}, {1, 201, 4}, {201, 301, 204}, {301, 401, 304}}},
                    Place{"SecondSqueezed",
                          1,
                          400,
                          sharesOf(100, 0, 200),
                          {{1, 101, 4}, {101, 101, 104}, {101, 301, 104}, {301, 401, 304}}},
                    Place{"ThirdSqueezed",
                          1,
                          400,
                          sharesOf(100, 200, 0),
                          {{1, 101, 4}, {101, 301, 104}, {301, 301, 304}, {301, 401, 304}}},
                    Place{"FourthSqueezed",
                          1,
                          400,
                          sharesOf(100, 200, 100),
                          {{1, 101, 4}, {101, 301, 104}, {301, 401, 304}, {401, 401, 404}}},
                    Place{"ANegativeShare",
                          0,
                          400,
                          sharesOf(100, 250, -50),
                          {{0, 100, 3}, {100, 350, 103}, {350, 300, 353}, {300, 400, 303}}}),
    [](const auto& row) { return std::string(row.param.name); });

struct Grab {
    const char* name;
    ColumnShares shares;
    LONG x;
    int column; ///< -1 is none
};

class Grabbing : public testing::TestWithParam<Grab> {};

// In a row of 400 pixels that begins at 7, within 4 pixels.
TEST_P(Grabbing, FindsTheBoundary)
{
    const Grab& row = GetParam();
    const ColumnBoundaries boundaries(7, 400, row.shares);
    EXPECT_EQ(boundaries.boundaryAt(row.x, 4).value_or(-1), row.column);
}

INSTANTIATE_TEST_SUITE_P(
    ColumnBoundaries, Grabbing,
    testing::Values(Grab{"OnTheFirst", {}, 107, 0}, Grab{"LeftOfTheFirst", {}, 103, 0},
                    Grab{"RightOfTheFirst", {}, 111, 0}, Grab{"TooFarLeft", {}, 102, -1},
                    Grab{"TooFarRight", {}, 112, -1}, Grab{"OnTheSecond", {}, 207, 1},
                    Grab{"OnTheThird", {}, 307, 2}, Grab{"TheRowsLeftEdge", {}, 7, -1},
                    Grab{"TheRowsRightEdge", {}, 407, -1},
                    Grab{"FarLeft", {}, std::numeric_limits<LONG>::min(), -1},
                    Grab{"FarRight", {}, std::numeric_limits<LONG>::max(), -1},
                    // A squeezed column is opened by the boundary at its own right.
                    Grab{"FirstSqueezed", sharesOf(0, 200, 100), 7, 0},
                    Grab{"SecondSqueezed", sharesOf(100, 0, 200), 107, 1},
                    Grab{"SecondSqueezedFromTheLeft", sharesOf(100, 0, 200), 103, 1},
                    Grab{"ThirdSqueezed", sharesOf(100, 200, 0), 307, 2},
                    Grab{"TwoSqueezed", sharesOf(100, 0, 0), 107, 2},
                    Grab{"ThreeSqueezed", sharesOf(0, 0, 0), 7, 2},
                    Grab{"FourthSqueezed", sharesOf(100, 200, 100), 407, 2},
                    // Zones that overlap: the nearest, and at the same distance the right-hand one.
                    Grab{"NearerToTheLeft", sharesOf(100, 5, 200), 109, 0},
                    Grab{"NearerToTheRight", sharesOf(100, 5, 200), 110, 1},
                    Grab{"InTheMiddle", sharesOf(100, 4, 200), 109, 1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ColumnBoundaries, WithoutReachOnlyTheBoundaryItselfIsGrabbed)
{
    const ColumnBoundaries boundaries(0, 400, kQuarters);
    EXPECT_EQ(boundaries.boundaryAt(100, 0), 0);
    EXPECT_FALSE(boundaries.boundaryAt(101, 0).has_value());
}

struct Pull {
    const char* name;
    int column;
    LONG x;
    int width; ///< -1 is none
    ColumnShares shares{};
    int total = 400;
};

class Pulling : public testing::TestWithParam<Pull> {};

// Rows begin at 7.
TEST_P(Pulling, GivesTheWidth)
{
    const Pull& row = GetParam();
    const ColumnBoundaries boundaries(7, row.total, row.shares);
    EXPECT_EQ(boundaries.widthUpTo(row.x, row.column).value_or(-1), row.width);
}

INSTANTIATE_TEST_SUITE_P(
    ColumnBoundaries, Pulling,
    testing::Values(Pull{"FirstStays", 0, 107, 100}, Pull{"FirstGrows", 0, 157, 150},
                    Pull{"FirstToNothing", 0, 7, 0}, Pull{"FirstBelowNothing", 0, 6, 0},
                    Pull{"FirstFarLeft", 0, std::numeric_limits<LONG>::min(), 0},
                    Pull{"FirstAtItsLimit", 0, 392, 385}, Pull{"FirstIsPinned", 0, 393, 386},
                    Pull{"FirstToTheEdge", 0, 407, 400}, Pull{"FirstBeyondTheEdge", 0, 408, 400},
                    Pull{"FirstFarRight", 0, std::numeric_limits<LONG>::max(), 400},
                    Pull{"FirstInARowOfFifteen", 0, 22, 15, {}, 15},
                    Pull{"FirstInARowOfFourteen", 0, 21, -1, {}, 14},
                    Pull{"FirstInNoRow", 0, 7, -1, {}, 0}, Pull{"SecondStays", 1, 207, 100},
                    Pull{"SecondShrinks", 1, 150, 43}, Pull{"SecondToNothing", 1, 107, 0},
                    Pull{"SecondBelowNothing", 1, 50, 0}, Pull{"SecondTakesTheThird", 1, 307, 200},
                    Pull{"SecondLeavesTheFourth", 1, 308, 200},
                    Pull{"SecondLeavesItsMargin", 1, 407, 290, sharesOf(100, 150, 150)},
                    Pull{"SecondOpens", 1, 120, 13, sharesOf(100, 0, 200)},
                    Pull{"SecondWithoutMargin", 1, 200, -1, sharesOf(391, 4, 5)},
                    Pull{"SecondInARowOfFifteen", 1, 99, 2, {}, 15},
                    Pull{"SecondInARowOfFourteen", 1, 10, -1, {}, 14},
                    Pull{"SecondNearTheWholeRow", 1, 407, 385, sharesOf(0, 100, 288)},
                    Pull{"ThirdInARowOfFourteen", 2, 12, -1, {}, 14},
                    Pull{"ThirdStays", 2, 307, 100}, Pull{"ThirdGrows", 2, 350, 143},
                    Pull{"ThirdToNothing", 2, 207, 0}, Pull{"ThirdBelowNothing", 2, 0, 0},
                    Pull{"ThirdAtItsLimit", 2, 402, 195}, Pull{"ThirdBeyondItsLimit", 2, 407, 195},
                    Pull{"ThirdHasNoRoom", 2, 407, 0, sharesOf(200, 195, 0)},
                    Pull{"ThirdWithoutMargin", 2, 407, -1, sharesOf(200, 196, 0)}),
    [](const auto& row) { return std::string(row.param.name); });

/// Shares as hosts keep them.
ColumnShares anyShares()
{
    const int first = *rc::gen::inRange(0, 1001);
    const int second = *rc::gen::inRange(0, 1001 - first);
    const int third = *rc::gen::inRange(0, 1001 - first - second);
    return ColumnShares({first / 1000.0, second / 1000.0, third / 1000.0});
}

RC_GTEST_PROP(ColumnBoundaries, TheBoundariesAreTheSeparatorsOfTheRows, ())
{
    const LONG left = *rc::gen::inRange(-20, 20);
    const int width = *rc::gen::inRange(0, 2000);
    const ColumnShares shares = anyShares();
    const ColumnBoundaries boundaries(left, width, shares);
    const PaintedCells cells = RowLayout({0, 0, width, 20}, 44, shares, 16).paintedCells();
    for (int column = 0; column < 3; ++column)
        RC_ASSERT(boundaries.boundary(column)
                  == left + cells.separator[static_cast<std::size_t>(column)]);
}

// Whatever is pulled wherever, the shares stay such as a host may keep.
RC_GTEST_PROP(ColumnBoundaries, PullingKeepsSharesUsable, ())
{
    ColumnShares shares = anyShares();
    for (int pulls = *rc::gen::inRange(1, 20); pulls > 0; --pulls) {
        const int width = *rc::gen::inRange(0, 600);
        const ColumnBoundaries boundaries(3, width, shares);
        const int column = *rc::gen::inRange(0, 3);
        if (const auto to = boundaries.widthUpTo(*rc::gen::inRange(-50, 700), column)) {
            shares.resize(column, *to, width);
            shares = ColumnShares(sharesWithinRow(shares.shares()));
        }
        RC_ASSERT(usableShares(shares.shares()).has_value());
    }
}

} // namespace
