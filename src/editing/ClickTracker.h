#pragma once

#include <condtree/platform/WinTypes.h>

#include <optional>

namespace condtree {

/// Tells a click from a longer movement: the button is released near the place where it was
/// pressed, and the pointer never left it meanwhile.
class ClickTracker {
public:
    /// How far the pointer may go either way, in device-independent pixels.
    static constexpr LONG kDragDistance = 4;

    void press(POINT point) { m_pressedAt = point; }
    /// Nothing that follows is a click until the next press: the second press of a double click, or
    /// a drag that has begun.
    void cancel() { m_pressedAt.reset(); }
    /// The pointer moved. Whether it is still where a click can come of it.
    bool move(POINT point);
    /// The button was released. Whether that was a click.
    bool release(POINT point);

private:
    std::optional<POINT> m_pressedAt;
};

} // namespace condtree
