#pragma once

#include <condtree/editing/DragImage.h>
#include <condtree/editing/EditedTree.h>
#include <condtree/editing/RowDrag.h>
#include <condtree/platform/Services.h>

#include <QCursor>
#include <QObject>
#include <QPointer>
#include <QTreeView>

#include <optional>

namespace condtree {

class CellEditing;
class ColumnShares;
class ConditionModel;
class RowDrawing;

/// What dragging needs; all must outlive it, but for the view.
struct RowDraggingNeeds {
    QTreeView& view;
    const Services& services;
    const ConditionModel& model;
    const ColumnShares& columns;
    EditedTree& tree;
    RowDrawing& drawing;
    CellEditing& cells;
};

/// Does what the drag of a row asks for: timers, the picture, the mark, scrolling, and the drop.
/// While a row is dragged it listens for what ends a drag otherwise than by the button: Escape, and
/// all that takes the focus, the window or the view away.
///
/// Whatever lets the host in may delete the view: who calls keeps this alive.
class RowDragging final : public QObject {
    Q_OBJECT
public:
    explicit RowDragging(const RowDraggingNeeds& needs);

    [[nodiscard]] bool isDragging() const { return m_drag.isDragging(); }

    /// The button goes down at a point of the viewport: an open in-place editor is finished first.
    void press(POINT point);
    /// The pointer moves, with these MK_ flags. Whether a drag is to begin there.
    [[nodiscard]] bool move(unsigned flags, POINT point);
    /// Begins to drag the row at a point, if it may be dragged.
    void begin(POINT point);
    void timer(std::uintptr_t id);
    /// The button goes up. Whether a row was moved.
    [[nodiscard]] bool release();
    /// The drag, or what could have become one, ends and nothing is dropped.
    void cancel();
    /// The rows lie elsewhere below the pointer, which does not move.
    void rowsMove();
    /// Rows are gone.
    void rowsGone();
    /// The view goes.
    void shutDown();

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    [[nodiscard]] DragPlace placeAt(POINT point) const;
    [[nodiscard]] QRect rowRect(HTREEITEM item) const;
    [[nodiscard]] QPixmap pictureOf(HTREEITEM item) const;
    void setCursor(bool isTarget);
    void restoreCursor();

    /// Whether the effects asked for the beginning of a drag.
    bool perform(const DragEffects& effects);
    void perform(const StartDragTimer& timer);
    void perform(const StopDragTimer& timer);
    void perform(const BeginDrag&);
    void perform(const ShowDragImage& image);
    void perform(const MoveDragImage& image);
    void perform(const EndDragImage&);
    void perform(const HighlightRow& row);
    void perform(const ScrollRows& scroll);
    void perform(const OpenGroup& group);
    void perform(const DropRow& drop);
    void perform(const RepaintRows&);
    void perform(const TellRelease&);

    QPointer<QTreeView> m_view;
    RowDraggingNeeds m_needs;
    RowDrag m_drag;
    POINT m_at{};
    QPointer<DragImage> m_image;
    /// The view's cursor before the drag; none when it had none of its own.
    std::optional<QCursor> m_cursorBefore;
    bool m_hasCursor = false;
    bool m_isMoved = false;
};

} // namespace condtree
