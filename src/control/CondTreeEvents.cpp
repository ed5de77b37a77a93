#include "CondTreeCtrl.h"

#include <condtree/control/CondTreeParts.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

// What the user's hand does to the control.
namespace condtree {

namespace {

POINT pointOf(const QMouseEvent& event)
{
    const QPoint point = event.position().toPoint();
    return {point.x(), point.y()};
}

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
    connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this, begin);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, begin);
    connect(model, &QAbstractItemModel::rowsRemoved, this, end);
    connect(model, &QAbstractItemModel::modelReset, this, end);
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
    m_parts->clicks.press(pointOf(*event), event->timestamp());
    QTreeView::mousePressEvent(event);
}

void CondTreeCtrl::mouseMoveEvent(QMouseEvent* event)
{
    m_parts->clicks.move(pointOf(*event));
    QTreeView::mouseMoveEvent(event);
}

void CondTreeCtrl::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const auto parts = m_parts;
    const QPointer<CondTreeCtrl> self(this);
    const POINT onScreen = screenPointOf(*event);
    const bool isClick = parts->clicks.release(pointOf(*event));
    QTreeView::mouseReleaseEvent(event);
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
    if (!self.isNull())
        QTreeView::scrollContentsBy(dx, dy);
}

} // namespace condtree
