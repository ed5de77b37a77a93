#include "RowDrag.h"

#include <condtree/editing/DropDecision.h>

#include <utility>

namespace condtree {

void RowDrag::stopHolding(DragEffects& effects)
{
    if (m_holdTimer != 0)
        effects.push_back(StopDragTimer{std::exchange(m_holdTimer, 0)});
}

void RowDrag::stopTimers(DragEffects& effects)
{
    if (std::exchange(m_isScrolling, false))
        effects.push_back(StopDragTimer{kScrollTimer});
    if (std::exchange(m_isOpening, false))
        effects.push_back(StopDragTimer{kOpenTimer});
    m_restsOn = nullptr;
}

void RowDrag::endImage(DragEffects& effects)
{
    stopTimers(effects);
    effects.push_back(EndDragImage{});
    effects.push_back(HighlightRow{nullptr, false});
    m_rememberedHighlight = nullptr;
}

DragEffects RowDrag::press(bool mayBegin)
{
    DragEffects effects = cancel(); // a release that never came
    if (mayBegin) {
        m_state = State::Held;
        m_holdTimer = kHoldTimer;
        effects.push_back(StartDragTimer{kHoldTimer, kHoldTime});
    }
    return effects;
}

DragEffects RowDrag::move(const DragPlace& place, bool isButtonHeld)
{
    DragEffects effects;
    if (isDragging())
        drag(place, effects);
    else if (m_target == nullptr)
        m_target = TVI_ROOT;
    else if (m_state == State::Allowed && isButtonHeld)
        effects.push_back(BeginDrag{});
    return effects;
}

void RowDrag::drag(const DragPlace& place, DragEffects& effects)
{
    effects.push_back(MoveDragImage{place.at});
    if (m_rememberedHighlight == nullptr)
        m_rememberedHighlight = place.highlight;
    m_target = dropTarget(place.item, place.code);
    effects.push_back(HighlightRow{place.item, m_target != nullptr});
    rest(place, effects);
    if (place.scroll.rows != 0 && !std::exchange(m_isScrolling, true))
        effects.push_back(StartDragTimer{kScrollTimer, place.scroll.pause});
}

// The time counts from when the pointer comes onto the row.
void RowDrag::rest(const DragPlace& place, DragEffects& effects)
{
    if (place.item == m_restsOn)
        return;
    m_restsOn = place.item;
    if (std::exchange(m_isOpening, place.isClosed))
        effects.push_back(StopDragTimer{kOpenTimer});
    if (m_isOpening)
        effects.push_back(StartDragTimer{kOpenTimer, kOpenTime});
}

DragEffects RowDrag::begin(const DragPlace& place)
{
    DragEffects effects;
    if (isDragging())
        effects = cancel();
    m_dragged = nullptr;
    if (!beginsDrag(place.flags))
        return effects;
    if (isDraggable(place.code)) {
        m_dragged = place.item;
        m_target = nullptr;
        effects.push_back(ShowDragImage{place.item, place.at});
    } else if (m_state == State::Allowed) {
        m_state = State::Idle;
    }
    return effects;
}

void RowDrag::imageShown()
{
    m_state = State::Dragging;
}

DragEffects RowDrag::timer(std::uintptr_t id, const DragPlace& place)
{
    DragEffects effects;
    if (id == m_holdTimer && id != 0) {
        stopHolding(effects);
        if (m_state == State::Held)
            m_state = State::Allowed;
    } else if (id == kScrollTimer && std::exchange(m_isScrolling, false)
               && place.scroll.rows != 0) {
        m_isScrolling = true;
        effects.push_back(StartDragTimer{kScrollTimer, place.scroll.pause});
        effects.push_back(ScrollRows{place.scroll.rows});
    } else if (id == kOpenTimer && std::exchange(m_isOpening, false)) {
        effects.push_back(OpenGroup{m_restsOn});
    }
    return effects;
}

DragEffects RowDrag::release(const VarTreeCtrlNode* targetNode)
{
    DragEffects effects;
    bool isTold = true;
    const HTREEITEM dragged = std::exchange(m_dragged, nullptr);
    // Idle before anything is done, since that may let the host in.
    if (std::exchange(m_state, State::Idle) == State::Dragging) {
        endImage(effects);
        const DropEnd end = decideDrop(dragged, m_target, targetNode);
        isTold = end == DropEnd::Moves;
        if (end == DropEnd::Nowhere)
            effects.push_back(RepaintRows{});
        else if (isTold)
            effects.push_back(DropRow{dragged, m_target});
    }
    stopHolding(effects);
    if (isTold)
        effects.push_back(TellRelease{});
    return effects;
}

DragEffects RowDrag::cancel()
{
    DragEffects effects;
    if (isDragging())
        endImage(effects);
    stopHolding(effects);
    m_dragged = nullptr;
    m_state = State::Idle;
    return effects;
}

DragEffects RowDrag::forget(const std::function<bool(HTREEITEM)>& isThere)
{
    const auto isGone = [&](HTREEITEM item) {
        return item != nullptr && item != TVI_ROOT && !isThere(item);
    };
    for (HTREEITEM* item : {&m_target, &m_rememberedHighlight}) {
        if (isGone(*item))
            *item = nullptr;
    }
    if (isGone(m_dragged))
        return cancel();
    DragEffects effects;
    if (isGone(m_restsOn)) {
        m_restsOn = nullptr;
        if (std::exchange(m_isOpening, false))
            effects.push_back(StopDragTimer{kOpenTimer});
    }
    return effects;
}

} // namespace condtree
