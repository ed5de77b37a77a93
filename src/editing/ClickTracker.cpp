#include "ClickTracker.h"

#include <cstdlib>
#include <utility>

namespace condtree {

bool ClickTracker::move(POINT point)
{
    if (m_pressedAt
        && (std::abs(point.x - m_pressedAt->x) > kDragDistance
            || std::abs(point.y - m_pressedAt->y) > kDragDistance))
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
