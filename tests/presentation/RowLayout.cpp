#include <condtree/presentation/RowLayout.h>

#include <gtest/gtest.h>

#include <ostream>

namespace condtree {
// So that failures show numbers.
void PrintTo(const RECT& rect, std::ostream* out)
{
    *out << rect.left << ',' << rect.top << " - " << rect.right << ',' << rect.bottom;
}
void PrintTo(const POINT& point, std::ostream* out)
{
    *out << point.x << ',' << point.y;
}
} // namespace condtree

using namespace condtree;

namespace {

/// A row of 601 pixels that does not begin at 0.
constexpr RECT kRow{7, 20, 608, 43};
constexpr LONG kTextLeft = 47;

PaintedCells cellsOf(const RECT& row, LONG textLeft, const ColumnShares& shares = {}, int icon = 16)
{
    return RowLayout(row, textLeft, shares, icon).paintedCells();
}

TEST(RowLayout, TheBodyRunsFromTheTextToTheRowsRightEnd)
{
    EXPECT_EQ(cellsOf(kRow, kTextLeft).body, (RECT{47, 20, 608, 43}));
}

TEST(RowLayout, TheCaptionBeginsThreePixelsBehindTheTextsLeftEdge)
{
    EXPECT_EQ(cellsOf(kRow, kTextLeft).caption, (RECT{50, 20, 608, 43}));
}

TEST(RowLayout, TheColumnsAreCountedFromTheRowsLeftEdge)
{
    const PaintedCells cells = cellsOf(kRow, kTextLeft);
    EXPECT_EQ(cells.text[0], (RECT{50, 20, 157, 43}));
    EXPECT_EQ(cells.separator[0], 157);
    EXPECT_EQ(cells.operatorImage, (POINT{160, 20}));
    EXPECT_EQ(cells.text[1], (RECT{179, 20, 307, 43}));
    EXPECT_EQ(cells.separator[1], 307);
    EXPECT_EQ(cells.text[2], (RECT{310, 20, 457, 43}));
    EXPECT_EQ(cells.separator[2], 457);
    EXPECT_EQ(cells.text[3], (RECT{460, 20, 608, 43}));
}

TEST(RowLayout, ARowOf400PixelsIsDividedAt100And200And300)
{
    const PaintedCells cells = cellsOf({13, 0, 413, 20}, 30);
    EXPECT_EQ(cells.separator, (std::array<LONG, 3>{113, 213, 313}));
    EXPECT_EQ(cells.text[3].right, 413);
}

TEST(RowLayout, TheOperatorsTextStandsThreePixelsBehindItsPicture)
{
    const PaintedCells cells = cellsOf(kRow, kTextLeft, {}, 20);
    EXPECT_EQ(cells.operatorImage, (POINT{160, 20}));
    EXPECT_EQ(cells.text[1], (RECT{183, 20, 307, 43}));
}

TEST(RowLayout, EachColumnIsTruncatedByItself)
{
    // A quarter of 403 is 100.75: the boundaries lie 100, 200 and 300 pixels from the left, not
    // 302.
    EXPECT_EQ(cellsOf({5, 0, 408, 20}, 5).separator, (std::array<LONG, 3>{105, 205, 305}));
}

TEST(RowLayout, TheSharesMoveTheColumns)
{
    ColumnShares shares;
    shares.resize(0, 300, 600);
    const PaintedCells cells = cellsOf({10, 0, 610, 20}, 30, shares);
    EXPECT_EQ(cells.separator, (std::array<LONG, 3>{310, 320, 460}));
    EXPECT_EQ(cells.text[0], (RECT{33, 0, 310, 20}));
    EXPECT_EQ(cells.text[3], (RECT{463, 0, 610, 20}));
}

TEST(RowLayout, ATextBehindTheFirstColumnLeavesThatColumnANegativeWidth)
{
    const PaintedCells cells = cellsOf({0, 0, 100, 20}, 60);
    EXPECT_EQ(cells.text[0], (RECT{63, 0, 25, 20}));
    EXPECT_EQ(cells.separator[0], 25);
}

TEST(RowLayout, ANarrowColumnLeavesTheOperatorsTextANegativeWidth)
{
    const PaintedCells cells = cellsOf({0, 0, 40, 20}, 4);
    EXPECT_EQ(cells.operatorImage, (POINT{13, 0}));
    EXPECT_EQ(cells.text[1], (RECT{32, 0, 20, 20}));
}

} // namespace
