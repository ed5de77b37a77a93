#include "DoubleClickTracker.h"

namespace condtree {

namespace {

bool contains(const RECT& rect, const POINT& point)
{
    return point.x >= rect.left && point.x < rect.right && point.y >= rect.top
           && point.y < rect.bottom;
}

RECT centred(const POINT& point, const SIZE& size)
{
    const POINT corner{point.x - size.cx / 2, point.y - size.cy / 2};
    return {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
}

} // namespace

bool DoubleClickTracker::press(const POINT& point, bool onTarget, DWORD tick)
{
    if (contains(m_near, point) && onTarget && tick - m_lastTick <= m_time)
        return true;
    m_lastTick = tick;
    m_near = centred(point, m_size);
    return false;
}

} // namespace condtree
