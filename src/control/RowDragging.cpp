#include "RowDragging.h"

#include <condtree/control/CellEditing.h>
#include <condtree/control/ConditionModel.h>
#include <condtree/control/RowDrawing.h>
#include <condtree/control/TreeGeometry.h>
#include <condtree/editing/RowMove.h>
#include <condtree/platform/ButtonReleasedMessage.h>
#include <condtree/presentation/RowLayout.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSplitter>

#include <utility>

namespace condtree {

namespace {

// How much of a row is recognised as one.
constexpr LONG kSmallestPicture = 40;

QPoint toPoint(POINT point)
{
    return {point.x, point.y};
}

QRect toRect(const RECT& rect)
{
    return {QPoint(rect.left, rect.top), QPoint(rect.right - 1, rect.bottom - 1)};
}

// The window, so that the picture follows the pointer out of the view. A splitter would take it for
// one of its panes.
QWidget* coveredBy(QTreeView& view)
{
    return qobject_cast<QSplitter*>(view.window()) == nullptr ? view.window() : &view;
}

bool isEscape(const QEvent& event)
{
    return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

// A scroll bar counts rows or pixels, as the view's scroll mode is.
int scrollStep(const QTreeView& view, int rowHeight)
{
    return view.verticalScrollMode() == QAbstractItemView::ScrollPerItem ? 1 : rowHeight;
}

} // namespace

RowDragging::RowDragging(const RowDraggingNeeds& needs)
    : m_view(&needs.view)
    , m_needs(needs)
{
}

DragPlace RowDragging::placeAt(POINT point) const
{
    DragPlace place;
    place.at = point;
    if (m_view.isNull())
        return place;
    const TreeHit hit = hitTest(*m_view, m_needs.model, point);
    place.item = hit.item;
    place.flags = hit.flags;
    if (const VarTreeCtrlNode* node = m_needs.model.node(hit.item)) {
        place.code = node->mlCode;
        place.isClosed =
            !node->mChildren.empty() && !m_view->isExpanded(m_needs.model.indexOf(hit.item));
    }
    place.scroll = dragScrollAt(point.y, m_view->viewport()->height());
    place.highlight = m_needs.drawing.dropHighlight();
    return place;
}

void RowDragging::press(POINT point)
{
    m_needs.cells.inPlace().finish();
    if (m_view.isNull())
        return;
    m_at = point;
    perform(m_drag.press(mayBeginDrag(point.x, m_view->viewport()->width(), m_needs.columns)));
}

bool RowDragging::move(unsigned flags, POINT point)
{
    m_at = point;
    const DragPlace place = isDragging() ? placeAt(point) : DragPlace{};
    return perform(m_drag.move(place, (flags & MK_LBUTTON) != 0));
}

void RowDragging::begin(POINT point)
{
    m_at = point;
    perform(m_drag.begin(placeAt(point)));
}

void RowDragging::timer(std::uintptr_t id)
{
    perform(m_drag.timer(id, isDragging() ? placeAt(m_at) : DragPlace{}));
}

bool RowDragging::release()
{
    m_isMoved = false;
    perform(m_drag.release(m_needs.tree.node(m_drag.target())));
    return m_isMoved;
}

void RowDragging::cancel()
{
    perform(m_drag.cancel());
}

void RowDragging::rowsMove()
{
    if (isDragging())
        perform(m_drag.move(placeAt(m_at), true));
}

void RowDragging::rowsGone()
{
    const auto isThere = [this](HTREEITEM item) { return m_needs.tree.node(item) != nullptr; };
    if (!isThere(m_needs.drawing.dropHighlight()))
        m_needs.drawing.setDropHighlight(nullptr);
    perform(m_drag.forget(isThere));
}

void RowDragging::shutDown()
{
    cancel();
    m_view.clear();
}

bool RowDragging::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->setAccepted(isEscape(*event));
        return isEscape(*event);
    case QEvent::KeyPress:
        if (!isEscape(*event))
            break;
        cancel();
        return true;
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
    case QEvent::EnabledChange:
        cancel();
        break;
    default:
        break;
    }
    return QObject::eventFilter(receiver, event);
}

bool RowDragging::perform(const DragEffects& effects)
{
    bool isToBegin = false;
    for (const DragEffect& effect : effects) {
        if (m_view.isNull())
            return false;
        std::visit([this](const auto& what) { perform(what); }, effect);
        isToBegin = isToBegin || std::holds_alternative<BeginDrag>(effect);
    }
    return isToBegin;
}

void RowDragging::perform(const StartDragTimer& timer)
{
    m_needs.services.startTimer(m_view, timer.id, timer.milliseconds);
}

void RowDragging::perform(const StopDragTimer& timer)
{
    m_needs.services.stopTimer(m_view, timer.id);
}

void RowDragging::perform(const BeginDrag&) {}

QRect RowDragging::rowRect(HTREEITEM item) const
{
    const std::optional<RowPlace> place = placeOfRow(*m_view, m_needs.model.indexOf(item));
    return place ? toRect(place->row) : QRect();
}

// The row's first column as the view draws it, from its picture on: with the pointer in its middle,
// the whole row would hide what it is dragged over. What lies over the view is not part of it.
QPixmap RowDragging::pictureOf(HTREEITEM item) const
{
    const std::optional<RowAreas> areas = rowAreas(*m_view, m_needs.model.indexOf(item));
    if (!areas)
        return {};
    const RECT& row = areas->row;
    const LONG right = row.left + m_needs.columns.width(0, row.right - row.left);
    // A narrow column leaves no room beside the indentation: then the rest of the row is shown.
    const bool hasRoom = right > areas->pictureLeft + kSmallestPicture;
    const QRect rect =
        toRect({areas->pictureLeft, row.top, hasRoom ? right : row.right, row.bottom});
    if (rect.isEmpty())
        return {};
    QWidget& viewport = *m_view->viewport();
    const qreal ratio = viewport.devicePixelRatioF();
    QPixmap picture(rect.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    viewport.render(&picture, QPoint(), QRegion(rect), QWidget::DrawWindowBackground);
    return picture;
}

void RowDragging::perform(const ShowDragImage& image)
{
    const QPixmap picture = pictureOf(image.item);
    // Drawing lets the host in, who may have deleted the row meanwhile.
    if (picture.isNull() || m_view.isNull() || m_drag.dragged() != image.item)
        return;
    m_image = new DragImage(coveredBy(*m_view), picture);
    m_drag.imageShown();
    perform(MoveDragImage{image.at});
    m_image->show();
    m_image->raise();
    m_view->installEventFilter(this);
}

void RowDragging::perform(const MoveDragImage& image)
{
    if (!m_image.isNull())
        m_image->moveTo(m_view->viewport()->mapTo(m_image->parentWidget(), toPoint(image.at)));
}

// A window that is deactivated is telling each of its widgets, so that none may be deleted now.
void RowDragging::perform(const EndDragImage&)
{
    m_view->removeEventFilter(this);
    restoreCursor();
    if (m_image.isNull())
        return;
    m_image->hide();
    m_image->deleteLater();
    m_image.clear();
}

void RowDragging::perform(const HighlightRow& row)
{
    const HTREEITEM before = m_needs.drawing.dropHighlight();
    m_needs.drawing.setDropHighlight(row.item);
    if (isDragging())
        setCursor(row.isTarget);
    if (row.item == before)
        return;
    m_view->viewport()->update(rowRect(before));
    m_view->viewport()->update(rowRect(row.item));
}

void RowDragging::setCursor(bool isTarget)
{
    QWidget& viewport = *m_view->viewport();
    if (!std::exchange(m_hasCursor, true) && viewport.testAttribute(Qt::WA_SetCursor))
        m_cursorBefore = viewport.cursor();
    const Qt::CursorShape shape = isTarget ? Qt::ArrowCursor : Qt::ForbiddenCursor;
    if (viewport.cursor().shape() != shape || !viewport.testAttribute(Qt::WA_SetCursor))
        viewport.setCursor(shape);
}

void RowDragging::restoreCursor()
{
    const std::optional<QCursor> before = std::exchange(m_cursorBefore, std::nullopt);
    if (!std::exchange(m_hasCursor, false))
        return;
    if (before)
        m_view->viewport()->setCursor(*before);
    else
        m_view->viewport()->unsetCursor();
}

// What scrolls tells of it, and the row below the pointer is looked for again.
void RowDragging::perform(const ScrollRows& scroll)
{
    QScrollBar& bar = *m_view->verticalScrollBar();
    const int height = m_view->visualRect(m_view->indexAt(QPoint(0, 0))).height();
    bar.setValue(bar.value() + scroll.rows * scrollStep(*m_view, height));
}

void RowDragging::perform(const OpenGroup& group)
{
    m_needs.tree.expand(group.item);
    rowsMove();
}

void RowDragging::perform(const DropRow& drop)
{
    const HTREEITEM moved = moveRow(m_needs.tree, drop.item, drop.target);
    putPlaceholderLast(m_needs.tree, moved);
    m_isMoved = moved != nullptr;
    const QModelIndex index = m_needs.model.indexOf(moved);
    if (index.isValid() && !m_view.isNull())
        m_view->setCurrentIndex(index);
    m_needs.tree.expand(drop.target);
}

void RowDragging::perform(const RepaintRows&)
{
    m_view->viewport()->update();
}

void RowDragging::perform(const TellRelease&)
{
    const QWidget* parent = m_view->parentWidget();
    QWidget* host = parent == nullptr ? nullptr : parent->parentWidget();
    if (host == nullptr)
        return;
    ButtonReleasedMessage message;
    QCoreApplication::sendEvent(host, &message);
}

} // namespace condtree
