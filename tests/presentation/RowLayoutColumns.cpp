#include <condtree/presentation/RowLayout.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <limits>
#include <ostream>
#include <string>

namespace condtree {
// So that failures show numbers.
void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}
} // namespace condtree

using namespace condtree;

namespace {

constexpr LONG kMin = std::numeric_limits<LONG>::min();
constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kTextLeft = 47;

/// A row of 401 pixels that does not begin at 0. Its quarters are at 100.25, 200.5 and 300.75.
constexpr RECT kRow{7, 20, 408, 43};

RowLayout layoutOf(const RECT& row, const ColumnShares& shares = {})
{
    return {row, kTextLeft, shares, 16};
}

/// A tenth, a fifth, and not quite a half.
ColumnShares tenthAndFifth()
{
    ColumnShares shares;
    shares.resize(0, 10, 100);
    shares.resize(1, 20, 100);
    return shares;
}

struct PointInRow {
    const char* name;
    POINT point;
    int column;
};

class ColumnOfPoint : public testing::TestWithParam<PointInRow> {};

TEST_P(ColumnOfPoint, IsFoundByTheSharesFromTheRowsLeftEdge)
{
    EXPECT_EQ(layoutOf(kRow).columnOfPoint(GetParam().point), GetParam().column);
}

INSTANTIATE_TEST_SUITE_P(RowLayout, ColumnOfPoint,
                         testing::Values(PointInRow{"TheFirstPixel", {7, 20}, 0},
                                         PointInRow{"BeforeTheText", {46, 30}, 0},
                                         PointInRow{"TheLastPixelOfTheFirst", {107, 30}, 0},
                                         PointInRow{"TheFirstPixelOfTheSecond", {108, 30}, 1},
                                         PointInRow{"TheLastPixelOfTheSecond", {207, 30}, 1},
                                         PointInRow{"TheFirstPixelOfTheThird", {208, 30}, 2},
                                         PointInRow{"TheLastPixelOfTheThird", {307, 30}, 2},
                                         PointInRow{"TheFirstPixelOfTheFourth", {308, 30}, 3},
                                         PointInRow{"TheLastPixel", {407, 42}, 3},
                                         PointInRow{"LeftOfTheRow", {6, 30}, -1},
                                         PointInRow{"RightOfTheRow", {408, 30}, -1},
                                         PointInRow{"AboveTheRow", {108, 19}, -1},
                                         PointInRow{"BelowTheRow", {108, 43}, -1},
                                         PointInRow{"FarLeft", {kMin, 30}, -1},
                                         PointInRow{"FarRight", {kMax, 30}, -1}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(RowLayout, APointOnABoundaryLiesAtItsRight)
{
    const RowLayout layout = layoutOf({7, 0, 407, 20});
    EXPECT_EQ(layout.columnOfPoint({106, 0}), 0);
    EXPECT_EQ(layout.columnOfPoint({107, 0}), 1);
    EXPECT_EQ(layout.columnOfPoint({206, 0}), 1);
    EXPECT_EQ(layout.columnOfPoint({207, 0}), 2);
    EXPECT_EQ(layout.columnOfPoint({306, 0}), 2);
    EXPECT_EQ(layout.columnOfPoint({307, 0}), 3);
}

// 0.1 + 0.2 is a little more than 0.3.
TEST(RowLayout, ThePointsColumnIsComparedInDoublesAndNotInPixels)
{
    const RowLayout layout = layoutOf({5, 0, 105, 20}, tenthAndFifth());
    EXPECT_EQ(layout.columnOfPoint({14, 0}), 0);
    EXPECT_EQ(layout.columnOfPoint({15, 0}), 1);
    EXPECT_EQ(layout.columnOfPoint({35, 0}), 1);
    EXPECT_EQ(layout.columnOfPoint({36, 0}), 2);
    EXPECT_EQ(layout.cellToEdit(1).right, 30);
}

TEST(RowLayout, AColumnWithoutWidthHoldsNoPoint)
{
    ColumnShares shares;
    shares.resize(1, 0, 400); // the third takes its half
    const RowLayout layout = layoutOf({0, 0, 400, 20}, shares);
    EXPECT_EQ(layout.columnOfPoint({99, 0}), 0);
    EXPECT_EQ(layout.columnOfPoint({100, 0}), 2);
    EXPECT_EQ(layout.columnOfPoint({299, 0}), 2);
    EXPECT_EQ(layout.columnOfPoint({300, 0}), 3);
}

TEST(RowLayout, ARowWithoutAreaHoldsNoPoint)
{
    for (const RECT& row : {RECT{5, 0, 5, 20}, RECT{10, 0, 5, 20}, RECT{0, 0, -401, 20},
                            RECT{5, 10, 100, 10}, RECT{5, 10, 100, 0}}) {
        for (const LONG x : {-402, -401, -1, 0, 4, 5, 9, 10, 11})
            EXPECT_EQ(layoutOf(row).columnOfPoint({x, 10}), -1) << x;
    }
}

TEST(RowLayout, TheWidestRowHasItsColumns)
{
    const RowLayout layout = layoutOf({kMin, 0, kMax, 20});
    EXPECT_EQ(layout.columnOfPoint({kMin, 0}), 0);
    EXPECT_EQ(layout.columnOfPoint({kMin / 2 - 1, 0}), 0);
    EXPECT_EQ(layout.columnOfPoint({-1, 0}), 1);
    EXPECT_EQ(layout.columnOfPoint({0, 0}), 2);
    EXPECT_EQ(layout.columnOfPoint({kMax - 1, 0}), 3);
}

// The boundaries between columns do not count the row's left edge; the outer edges do.
TEST(RowLayout, TheCellToEditIsNotOffsetByTheRowsLeftEdge)
{
    const RowLayout layout = layoutOf(kRow);
    EXPECT_EQ(layout.cellToEdit(0), (RECT{47, 20, 100, 43}));
    EXPECT_EQ(layout.cellToEdit(1), (RECT{100, 20, 200, 43}));
    EXPECT_EQ(layout.cellToEdit(2), (RECT{200, 20, 300, 43}));
    EXPECT_EQ(layout.cellToEdit(3), (RECT{300, 20, 408, 43}));
}

TEST(RowLayout, TheCellToEditOfNoColumnIsTheRow)
{
    for (const int column : {-1, -2, 4, 5})
        EXPECT_EQ(layoutOf(kRow).cellToEdit(column), kRow) << column;
}

TEST(RowLayout, EachWidthOfACellToEditIsTruncatedByItself)
{
    // A quarter of 403 is 100.75: the third column ends at 300, not at 302.
    const RowLayout layout = layoutOf({0, 0, 403, 20});
    EXPECT_EQ(layout.cellToEdit(2), (RECT{200, 0, 300, 20}));
    EXPECT_EQ(layout.cellToEdit(3), (RECT{300, 0, 403, 20}));
}

TEST(RowLayout, TheSharesMoveTheCellsToEdit)
{
    ColumnShares shares;
    shares.resize(0, 137, 601);
    shares.resize(2, 64, 601);
    const RowLayout layout = layoutOf({3, 1, 604, 21}, shares);
    EXPECT_EQ(layout.cellToEdit(0), (RECT{47, 1, 137, 21}));
    EXPECT_EQ(layout.cellToEdit(1), (RECT{137, 1, 300, 21}));
    EXPECT_EQ(layout.cellToEdit(2), (RECT{300, 1, 364, 21}));
    EXPECT_EQ(layout.cellToEdit(3), (RECT{364, 1, 604, 21}));
}

TEST(RowLayout, AWidthOfACellToEditIsTheTruncatedProductOfDoubles)
{
    ColumnShares shares;
    shares.resize(2, 61, 601); // 61 / 601 * 601 is a little less than 61
    const RowLayout layout = layoutOf({3, 1, 604, 21}, shares);
    EXPECT_EQ(layout.cellToEdit(2), (RECT{300, 1, 360, 21}));
}

TEST(RowLayout, ATextBehindTheFirstColumnGivesACellToEditOfNegativeWidth)
{
    EXPECT_EQ(layoutOf({0, 0, 100, 20}).cellToEdit(0), (RECT{47, 0, 25, 20}));
}

TEST(RowLayout, ARowWithoutWidthHasCellsToEditAtZero)
{
    const RowLayout layout = layoutOf({9, 0, 9, 20});
    EXPECT_EQ(layout.cellToEdit(0), (RECT{47, 0, 0, 20}));
    EXPECT_EQ(layout.cellToEdit(1), (RECT{0, 0, 0, 20}));
    EXPECT_EQ(layout.cellToEdit(2), (RECT{0, 0, 0, 20}));
    EXPECT_EQ(layout.cellToEdit(3), (RECT{0, 0, 9, 20}));
}

TEST(RowLayout, ANegativeWidthIsTruncatedTowardZeroInCellsToEdit)
{
    const RowLayout layout = layoutOf({10, 0, -393, 20}); // a quarter is -100.75
    EXPECT_EQ(layout.cellToEdit(0), (RECT{47, 0, -100, 20}));
    EXPECT_EQ(layout.cellToEdit(1), (RECT{-100, 0, -200, 20}));
    EXPECT_EQ(layout.cellToEdit(2), (RECT{-200, 0, -300, 20}));
    EXPECT_EQ(layout.cellToEdit(3), (RECT{-300, 0, -393, 20}));
}

TEST(RowLayout, APressMayBeginADragLeftOfTheFirstColumnsTruncatedWidth)
{
    const ColumnShares quarters;
    EXPECT_TRUE(mayBeginDrag(0, 401, quarters));
    EXPECT_TRUE(mayBeginDrag(-1, 401, quarters));
    EXPECT_TRUE(mayBeginDrag(99, 401, quarters));
    EXPECT_FALSE(mayBeginDrag(100, 401, quarters)); // though the first column holds it
    EXPECT_FALSE(mayBeginDrag(400, 401, quarters));
    EXPECT_TRUE(mayBeginDrag(9, 100, tenthAndFifth()));
    EXPECT_FALSE(mayBeginDrag(10, 100, tenthAndFifth()));
}

TEST(RowLayout, AClientWithoutWidthLetsNoDragBeginInIt)
{
    EXPECT_FALSE(mayBeginDrag(0, 0, {}));
    EXPECT_TRUE(mayBeginDrag(-1, 0, {}));
    EXPECT_FALSE(mayBeginDrag(0, 3, {}));
    EXPECT_FALSE(mayBeginDrag(-100, -403, {})); // -100.75, truncated
    EXPECT_TRUE(mayBeginDrag(-101, -403, {}));
}

/// Shares as dragging makes them, none of them negative.
ColumnShares anyShares()
{
    const int total = *rc::gen::inRange(100, 1500);
    ColumnShares shares;
    shares.resize(0, *rc::gen::inRange(0, total + 1), total);
    const int two = shares.width(1, total) + shares.width(2, total);
    shares.resize(1, *rc::gen::inRange(0, two + 1), total);
    if (*rc::gen::arbitrary<bool>())
        shares.resize(2, *rc::gen::inRange(0, total - 14), total);
    return shares;
}

// Each truncation before an edge moves it to the left by less than a pixel, and so do the doubles.
constexpr int slack(int truncations)
{
    return truncations == 1 ? 1 : truncations + 1;
}

RC_GTEST_PROP(RowLayout, APointLiesInTheCellOfItsColumnButForTruncation, ())
{
    const LONG width = *rc::gen::inRange(1, 3000);
    const LONG x = *rc::gen::inRange<LONG>(0, width);
    const RowLayout layout({0, 0, width, 20}, 0, anyShares(), 16);
    const int column = layout.columnOfPoint({x, 10});
    RC_ASSERT(column >= 0 && column <= 3);
    const RECT cell = layout.cellToEdit(column);
    RC_ASSERT(x >= cell.left);
    RC_ASSERT(x < (column == 3 ? width : cell.right + slack(column + 1)));
}

RC_GTEST_PROP(RowLayout, ACellHoldsPointsOfItsColumnButForTruncation, ())
{
    const LONG width = *rc::gen::inRange(1, 3000);
    const RowLayout layout({0, 0, width, 20}, 0, anyShares(), 16);
    for (int column = 0; column < 4; ++column) {
        const RECT cell = layout.cellToEdit(column);
        if (cell.left >= cell.right)
            continue;
        const LONG x = *rc::gen::inRange(cell.left, cell.right);
        RC_ASSERT(layout.columnOfPoint({x, 0}) <= column);
        const LONG right = x + (column == 0 ? 0 : slack(column));
        RC_ASSERT(right >= width || layout.columnOfPoint({right, 0}) >= column);
    }
}

RC_GTEST_PROP(RowLayout, TheCellsOfARowAtZeroJoin, ())
{
    const LONG width = *rc::gen::inRange(0, 3000);
    const RowLayout layout({0, 0, width, 20}, 0, anyShares(), 16);
    for (int column = 0; column < 3; ++column)
        RC_ASSERT(layout.cellToEdit(column).right == layout.cellToEdit(column + 1).left);
    RC_ASSERT(layout.cellToEdit(3).right == width);
}

// Where rows begin does not matter to what a point means, only to where the cell is.
RC_GTEST_PROP(RowLayout, AMovedRowHasItsColumnsAndKeepsItsCells, ())
{
    const LONG width = *rc::gen::inRange(1, 3000);
    const LONG by = *rc::gen::inRange(-5000, 5000);
    const LONG x = *rc::gen::inRange<LONG>(-3, width + 3);
    const ColumnShares shares = anyShares();
    const RowLayout layout({0, 0, width, 20}, 0, shares, 16);
    const RowLayout moved({by, 0, width + by, 20}, 0, shares, 16);
    RC_ASSERT(moved.columnOfPoint({x + by, 0}) == layout.columnOfPoint({x, 0}));
    for (int column = 0; column < 3; ++column)
        RC_ASSERT(moved.cellToEdit(column) == layout.cellToEdit(column));
    RC_ASSERT(moved.cellToEdit(3).left == layout.cellToEdit(3).left);
    RC_ASSERT(moved.cellToEdit(3).right == width + by);
}

} // namespace
