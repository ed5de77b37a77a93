#include "ChoiceListView.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace condtree {

namespace {

bool isTyped(const QKeyEvent& event)
{
    const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event.text().isEmpty() && event.text().front().isPrint()
           && !(event.modifiers() & commands);
}

} // namespace

ChoiceListView::ChoiceListView(QWidget* parent)
    : QListView(parent)
{
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideRight);
    // Its menu would be a popup over this one, and the list may be gone when it closes.
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);
}

void ChoiceListView::setRowHeight(int height)
{
    m_rowHeight = std::max(height, 1);
    updateGeometries();
}

void ChoiceListView::setShownRows(const std::optional<std::vector<int>>& rows)
{
    if (!m_shown && !rows)
        return;
    m_shown = rows;
    updateGeometries();
    viewport()->update();
}

int ChoiceListView::shownCount() const
{
    if (model() == nullptr)
        return 0;
    return m_shown ? static_cast<int>(m_shown->size()) : model()->rowCount();
}

QModelIndex ChoiceListView::rowAt(int position) const
{
    if (position < 0 || position >= shownCount())
        return {};
    return model()->index(m_shown ? (*m_shown)[static_cast<std::size_t>(position)] : position, 0);
}

int ChoiceListView::positionOf(const QModelIndex& index) const
{
    if (!index.isValid() || !m_shown)
        return index.row();
    const auto found = std::lower_bound(m_shown->begin(), m_shown->end(), index.row());
    return found != m_shown->end() && *found == index.row()
               ? static_cast<int>(found - m_shown->begin())
               : -1;
}

int ChoiceListView::pageRows() const
{
    return std::max(viewport()->height() / m_rowHeight, 1);
}

QRect ChoiceListView::visualRect(const QModelIndex& index) const
{
    const int position = positionOf(index);
    if (position < 0)
        return {};
    return {0, position * m_rowHeight - verticalOffset(), viewport()->width(), m_rowHeight};
}

QModelIndex ChoiceListView::indexAt(const QPoint& point) const
{
    const int y = point.y() + verticalOffset();
    return y < 0 ? QModelIndex() : rowAt(y / m_rowHeight);
}

void ChoiceListView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const QRect row = visualRect(index);
    const int height = viewport()->height();
    if (row.isNull())
        return;
    int top = verticalOffset();
    if (hint == PositionAtCenter)
        top += row.center().y() - height / 2;
    else if (hint == PositionAtTop || row.top() < 0)
        top += row.top();
    else if (hint == PositionAtBottom || row.bottom() >= height)
        top += row.bottom() + 1 - height;
    verticalScrollBar()->setValue(top);
}

// There is nothing to lay out, and the base of the base knows what else belongs to it.
void ChoiceListView::doItemsLayout()
{
    QAbstractItemView::doItemsLayout();
}

void ChoiceListView::updateGeometries()
{
    QScrollBar& bar = *verticalScrollBar();
    const int height = viewport()->height();
    bar.setSingleStep(m_rowHeight);
    bar.setPageStep(height);
    bar.setRange(0, std::max(shownCount() * m_rowHeight - height, 0));
    QAbstractItemView::updateGeometries();
}

void ChoiceListView::scrollContentsBy(int, int)
{
    viewport()->update();
}

void ChoiceListView::resizeEvent(QResizeEvent* event)
{
    QAbstractItemView::resizeEvent(event);
}

void ChoiceListView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QStyle::State plain = option.state & ~QStyle::State_HasFocus;
    const int first = (event->rect().top() + verticalOffset()) / m_rowHeight;
    for (int position = first;; ++position) {
        const QModelIndex index = rowAt(position);
        option.rect = visualRect(index);
        if (!index.isValid() || option.rect.top() > event->rect().bottom())
            break;
        option.state = plain;
        if (selectionModel()->isSelected(index))
            option.state |= QStyle::State_Selected;
        itemDelegate()->paint(&painter, option, index);
    }
}

QModelIndex ChoiceListView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = shownCount() - 1;
    const int now = positionOf(currentIndex());
    const auto to = [&](int position) { return rowAt(std::clamp(position, 0, std::max(last, 0))); };
    switch (action) {
    case MoveUp:
    case MovePrevious:
        return to(now < 0 ? last : now - 1);
    case MovePageUp:
        return to(now - pageRows());
    case MovePageDown:
        return to(std::max(now, 0) + pageRows());
    case MoveHome:
        return to(0);
    case MoveEnd:
        return to(last);
    case MoveLeft:
    case MoveRight:
        return currentIndex();
    default:
        return to(now + 1);
    }
}

void ChoiceListView::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Backspace || isTyped(*event))
        takeText(*event);
    else
        QListView::keyPressEvent(event);
}

void ChoiceListView::takeText(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Backspace)
        Q_EMIT backspacePressed();
    else if (isTyped(event))
        keyboardSearch(event.text());
}

void ChoiceListView::takeWheel(const QWheelEvent& event)
{
    QWheelEvent turn(event.position(), event.globalPosition(), event.pixelDelta(),
                     event.angleDelta(), event.buttons(), event.modifiers(), event.phase(),
                     event.inverted(), event.source());
    wheelEvent(&turn);
}

void ChoiceListView::keyboardSearch(const QString& text)
{
    Q_EMIT typed(text);
}

void ChoiceListView::inputMethodEvent(QInputMethodEvent* event)
{
    if (!event->commitString().isEmpty())
        keyboardSearch(event->commitString());
    event->accept();
}

QVariant ChoiceListView::inputMethodQuery(Qt::InputMethodQuery query) const
{
    return query == Qt::ImEnabled ? QVariant(true) : QListView::inputMethodQuery(query);
}

// Not the item view's, which makes the first row current where there is none: Return would choose
// it.
void ChoiceListView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->update();
}

// The list view's own tell screen readers of rows by its layout, which is never made.
void ChoiceListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QAbstractItemView::currentChanged(current, previous);
    if (current.isValid() && QAccessible::isActive() && isVisible()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(current.row());
        QAccessible::updateAccessibility(&event);
    }
}

void ChoiceListView::selectionChanged(const QItemSelection& selected,
                                      const QItemSelection& deselected)
{
    QAbstractItemView::selectionChanged(selected, deselected);
}

int ChoiceListView::horizontalOffset() const
{
    return 0;
}

int ChoiceListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

bool ChoiceListView::isIndexHidden(const QModelIndex& index) const
{
    return positionOf(index) < 0;
}

void ChoiceListView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags)
{
    selectionModel()->select(indexAt(rect.topLeft()), flags);
}

QRegion ChoiceListView::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QModelIndex& index : selection.indexes())
        region += visualRect(index);
    return region;
}

} // namespace condtree
