#include "DragScroll.h"

#include <algorithm>
#include <cstdint>

namespace condtree {

namespace {

constexpr LONG kFastestPause = 30;
constexpr LONG kPauseAPixel = 6;
constexpr LONG kPixelsARow = 12;
constexpr LONG kMostRows = 10;

} // namespace

DragScroll dragScrollAt(LONG y, LONG height)
{
    const LONG zone = std::min(kScrollZone, height / 4);
    const bool isAbove = y < zone;
    // How far the edge is away; negative beyond it.
    const std::int64_t distance = isAbove ? y : std::int64_t{height} - 1 - y;
    if (distance >= zone)
        return {};
    const auto beyond = std::max<std::int64_t>(-distance, 0);
    const auto rows = std::min<std::int64_t>(1 + beyond / kPixelsARow, kMostRows);
    const auto pause = kFastestPause + kPauseAPixel * std::max<std::int64_t>(distance, 0);
    return {static_cast<int>(isAbove ? -rows : rows), static_cast<unsigned>(pause)};
}

} // namespace condtree
