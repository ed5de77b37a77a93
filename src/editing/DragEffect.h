#pragma once

#include <condtree/platform/TreeVocabulary.h>

#include <QVarLengthArray>

#include <cstdint>
#include <variant>

// What a drag asks for, as values.
namespace condtree {

struct StartDragTimer {
    std::uintptr_t id;
    unsigned milliseconds;
    bool operator==(const StartDragTimer&) const = default;
};
struct StopDragTimer {
    std::uintptr_t id;
    bool operator==(const StopDragTimer&) const = default;
};
/// The button has been held for long enough: a drag is to begin where the pointer is.
struct BeginDrag {
    bool operator==(const BeginDrag&) const = default;
};
/// A picture of a row appears with its middle at a point. The drag goes on only if it does.
struct ShowDragImage {
    HTREEITEM item;
    POINT at;
    bool operator==(const ShowDragImage&) const = default;
};
struct MoveDragImage {
    POINT at;
    bool operator==(const MoveDragImage&) const = default;
};
struct EndDragImage {
    bool operator==(const EndDragImage&) const = default;
};
/// A row is marked as the one under the drag, instead of the one before; null is none. isTarget is
/// whether the dragged row may be dropped here.
struct HighlightRow {
    HTREEITEM item;
    bool isTarget;
    bool operator==(const HighlightRow&) const = default;
};
/// The rows scroll by as many; up is negative.
struct ScrollRows {
    int rows;
    bool operator==(const ScrollRows&) const = default;
};
struct OpenGroup {
    HTREEITEM item;
    bool operator==(const OpenGroup&) const = default;
};
/// A row is moved to the end of a target, selected, and the target opened.
struct DropRow {
    HTREEITEM item, target;
    bool operator==(const DropRow&) const = default;
};
struct RepaintRows {
    bool operator==(const RepaintRows&) const = default;
};
/// The host learns that the button was released; it may delete everything.
struct TellRelease {
    bool operator==(const TellRelease&) const = default;
};

using DragEffect = std::variant<StartDragTimer, StopDragTimer, BeginDrag, ShowDragImage,
                                MoveDragImage, EndDragImage, HighlightRow, ScrollRows, OpenGroup,
                                DropRow, RepaintRows, TellRelease>;
/// What is to be done, in order.
using DragEffects = QVarLengthArray<DragEffect, 8>;

} // namespace condtree
