#pragma once

#include <array>
#include <cstddef>
#include <optional>

namespace condtree {

/// The shares of a row's width that its first three columns take; the fourth takes the rest.
class ColumnShares {
public:
    /// A quarter each.
    ColumnShares() = default;
    /// These shares, whatever they are.
    explicit ColumnShares(const std::array<double, 3>& shares)
        : m_shares(shares)
    {
    }
    bool operator==(const ColumnShares&) const = default;

    [[nodiscard]] const std::array<double, 3>& shares() const { return m_shares; }
    /// The share of column 0, 1 or 2. From 0 to 1 but for what resize says.
    [[nodiscard]] double share(int column) const
    {
        return m_shares[static_cast<std::size_t>(column)];
    }
    /// The width of a column in a row of totalWidth pixels, truncated toward zero; any column but
    /// 0, 1 and 2 takes what the three leave. Saturates.
    [[nodiscard]] int width(int column, int totalWidth) const;
    /// The user dragged the boundary at the right of a column so that it is newWidth pixels wide in
    /// a row of totalWidth. Growing column 0 pushes the next two to the right, column 1 grows at
    /// the expense of column 2, and column 2 at the expense of what is left. Columns outside 0 to
    /// 2, and a row without width, change nothing. Widths are not checked: a negative one, or one
    /// of column 1 that is wider than the two columns together, makes a negative share.
    void resize(int column, int newWidth, int totalWidth);

private:
    std::array<double, 3> m_shares{0.25, 0.25, 0.25};
};

/// Shares that come from outside, put right where rounding took them past 0 or 1 by no more than a
/// billionth. None unless each is from 0 to 1 and they are at most 1 together.
[[nodiscard]] std::optional<ColumnShares> usableShares(std::array<double, 3> shares);

/// Shares of which the third gives up what the three take beyond the whole row: shrinking the first
/// column of a row with next to nothing behind the second pushes the third past the row's end.
[[nodiscard]] std::array<double, 3> sharesWithinRow(std::array<double, 3> shares);

} // namespace condtree
