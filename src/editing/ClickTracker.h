#pragma once

#include <condtree/platform/WinTypes.h>

#include <cstdint>
#include <optional>

namespace condtree {

/// Tells a click from a longer movement: the button is released near the place where it was
/// pressed, and the pointer never left it meanwhile.
class ClickTracker {
public:
    /// How far the pointer may go either way, in device-independent pixels.
    static constexpr LONG kDragDistance = 4;

    /// when is the event's time in milliseconds.
    void press(POINT point, std::uint64_t when = 0);
    /// Whether a press that the desktop calls the second of a double click is one here too: not
    /// when the first went to a list that it closed.
    [[nodiscard]] bool isSecondPress(POINT point, std::uint64_t when,
                                     int doubleClickInterval) const;
    /// Nothing that follows is a click until the next press: the second press of a double click, or
    /// a drag that has begun.
    void cancel() { m_pressedAt.reset(); }
    /// The pointer moved. Whether it is still where a click can come of it.
    bool move(POINT point);
    /// The button was released. Whether that was a click.
    bool release(POINT point);

private:
    std::optional<POINT> m_pressedAt;
    POINT m_lastPoint{};
    std::optional<std::uint64_t> m_lastPress; ///< its time
};

} // namespace condtree
