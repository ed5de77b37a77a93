#include "ColumnHeader.h"

#include <condtree/model/ControlText.h>
#include <condtree/presentation/ColumnBoundaries.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionHeader>

#include <algorithm>
#include <cmath>
#include <utility>

namespace condtree {

namespace {

constexpr int kStep = 10;
constexpr int kChosenWidth = 3;

/// Where the rows begin in the header. Within one window this is exact at every scale.
QPoint rowsOrigin(const QWidget& header, const QWidget& viewport)
{
    const QWidget* const window = header.window();
    if (viewport.window() == window)
        return viewport.mapTo(window, QPoint()) - header.mapTo(window, QPoint());
    return header.mapFromGlobal(viewport.mapToGlobal(QPoint()));
}

ColumnBoundaries boundariesOf(const QWidget& header, const CondTreeCtrl& control)
{
    const QWidget& viewport = *control.viewport();
    return {rowsOrigin(header, viewport).x(), viewport.width(),
            ColumnShares(control.columnShares())};
}

QStyleOptionHeader plainOption(const QWidget& header)
{
    QStyleOptionHeader option;
    option.initFrom(&header);
    // Sections cannot be clicked, and the focus is on a boundary.
    option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
    option.state |= QStyle::State_Horizontal | QStyle::State_Raised;
    option.orientation = Qt::Horizontal;
    option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    return option;
}

QStyleOptionHeader::SectionPosition positionOf(int column)
{
    if (column == 0)
        return QStyleOptionHeader::Beginning;
    return column == 3 ? QStyleOptionHeader::End : QStyleOptionHeader::Middle;
}

/// Whether the keyboard acts on a widget or on something in it.
bool hasFocusWithin(const QWidget& widget)
{
    const QWidget* const focus = QApplication::focusWidget();
    return focus != nullptr && (focus == &widget || widget.isAncestorOf(focus));
}

} // namespace

// Whatever resizes the columns may end in the host's code, which may delete the control and the
// header: resizing comes last, or it is looked whether they are still there.

ColumnHeader::ColumnHeader(CondTreeCtrl& control, QWidget* parent, const Services& services)
    : QWidget(parent)
    , m_control(&control)
    , m_strings(services.string ? services.string : realServices().string)
    , m_firstShares(control.columnShares())
{
    setLayoutDirection(Qt::LeftToRight);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    control.installEventFilter(this);
    control.viewport()->installEventFilter(this);
    connect(&control, &CondTreeCtrl::columnsResized, this, &ColumnHeader::showShares);
    // It is no control any more then, though the pointer still holds it.
    connect(&control, &QObject::destroyed, this, [this] {
        m_control.clear();
        update();
    });
    showTexts();
}

ColumnHeader::~ColumnHeader() = default;

std::array<CString, 4> ColumnHeader::titles() const
{
    if (m_titles)
        return *m_titles;
    return {textRef(ControlText::ColumnVariable).from(m_strings),
            textRef(ControlText::ColumnOperator).from(m_strings),
            textRef(ControlText::ColumnValue).from(m_strings),
            textRef(ControlText::ColumnRemark).from(m_strings)};
}

void ColumnHeader::setTitles(const std::array<CString, 4>& titles)
{
    m_titles = titles;
    updateGeometry();
    showShares();
}

void ColumnHeader::resetColumns()
{
    m_drag.reset();
    if (m_control)
        m_control->setColumnShares(m_firstShares);
}

QSize ColumnHeader::sizeHint() const
{
    QStyleOptionHeader option = plainOption(*this);
    QSize size(0, 0);
    for (const CString& title : titles()) {
        option.text = title;
        const QSize section =
            style()->sizeFromContents(QStyle::CT_HeaderSection, &option, {}, this);
        size = {size.width() + section.width(), std::max(size.height(), section.height())};
    }
    return size;
}

QSize ColumnHeader::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool ColumnHeader::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Resize || type == QEvent::Move || type == QEvent::Show)
        update();
    return QWidget::eventFilter(watched, event);
}

void ColumnHeader::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionHeader option = plainOption(*this);
    style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, &painter, this);
    if (!m_control)
        return;
    for (int column = 0; column < 4; ++column)
        drawTitle(painter, column);
    if (hasFocus())
        drawChosen(painter);
}

void ColumnHeader::drawTitle(QPainter& painter, int column) const
{
    const TitlePlace place = boundariesOf(*this, *m_control).title(column);
    QStyleOptionHeader option = plainOption(*this);
    option.section = column;
    option.position = positionOf(column);
    // Styles draw a section's line at its right end: that pixel is the boundary's.
    const int left = place.left + (column == 0 ? 0 : 1);
    const int right = place.right + (column == 3 ? 0 : 1);
    option.rect = QRect(left, 0, right - left, height());
    if (option.rect.isEmpty())
        return;
    style()->drawControl(QStyle::CE_HeaderSection, &option, &painter, this);
    option.rect.setLeft(place.textLeft);
    option.rect.setRight(place.right - 2);
    if (option.rect.isEmpty())
        return;
    const CString title = titles()[static_cast<std::size_t>(column)];
    option.text = option.fontMetrics.elidedText(title, Qt::ElideRight, option.rect.width());
    style()->drawControl(QStyle::CE_HeaderLabel, &option, &painter, this);
}

void ColumnHeader::drawChosen(QPainter& painter) const
{
    const LONG x = boundariesOf(*this, *m_control).boundary(m_chosen);
    const QRect bar(x - kChosenWidth / 2, 0, kChosenWidth, height());
    painter.fillRect(bar, palette().brush(QPalette::Highlight));
}

std::optional<int> ColumnHeader::boundaryAt(const QMouseEvent& event) const
{
    if (!m_control)
        return std::nullopt;
    const int reach = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    return boundariesOf(*this, *m_control).boundaryAt(qRound(event.position().x()), reach);
}

void ColumnHeader::choose(int column)
{
    m_chosen = std::clamp(column, 0, 2);
    showShares();
}

void ColumnHeader::mousePressEvent(QMouseEvent* event)
{
    const std::optional<int> column = boundaryAt(*event);
    if (event->button() != Qt::LeftButton || !column) {
        event->ignore();
        return;
    }
    const int x = qRound(event->position().x());
    choose(*column);
    m_drag = Drag{*column,
                  x,
                  boundariesOf(*this, *m_control).boundary(*column),
                  x,
                  m_control->columnShares(),
                  hasFocusWithin(*m_control)};
    // An editor that stands open in a row commits then, and Escape is heard.
    setFocus(Qt::MouseFocusReason);
}

void ColumnHeader::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_drag) {
        setCursor(boundaryAt(*event) ? Qt::SplitHCursor : Qt::ArrowCursor);
        return;
    }
    if (event->buttons().testFlag(Qt::LeftButton))
        dragTo(qRound(event->position().x()));
    else // the release went elsewhere
        endDrag();
}

void ColumnHeader::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        endDrag();
}

void ColumnHeader::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && boundaryAt(*event))
        resetColumns();
    else
        event->ignore();
}

// From the shares that the columns had at the press, so that what was pushed comes back with the
// mouse, and no rounding adds up.
void ColumnHeader::dragTo(int x)
{
    if (!m_control || m_drag->x == x)
        return;
    m_drag->x = x;
    const Drag drag = *m_drag;
    const QPointer<ColumnHeader> alive(this);
    m_control->setColumnShares(drag.shares);
    if (alive && m_control && x != drag.pressX)
        moveBoundary(drag.column, drag.boundaryX + x - drag.pressX);
}

void ColumnHeader::endDrag()
{
    const bool givesFocusBack = m_drag && m_drag->givesFocusBack && hasFocus();
    m_drag.reset();
    if (givesFocusBack && m_control)
        m_control->setFocus(Qt::MouseFocusReason);
}

void ColumnHeader::moveBoundary(int column, int x)
{
    const ColumnBoundaries boundaries = boundariesOf(*this, *m_control);
    const std::optional<int> width = boundaries.widthUpTo(x, column);
    if (!width)
        return;
    const QPointer<ColumnHeader> alive(this);
    m_control->mvResizeCol(column, *width, m_control->viewport()->width());
    if (alive && m_control)
        m_control->setColumnShares(sharesWithinRow(m_control->columnShares()));
}

void ColumnHeader::moveChosenBy(int pixels)
{
    moveBoundary(m_chosen, boundariesOf(*this, *m_control).boundary(m_chosen) + pixels);
}

void ColumnHeader::keyPressEvent(QKeyEvent* event)
{
    if (!m_control || !pressKey(*event))
        QWidget::keyPressEvent(event);
}

bool ColumnHeader::pressKey(const QKeyEvent& event)
{
    const bool moves = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left:
        moves ? moveChosenBy(-kStep) : choose(m_chosen - 1);
        return true;
    case Qt::Key_Right:
        moves ? moveChosenBy(kStep) : choose(m_chosen + 1);
        return true;
    case Qt::Key_Minus:
        moveChosenBy(-kStep);
        return true;
    case Qt::Key_Plus:
        moveChosenBy(kStep);
        return true;
    case Qt::Key_Home:
        resetColumns();
        return true;
    case Qt::Key_Escape:
        if (!m_drag)
            return false;
        m_control->setColumnShares(std::exchange(m_drag, std::nullopt)->shares);
        return true;
    default:
        return false;
    }
}

void ColumnHeader::hideEvent(QHideEvent* event)
{
    m_drag.reset();
    QWidget::hideEvent(event);
}

void ColumnHeader::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        showTexts();
    else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
}

void ColumnHeader::showTexts()
{
    setAccessibleName(textRef(ControlText::Columns).from(m_strings));
    updateGeometry();
    showShares();
}

// Who hears the window is told the chosen boundary, by the column at its left and that one's share.
void ColumnHeader::showShares()
{
    update();
    if (!m_control)
        return;
    const double share = m_control->columnShares()[static_cast<std::size_t>(m_chosen)];
    const CString place = titles()[static_cast<std::size_t>(m_chosen)] + QLatin1String(": ")
                          + QLocale().toString(std::lround(100 * share)) + QLatin1String(" %. ");
    setAccessibleDescription(place + textRef(ControlText::ColumnsHelp).from(m_strings));
}

} // namespace condtree
