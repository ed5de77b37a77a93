#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// How the rows scroll while a row is dragged near an edge.
struct DragScroll {
    /// By how many rows a step goes; up is negative, 0 is away from the edges.
    int rows = 0;
    /// Milliseconds until the next step.
    unsigned pause = 0;
    bool operator==(const DragScroll&) const = default;
};

/// How far from its upper and lower edge a viewport scrolls, where it is high enough.
inline constexpr LONG kScrollZone = 24;

/// The scrolling for a pointer at y in a viewport of this height: the faster the nearer to the
/// edge, and faster still beyond it. The zones take at most a quarter of the height each.
[[nodiscard]] DragScroll dragScrollAt(LONG y, LONG height);

} // namespace condtree
