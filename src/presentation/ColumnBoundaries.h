#pragma once

#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/ColumnShares.h>

#include <array>
#include <optional>

namespace condtree {

/// Where a title lies: from left to right, which is exclusive, with its text from textLeft on. A
/// column that was squeezed to nothing has no room.
struct TitlePlace {
    LONG left;
    LONG right;
    LONG textLeft;
    bool operator==(const TitlePlace&) const = default;
};

/// The boundaries of the columns in a strip above the rows, where the rows have them.
class ColumnBoundaries {
public:
    /// left is where the rows begin in the strip, width how wide they are.
    ColumnBoundaries(LONG left, int width, const ColumnShares& shares);

    /// The boundary at the right of column 0, 1 or 2: where the rows' separators stand.
    [[nodiscard]] LONG boundary(int column) const;
    /// The title of column 0, 1, 2 or 3.
    [[nodiscard]] TitlePlace title(int column) const;
    /// The column whose right boundary is the nearest to x and at most reach pixels away. Of
    /// boundaries at one place the right-hand one, so that a column without width can be opened.
    [[nodiscard]] std::optional<int> boundaryAt(LONG x, int reach) const;
    /// The width that column 0, 1 or 2 is to be resized to, so that its right boundary comes to x
    /// or as near as it may: not below 0, and so that no column's width becomes negative by it.
    /// None in a row too narrow for the margins that resizing keeps.
    [[nodiscard]] std::optional<int> widthUpTo(LONG x, int column) const;

private:
    [[nodiscard]] int largestWidth(int column) const;

    int m_width;
    ColumnShares m_shares;
    std::array<TitlePlace, 4> m_titles{};
};

} // namespace condtree
