#include "ColumnShares.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace condtree {

namespace {

// The pixels at a row's right end that a column's right boundary cannot be dragged into: each later
// boundary keeps 5 pixels more to itself.
constexpr int kMargin0 = 15;
constexpr int kMargin1 = 10;
constexpr int kMargin2 = 5;

// How far shares may be beyond 0 or 1 without being wrong.
constexpr double kRounding = 1e-9;

int saturated(std::int64_t value)
{
    constexpr std::int64_t low = std::numeric_limits<int>::min();
    constexpr std::int64_t high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

int truncated(double value)
{
    constexpr double low = std::numeric_limits<int>::min();
    constexpr double high = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(value, low, high));
}

} // namespace

int ColumnShares::width(int column, int totalWidth) const
{
    if (column >= 0 && column <= 2)
        return truncated(static_cast<double>(totalWidth) * share(column));
    std::int64_t rest = totalWidth;
    for (int taken = 0; taken <= 2; ++taken)
        rest -= width(taken, totalWidth);
    return saturated(rest);
}

void ColumnShares::resize(int column, int newWidth, int totalWidth)
{
    if (totalWidth <= 0)
        return;
    const double whole = totalWidth;
    // Wide enough for every sum of widths below.
    const std::int64_t total = totalWidth;
    const std::int64_t c0 = width(0, totalWidth);
    const std::int64_t c1 = width(1, totalWidth);
    const std::int64_t limit = total - kMargin0;
    const std::int64_t x = newWidth > limit ? total : newWidth;
    const auto shareOf = [whole](std::int64_t pixels) {
        return static_cast<double>(pixels) / whole;
    };

    if (column == 0) {
        const bool fits = x <= limit;
        const std::int64_t end0 = fits ? x : limit;
        const std::int64_t end1 = fits ? std::max(c0 + c1, x + 10) : total - kMargin1;
        const std::int64_t end2 =
            fits ? std::max(width(2, totalWidth) + c0 + c1, end1 + 5) : total - kMargin2;
        m_shares = {shareOf(end0), shareOf(end1 - end0), shareOf(end2 - end1)};
    } else if (column == 1) {
        const double grown = shareOf(std::min(x, total - kMargin1 - c0));
        m_shares[2] -= grown - m_shares[1];
        m_shares[1] = grown;
    } else if (column == 2) {
        m_shares[2] = shareOf(std::min(x, total - kMargin2 - c0 - c1));
    }
}

std::optional<ColumnShares> usableShares(std::array<double, 3> shares)
{
    double sum = 0;
    for (double& share : shares) {
        if (!(share >= -kRounding && share <= 1 + kRounding)) // no number is neither
            return std::nullopt;
        share = std::clamp(share, 0.0, 1.0);
        sum += share;
    }
    if (sum > 1 + kRounding)
        return std::nullopt;
    return ColumnShares(shares);
}

std::array<double, 3> sharesWithinRow(std::array<double, 3> shares)
{
    const double room = 1 - shares[0] - shares[1];
    if (shares[2] > room + kRounding)
        shares[2] = std::max(room, 0.0);
    return shares;
}

} // namespace condtree
