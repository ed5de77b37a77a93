#include "ColumnBoundaries.h"

#include <condtree/presentation/RowLayout.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace condtree {

namespace {

// What resizing leaves behind the right boundary of each of the first three columns.
constexpr std::array kMargins{15, 10, 5};

} // namespace

ColumnBoundaries::ColumnBoundaries(LONG left, int width, const ColumnShares& shares)
    : m_width(width)
    , m_shares(shares)
{
    const PaintedCells cells =
        RowLayout({left, 0, left + width, 1}, left, shares, 0).paintedCells();
    const auto& ends = cells.separator;
    m_titles = {{{left, ends[0], cells.text[0].left},
                 {ends[0], ends[1], cells.operatorImage.x},
                 {ends[1], ends[2], cells.text[2].left},
                 {ends[2], left + width, cells.text[3].left}}};
}

LONG ColumnBoundaries::boundary(int column) const
{
    return title(column).right;
}

TitlePlace ColumnBoundaries::title(int column) const
{
    return m_titles[static_cast<std::size_t>(column)];
}

std::optional<int> ColumnBoundaries::boundaryAt(LONG x, int reach) const
{
    std::optional<int> nearest;
    std::int64_t nearestDistance = reach;
    for (int column = 0; column < 3; ++column) {
        const std::int64_t distance = std::abs(std::int64_t{x} - boundary(column));
        if (distance > nearestDistance)
            continue;
        nearest = column;
        nearestDistance = distance;
    }
    return nearest;
}

int ColumnBoundaries::largestWidth(int column) const
{
    // Beyond its margin the first column is pinned there with the others behind it.
    if (column == 0)
        return m_width;
    const int first = m_shares.width(0, m_width);
    const int second = m_shares.width(1, m_width);
    const int third = m_shares.width(2, m_width);
    if (column == 2)
        return m_width - kMargins[2] - first - second;
    // What the second gains, the third loses. Any width beyond the limit means all the room.
    const int room = m_width - kMargins[1] - first;
    const int limit = m_width - kMargins[0];
    return second + third < room ? std::min(second + third, limit) : room;
}

std::optional<int> ColumnBoundaries::widthUpTo(LONG x, int column) const
{
    const int largest = largestWidth(column);
    if (m_width < kMargins[0] || largest < 0)
        return std::nullopt;
    const std::int64_t wanted = std::int64_t{x} - title(column).left;
    return static_cast<int>(std::clamp<std::int64_t>(wanted, 0, largest));
}

} // namespace condtree
