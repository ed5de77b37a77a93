#include "RowLayout.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace condtree {

namespace {
/// Between a cell's left edge and its text, and between a picture and the text behind it.
constexpr int kGap = 3;

/// Far beyond every screen, and near enough for all sums and differences that follow.
LONG bounded(std::int64_t x)
{
    constexpr std::int64_t kFarAway = std::int64_t{1} << 28U;
    return static_cast<LONG>(std::clamp(x, -kFarAway, kFarAway));
}

LONG widthOf(const RECT& row)
{
    return bounded(std::int64_t{row.right} - row.left);
}
} // namespace

RowLayout::RowLayout(const RECT& row, LONG textLeft, const ColumnShares& shares, int smallIconWidth)
    : m_row(row)
    , m_textLeft(textLeft)
    , m_shares(shares)
    , m_smallIconWidth(smallIconWidth)
{
}

PaintedCells RowLayout::paintedCells() const
{
    const LONG width = widthOf(m_row);
    PaintedCells cells{};
    cells.body = {m_textLeft, m_row.top, m_row.right, m_row.bottom};
    cells.caption = {m_textLeft + kGap, m_row.top, m_row.right, m_row.bottom};

    // The columns' boundaries are counted from the row's left edge, wherever its text begins.
    std::array<LONG, 4> end{};
    LONG edge = m_row.left;
    for (int column = 0; column < 3; ++column) {
        edge = bounded(std::int64_t{edge} + m_shares.width(column, width));
        end[static_cast<std::size_t>(column)] = edge;
    }
    end[3] = m_row.right;

    cells.text[0] = {cells.caption.left, m_row.top, end[0], m_row.bottom};
    for (std::size_t column = 1; column < 4; ++column) {
        cells.separator[column - 1] = end[column - 1];
        cells.text[column] = {end[column - 1] + kGap, m_row.top, end[column], m_row.bottom};
    }
    cells.operatorImage = {cells.text[1].left, m_row.top};
    cells.text[1].left += m_smallIconWidth + kGap;
    return cells;
}

int RowLayout::columnOfPoint(POINT point) const
{
    const bool isInside = point.x >= m_row.left && point.x < m_row.right && point.y >= m_row.top
                          && point.y < m_row.bottom;
    if (!isInside)
        return -1;
    const double left = m_row.left;
    const double fraction = (point.x - left) / (m_row.right - left);
    double end = 0;
    for (int column = 0; column < 3; ++column) {
        end += m_shares.share(column);
        if (end > fraction)
            return column;
    }
    return 3;
}

RECT RowLayout::cellToEdit(int column) const
{
    RECT cell = m_row;
    if (column < 0 || column > 3)
        return cell;
    const LONG width = widthOf(m_row);
    LONG edge = 0;
    for (int before = 0; before < column; ++before)
        edge = bounded(std::int64_t{edge} + m_shares.width(before, width));
    cell.left = column == 0 ? m_textLeft : edge;
    if (column < 3)
        cell.right = bounded(std::int64_t{edge} + m_shares.width(column, width));
    return cell;
}

bool mayBeginDrag(LONG x, LONG clientWidth, const ColumnShares& shares)
{
    return x < shares.width(0, clientWidth);
}

} // namespace condtree
