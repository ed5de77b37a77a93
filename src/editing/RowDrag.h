#pragma once

#include <condtree/editing/DragEffect.h>
#include <condtree/editing/DragScroll.h>

#include <cstdint>
#include <functional>
#include <optional>

namespace condtree {

class VarTreeCtrlNode;

/// What the pointer is on while a row is dragged.
struct DragPlace {
    /// In viewport co-ordinates.
    POINT at{};
    /// The row that is hit; null is none.
    HTREEITEM item = nullptr;
    /// Where it is hit, as TVHT_ flags.
    unsigned flags = 0;
    /// The code of the row's node; none where there is no row, or one without a node.
    std::optional<LONG> code;
    /// Whether it is a group that could be opened.
    bool isClosed = false;
    DragScroll scroll;
    /// The row that is marked as the one under the drag so far; null is none.
    HTREEITEM highlight = nullptr;
};

/// The drag of a row with the left button, as a state machine: what the hand does goes in, what is
/// to be done comes out. It never touches a row; a handle whose row dies is forgotten when told so.
///
/// Idle; Held once the button is down in the first column; Allowed when it has been held for long
/// enough; Dragging from the next movement on a row that may be dragged; Idle when the button is
/// up.
class RowDrag {
public:
    enum class State { Idle, Held, Allowed, Dragging };

    static constexpr std::uintptr_t kHoldTimer = 1000;
    static constexpr unsigned kHoldTime = 70;
    static constexpr std::uintptr_t kScrollTimer = 1001;
    static constexpr std::uintptr_t kOpenTimer = 1002;
    /// How long the pointer rests on a closed group before it opens.
    static constexpr unsigned kOpenTime = 700;

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool isDragging() const { return m_state == State::Dragging; }
    [[nodiscard]] HTREEITEM dragged() const { return m_dragged; }
    /// As dropTarget gives it; kept from one drag to the next.
    [[nodiscard]] HTREEITEM target() const { return m_target; }

    /// The button goes down; mayBegin is whether that is in the first column.
    [[nodiscard]] DragEffects press(bool mayBegin);
    /// The pointer moves. The first movement of all arms the target only.
    [[nodiscard]] DragEffects move(const DragPlace& place, bool isButtonHeld);
    /// A drag is to begin at a place; it has begun once imageShown is called.
    [[nodiscard]] DragEffects begin(const DragPlace& place);
    void imageShown();
    /// One of the timers above has run out; other ids do nothing.
    [[nodiscard]] DragEffects timer(std::uintptr_t id, const DragPlace& place);
    /// The button goes up; targetNode is the target's, null when it has none.
    [[nodiscard]] DragEffects release(const VarTreeCtrlNode* targetNode);
    /// The drag, or what could have become one, ends and nothing is dropped.
    [[nodiscard]] DragEffects cancel();
    /// Forgets the rows that are gone. The drag of one of them is cancelled.
    [[nodiscard]] DragEffects forget(const std::function<bool(HTREEITEM)>& isThere);

private:
    void drag(const DragPlace& place, DragEffects& effects);
    void rest(const DragPlace& place, DragEffects& effects);
    void endImage(DragEffects& effects);
    void stopHolding(DragEffects& effects);
    void stopTimers(DragEffects& effects);

    State m_state = State::Idle;
    HTREEITEM m_dragged = nullptr;
    HTREEITEM m_target = nullptr;
    /// The row that was marked when the first row below the drag was.
    HTREEITEM m_rememberedHighlight = nullptr;
    HTREEITEM m_restsOn = nullptr;
    std::uintptr_t m_holdTimer = 0;
    bool m_isScrolling = false;
    bool m_isOpening = false;
};

} // namespace condtree
