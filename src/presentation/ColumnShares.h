#pragma once

#include <array>

namespace condtree {

/// The shares of a row's width that its first three columns take; the fourth takes the rest.
class ColumnShares {
public:
    /// The share of column 0, 1 or 2, from 0 to 1.
    [[nodiscard]] double share(int column) const { return m_shares[static_cast<std::size_t>(column)]; }
    /// The width of a column in a row of totalWidth pixels, truncated; any column but 0, 1 and 2 takes
    /// what the three leave.
    [[nodiscard]] int width(int column, int totalWidth) const;
    /// The user dragged the boundary at the right of a column so that it is newWidth pixels wide in a
    /// row of totalWidth. Columns from 3 on, and a row without width, change nothing.
    void resize(int column, int newWidth, int totalWidth);

private:
    std::array<double, 3> m_shares{0.25, 0.25, 0.25};
};

} // namespace condtree
