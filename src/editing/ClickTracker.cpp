#include "ClickTracker.h"

#include <cstdlib>
#include <utility>

namespace condtree {

namespace {

bool isNear(POINT left, POINT right)
{
    return std::abs(left.x - right.x) <= ClickTracker::kDragDistance
           && std::abs(left.y - right.y) <= ClickTracker::kDragDistance;
}

} // namespace

void ClickTracker::press(POINT point, std::uint64_t when)
{
    m_pressedAt = point;
    m_lastPoint = point;
    m_lastPress = when;
}

bool ClickTracker::isSecondPress(POINT point, std::uint64_t when, int doubleClickInterval) const
{
    return m_lastPress && when - *m_lastPress <= static_cast<std::uint64_t>(doubleClickInterval)
           && isNear(point, m_lastPoint);
}

bool ClickTracker::move(POINT point)
{
    if (m_pressedAt && !isNear(point, *m_pressedAt))
        m_pressedAt.reset();
    return m_pressedAt.has_value();
}

bool ClickTracker::release(POINT point)
{
    const bool isClick = move(point);
    m_pressedAt.reset();
    return isClick;
}

} // namespace condtree
