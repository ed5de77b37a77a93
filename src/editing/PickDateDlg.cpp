#include "PickDateDlg.h"

#include "CMonthCalCtrlEx.h"
#include "PickerPlacement.h"

#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/Automation.h>
#include <condtree/values/DateStyle.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include <optional>
#include <utility>

namespace condtree {

namespace {

constexpr SIZE kDialogUnits{143, 95};

std::optional<QDate> readDate(const CString& text, std::uint32_t style)
{
    double value = 0;
    SYSTEMTIME time{};
    if (!ParseDateByStyle(text, value, style) || !VariantTimeToSystemTime(value, time))
        return std::nullopt;
    return QDate(time.wYear, time.wMonth, time.wDay);
}

std::optional<CString> writeDate(const QDate& date, std::uint32_t style)
{
    SYSTEMTIME time{};
    time.wYear = static_cast<std::uint16_t>(date.year());
    time.wMonth = static_cast<std::uint16_t>(date.month());
    time.wDay = static_cast<std::uint16_t>(date.day());
    double value = 0;
    CString text;
    if (!SystemTimeToVariantTime(time, value) || !FormatDateByStyle(text, value, style))
        return std::nullopt;
    return text;
}

QSize designSize(const QFontMetrics& metrics)
{
    const SIZE size = fromDialogUnits(kDialogUnits, {metrics.averageCharWidth(), metrics.height()});
    return {size.cx, size.cy};
}

} // namespace

PickDateDlg::PickDateDlg(QWidget* tree, NodeSource node, const RECT& cellOnScreen, LONG dateStyle,
                         const Services& services, std::function<void()> repaintCell)
    : QFrame(tree, Qt::Popup | Qt::FramelessWindowHint)
    , m_node(std::move(node))
    , m_cell(cellOnScreen)
    , m_dateStyle(static_cast<std::uint32_t>(dateStyle))
    , m_repaintCell(std::move(repaintCell))
    , m_calendar(new CMonthCalCtrlEx(services, this))
    , m_window(tree == nullptr ? nullptr : tree->window())
{
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1); // the border
    layout->addWidget(m_calendar);
    m_calendar->setFocus(Qt::PopupFocusReason);
    connect(m_calendar, &CMonthCalCtrlEx::dateChosen, this, &PickDateDlg::store);
    connect(m_calendar, &CMonthCalCtrlEx::finished, this, &PickDateDlg::closeSoon);
    for (QWidget* around : {tree, m_window.data()}) {
        if (around != nullptr)
            around->installEventFilter(this);
    }
    closeWhenLeft();
}

// Whoever is told of a value may delete the tree, and the picker with it, in the middle of a
// calendar's handling of a click. So the calendar goes when that is over.
PickDateDlg::~PickDateDlg()
{
    if (!m_isTelling)
        return;
    m_calendar->disconnect(this);
    m_calendar->hide();
    m_calendar->setParent(nullptr);
    m_calendar->deleteLater();
}

void PickDateDlg::closeWhenLeft()
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            &PickDateDlg::followApplication);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        // The calendar has a menu of its own.
        if (window == nullptr || window->type() == Qt::Popup)
            return;
        if (m_window.isNull() || window != m_window->windowHandle())
            closeSoon();
    });
}

// Some window systems take the focus from a window before they give it to its popup, and that is
// not yet to leave the application.
void PickDateDlg::followApplication(Qt::ApplicationState state)
{
    m_isAway = state != Qt::ApplicationActive;
    const auto closeIfStillAway = [this] {
        if (m_isAway)
            close();
    };
    if (m_isAway)
        QMetaObject::invokeMethod(this, closeIfStillAway, Qt::QueuedConnection);
}

// Not at once: what is being handled is finished first.
void PickDateDlg::closeSoon()
{
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

void PickDateDlg::DoModal()
{
    if (isVisible() || m_node() == nullptr)
        return;
    selectValue();
    place();
    QEventLoop loop;
    connect(this, &PickDateDlg::closed, &loop, &QEventLoop::quit);
    connect(this, &QObject::destroyed, &loop, &QEventLoop::quit);
    const QPointer<PickDateDlg> self(this);
    show();
    if (!self.isNull() && isVisible())
        loop.exec(QEventLoop::DialogExec);
    if (!self.isNull())
        hide(); // the application may end
}

void PickDateDlg::selectValue()
{
    const VarTreeCtrlNode* const node = m_node();
    if (node == nullptr)
        return;
    if (const std::optional<QDate> date = readDate(node->mValue, m_dateStyle))
        m_calendar->selectSilently(*date);
}

void PickDateDlg::place()
{
    ensurePolished();
    const QSize size = designSize(fontMetrics()).expandedTo(sizeHint());
    const QScreen* screen = QGuiApplication::screenAt({m_cell.left, m_cell.bottom});
    const QRect room = (screen == nullptr ? this->screen() : screen)->availableGeometry();
    const POINT corner = placePicker(
        m_cell, {size.width(), size.height()},
        {room.left(), room.top(), room.left() + room.width(), room.top() + room.height()});
    setFixedSize(size);
    move(corner.x, corner.y);
}

void PickDateDlg::store(QDate date)
{
    VarTreeCtrlNode* const node = m_node();
    if (node == nullptr) {
        closeSoon();
        return;
    }
    const std::optional<CString> text = writeDate(date, m_dateStyle);
    if (!text)
        return;
    node->mValue = *text;
    const std::function<void()> repaintCell = m_repaintCell; // it may outlive the picker
    const QPointer<PickDateDlg> self(this);
    m_isTelling = true;
    repaintCell();
    if (!self.isNull())
        m_isTelling = false;
}

bool PickDateDlg::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide || event->type() == QEvent::Close)
        closeSoon();
    return QFrame::eventFilter(watched, event);
}

void PickDateDlg::mousePressEvent(QMouseEvent* event)
{
    // Closed later, and so the press does nothing else: nobody sends it on to what is below.
    if (!m_calendar->geometry().contains(event->position().toPoint()))
        closeSoon();
}

void PickDateDlg::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    Q_EMIT closed();
}

void PickDateDlg::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace condtree
