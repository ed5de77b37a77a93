#include "CondTreeCtrl.h"

#include <condtree/control/CondTreeParts.h>
#include <condtree/editing/RowMove.h>
#include <condtree/platform/TimerMessage.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <utility>

// What the user's hand does to the control.
namespace condtree {

namespace {

POINT pointOf(const QMouseEvent& event)
{
    const QPoint point = event.position().toPoint();
    return {point.x(), point.y()};
}

unsigned flagsOf(const QMouseEvent& event)
{
    const auto flag = [](bool isDown, unsigned value) { return isDown ? value : 0U; };
    return flag(event.buttons() & Qt::LeftButton, MK_LBUTTON)
           | flag(event.buttons() & Qt::RightButton, MK_RBUTTON)
           | flag(event.buttons() & Qt::MiddleButton, MK_MBUTTON)
           | flag(event.modifiers() & Qt::ShiftModifier, MK_SHIFT)
           | flag(event.modifiers() & Qt::ControlModifier, MK_CONTROL);
}

/// While it lives, a handler hands the event on to the view when its time has come.
class HandledMouse {
public:
    HandledMouse(QMouseEvent*& slot, QMouseEvent* event)
        : m_slot(slot)
        , m_before(std::exchange(slot, event))
    {
    }
    HandledMouse(const HandledMouse&) = delete;
    HandledMouse& operator=(const HandledMouse&) = delete;
    ~HandledMouse() { m_slot = m_before; }

private:
    QMouseEvent*& m_slot;
    QMouseEvent* m_before;
};

POINT screenPointOf(const QMouseEvent& event)
{
    const QPoint point = event.globalPosition().toPoint();
    return {point.x(), point.y()};
}

} // namespace

// What is connected with the view as its context ends with it.
void CondTreeCtrl::connectModel()
{
    const ConditionModel* model = &m_parts->model;
    CellEditing* cells = &m_parts->cells;
    connect(model, &ConditionModel::expandRequested, this, &QTreeView::expand);
    connect(model, &ConditionModel::textsChanged, viewport(), qOverload<>(&QWidget::update));
    const auto begin = [cells] { cells->rowsAboutToShift(); };
    const auto end = [cells] { cells->rowsShift(); };
    const auto gone = [parts = m_parts.get()] {
        parts->dragging.rowsGone();
        parts->cells.rowsShift();
    };
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, begin);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, begin);
    connect(model, &QAbstractItemModel::rowsRemoved, this, gone);
    connect(model, &QAbstractItemModel::modelReset, this, gone);
    connect(model, &QAbstractItemModel::rowsInserted, this, end);
    connect(this, &QTreeView::expanded, this, end);
    connect(this, &QTreeView::collapsed, this, end);
}

void CondTreeCtrl::connectEditors()
{
    CellEditing& cells = m_parts->cells;
    cells.lists().setHooks([this] { OnComboCloseup(); },
                           [this](QEvent* event) { PreTranslateMessage(event); });
    cells.inPlace().setHook([this] { Q_EMIT conditionChanged(); });
}

void CondTreeCtrl::OnNMClick(NMHDR*, LRESULT* result)
{
    *result = 0;
    const auto parts = m_parts;
    parts->cells.click(parts->takeClick());
}

void CondTreeCtrl::OnComboCloseup()
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    const bool isChanged = parts->cells.lists().closeUp();
    if (isChanged && !self.isNull())
        Q_EMIT conditionChanged();
}

void CondTreeCtrl::setQuickFilter(bool on)
{
    m_parts->cells.lists().setQuickFilter(on);
}

void CondTreeCtrl::finishEditing()
{
    const auto parts = m_parts;
    parts->cells.lists().settle();
    parts->cells.inPlace().settle();
}

bool CondTreeCtrl::PreTranslateMessage(QEvent* event)
{
    const auto parts = m_parts;
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::Wheel)
        parts->cells.lists().forward(*event);
    return false;
}

// The other buttons select nothing.
void CondTreeCtrl::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto parts = m_parts;
    parts->clicks.press(pointOf(*event), event->timestamp());
    const HandledMouse handled(parts->mouse, event);
    OnLButtonDown(flagsOf(*event), pointOf(*event));
}

// What a click can come of is no movement yet.
void CondTreeCtrl::mouseMoveEvent(QMouseEvent* event)
{
    const auto parts = m_parts;
    if ((event->buttons() & Qt::LeftButton) == 0)
        parts->dragging.cancel(); // the release got lost
    const HandledMouse handled(parts->mouse, event);
    if (!parts->clicks.move(pointOf(*event)))
        OnMouseMove(flagsOf(*event), pointOf(*event));
}

void CondTreeCtrl::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    const POINT onScreen = screenPointOf(*event);
    const bool isClick = parts->clicks.release(pointOf(*event));
    const HandledMouse handled(parts->mouse, event);
    OnLButtonUp(flagsOf(*event), pointOf(*event));
    if (!isClick || self.isNull())
        return;
    parts->clickedAt = onScreen;
    NMHDR header{this, 0, NM_CLICK};
    LRESULT result = 0;
    OnNMClick(&header, &result);
    parts->clickedAt.reset(); // a subclass may not have looked
}

// The second press of a double click opens and closes groups, and is no click of its own; the
// view may take it for a press, when the rows have changed since the first.
void CondTreeCtrl::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto parts = m_parts;
    if (!parts->clicks.isSecondPress(pointOf(*event), event->timestamp(),
                                     QApplication::doubleClickInterval())) {
        mousePressEvent(event);
        return;
    }
    QTreeView::mouseDoubleClickEvent(event);
    parts->clicks.cancel();
}

void CondTreeCtrl::keyPressEvent(QKeyEvent* event)
{
    const auto parts = m_parts;
    if (!parts->cells.typeDate(*event))
        QTreeView::keyPressEvent(event);
}

void CondTreeCtrl::OnLButtonDown(unsigned, POINT point)
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    parts->dragging.press(point);
    QMouseEvent* event = std::exchange(parts->mouse, nullptr);
    if (event != nullptr && !self.isNull())
        QTreeView::mousePressEvent(event);
    if (!self.isNull())
        viewport()->update();
}

// With the button held, the view would select what the pointer passes.
void CondTreeCtrl::OnMouseMove(unsigned flags, POINT point)
{
    const auto parts = m_parts;
    QMouseEvent* event = std::exchange(parts->mouse, nullptr);
    if (event != nullptr && (flags & MK_LBUTTON) == 0)
        QTreeView::mouseMoveEvent(event);
    if (parts->dragging.move(flags, point))
        mvBegindrag(point);
}

void CondTreeCtrl::OnLButtonUp(unsigned, POINT)
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    if (QMouseEvent* event = std::exchange(parts->mouse, nullptr))
        QTreeView::mouseReleaseEvent(event);
    const bool isMoved = parts->dragging.release();
    if (isMoved && !self.isNull())
        Q_EMIT conditionChanged();
}

void CondTreeCtrl::OnTimer(std::uintptr_t id)
{
    const auto parts = m_parts;
    parts->dragging.timer(id);
}

void CondTreeCtrl::mvBegindrag(POINT point)
{
    const auto parts = m_parts;
    parts->dragging.begin(point);
    if (parts->dragging.isDragging())
        parts->clicks.cancel();
}

HTREEITEM CondTreeCtrl::mhMoveItem(HTREEITEM item, HTREEITEM newParent, HTREEITEM)
{
    const auto parts = m_parts;
    return moveRow(parts->tree, item, newParent);
}

void CondTreeCtrl::customEvent(QEvent* event)
{
    if (event->type() == TimerMessage::messageType())
        OnTimer(static_cast<const TimerMessage*>(event)->id());
}

void CondTreeCtrl::resizeEvent(QResizeEvent* event)
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    parts->cells.rowsMove();
    if (!self.isNull())
        QTreeView::resizeEvent(event);
}

void CondTreeCtrl::scrollContentsBy(int dx, int dy)
{
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    parts->cells.rowsMove();
    if (self.isNull())
        return;
    QTreeView::scrollContentsBy(dx, dy);
    parts->dragging.rowsMove();
}

} // namespace condtree
