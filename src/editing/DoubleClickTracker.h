#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// Tells when a press of the left button is the second of two that belong together.
class DoubleClickTracker final {
public:
    /// How soon the second press has to come, in ticks, and how far around the first one.
    DoubleClickTracker(DWORD time, const SIZE& size)
        : m_time(time)
        , m_size(size)
    {
    }

    /// Takes a press at a tick count, which may wrap around. True when it completes a double click:
    /// that takes a place which can be double-clicked (onTarget). Every other press becomes the
    /// first one of the next.
    [[nodiscard]] bool press(const POINT& point, bool onTarget, DWORD tick);

private:
    DWORD m_time;
    SIZE m_size;
    DWORD m_lastTick = 0;
    /// Where the second press has to be; empty before the first.
    RECT m_near{};
};

} // namespace condtree
