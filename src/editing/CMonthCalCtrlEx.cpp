#include "CMonthCalCtrlEx.h"

#include "DoubleClickTracker.h"
#include "TodayLink.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QSpinBox>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

// The years of automation dates.
constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;
// The first row of the grid names the days.
constexpr int kFirstRowOfDays = 1;
constexpr int kDaysOfWeek = 7;

QDate dateOf(const SYSTEMTIME& time)
{
    const QDate date(time.wYear, time.wMonth, time.wDay);
    return date.isValid() ? date : QDate::currentDate();
}

bool isReturn(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

/// Watches what is pressed on a calendar and on the widgets that it consists of. An object of its
/// own, because the calendar filters the events of the whole application at times.
class CMonthCalCtrlEx::Presses final : public QObject {
public:
    Presses(CMonthCalCtrlEx& calendar, const Services& services);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool onPress(const QWidget& watched, const QMouseEvent& event);
    [[nodiscard]] bool isDay(const QPoint& inGrid) const;

    CMonthCalCtrlEx& m_calendar;
    QTableView* m_grid;
    std::function<DWORD()> m_tickCount;
    DoubleClickTracker m_doubleClick;
    bool m_isSendingOn = false;
};

CMonthCalCtrlEx::Presses::Presses(CMonthCalCtrlEx& calendar, const Services& services)
    : QObject(&calendar)
    , m_calendar(calendar)
    , m_grid(calendar.findChild<QTableView*>())
    , m_tickCount(services.tickCount)
    , m_doubleClick(services.doubleClickTime(),
                    {services.systemMetric(SM_CXDOUBLECLK), services.systemMetric(SM_CYDOUBLECLK)})
{
    calendar.installEventFilter(this);
    for (QWidget* part : calendar.findChildren<QWidget*>()) {
        if (!part->isWindow())
            part->installEventFilter(this);
    }
}

bool CMonthCalCtrlEx::Presses::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return !m_isSendingOn
               && onPress(static_cast<QWidget&>(*watched), static_cast<QMouseEvent&>(*event));
    case QEvent::KeyPress:
        // In the field of the year, Return ends just the year.
        if (watched != m_grid && watched != m_calendar.m_todayLink)
            return false;
        if (!isReturn(static_cast<QKeyEvent&>(*event)))
            return false;
        Q_EMIT m_calendar.finished();
        return true;
    default:
        return false;
    }
}

// Which two presses are a double click is decided here alone. The grid takes what the toolkit calls
// one for no selection, so it hears of presses only.
bool CMonthCalCtrlEx::Presses::onPress(const QWidget& watched, const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    QWidget* const grid = m_grid->viewport();
    const QPoint inPart = event.position().toPoint();
    const QPoint point = watched.mapTo(&m_calendar, inPart);
    const bool isOnTarget =
        &watched == m_calendar.m_todayLink || (&watched == grid && isDay(inPart));
    m_calendar.m_isTold = false;
    const QPointer<Presses> self(this);
    const DWORD now = m_tickCount();
    if (self.isNull()) // the clock is the host's
        return true;
    // What a part does not take comes to those around it, too, and is the same press once more.
    if (m_doubleClick.press({point.x(), point.y()}, isOnTarget, now)) {
        // The first press may have turned the page: what is there now is not what was meant.
        Q_EMIT m_calendar.finished();
        return true;
    }
    if (&watched != grid || event.type() == QEvent::MouseButtonPress)
        return false;
    QMouseEvent press(QEvent::MouseButtonPress, event.position(), event.scenePosition(),
                      event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                      event.pointingDevice());
    m_isSendingOn = true;
    QCoreApplication::sendEvent(grid, &press);
    m_isSendingOn = false;
    return true;
}

bool CMonthCalCtrlEx::Presses::isDay(const QPoint& inGrid) const
{
    const QModelIndex index = m_grid->indexAt(inGrid);
    return index.row() >= kFirstRowOfDays && index.flags().testFlag(Qt::ItemIsEnabled);
}

CMonthCalCtrlEx::CMonthCalCtrlEx(const Services& services, QWidget* parent)
    : QCalendarWidget(parent)
    , m_today(dateOf(services.localTime()))
    , m_todayLink(nullptr)
{
    setObjectName(QString::number(Id));
    setProperty("controlId", Id);
    setDateRange(QDate(kFirstYear, 1, 1), QDate(kLastYear, 12, 31));
    setSelectedDate(m_today);
    dress();

    auto* link = new TodayLink(m_today, this);
    m_todayLink = link;
    layout()->addWidget(link);
    connect(link, &QAbstractButton::clicked, this, &CMonthCalCtrlEx::chooseToday);
    new Presses(*this, services);

    // A click on another day changes the selection and then is a click, too.
    connect(this, &QCalendarWidget::selectionChanged, this, [this] {
        if (m_isSilent)
            return;
        m_isTold = true;
        Q_EMIT dateChosen(selectedDate());
    });
    connect(this, &QCalendarWidget::clicked, this, [this](QDate date) {
        if (!m_isTold)
            Q_EMIT dateChosen(date);
    });
}

CMonthCalCtrlEx::~CMonthCalCtrlEx() = default;

void CMonthCalCtrlEx::dress()
{
    setDateEditEnabled(false);
    setVerticalHeaderFormat(NoVerticalHeader);
    // All days look alike, rather than some red as if something was wrong with them.
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, QTextCharFormat());
    const std::pair<QLatin1String, Qt::ArrowType> arrows[] = {
        {QLatin1String("qt_calendar_prevmonth"), Qt::LeftArrow},
        {QLatin1String("qt_calendar_nextmonth"), Qt::RightArrow},
    };
    for (const auto& [name, arrow] : arrows) {
        if (auto* button = findChild<QToolButton*>(name))
            button->setArrowType(arrow);
    }
    dressBar();
}

// The bar takes the colours of a selection, in which a calm calendar has just the selected day.
void CMonthCalCtrlEx::dressBar()
{
    auto* bar = findChild<QWidget*>(QLatin1String("qt_calendar_navigationbar"));
    if (bar == nullptr)
        return;
    QPalette colours = palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = colours.color(group, QPalette::WindowText);
        colours.setColor(group, QPalette::Highlight, colours.color(group, QPalette::Window));
        colours.setColor(group, QPalette::HighlightedText, text);
        colours.setColor(group, QPalette::ButtonText, text);
    }
    bar->setPalette(colours);
    if (auto* year = bar->findChild<QSpinBox*>())
        year->setPalette(palette());
}

void CMonthCalCtrlEx::changeEvent(QEvent* event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        dressBar();
}

void CMonthCalCtrlEx::selectSilently(QDate date)
{
    m_isSilent = true;
    setSelectedDate(date);
    showSelectedDate();
    m_isSilent = false;
}

void CMonthCalCtrlEx::chooseToday()
{
    selectSilently(m_today);
    Q_EMIT dateChosen(m_today);
}

// QCalendarWidget makes its columns too narrow for the names of some languages' days.
int CMonthCalCtrlEx::widthOfDays() const
{
    const QFontMetrics metrics = fontMetrics();
    int widest = 0;
    for (int day = Qt::Monday; day <= Qt::Sunday; ++day) {
        const QString name = locale().dayName(day, QLocale::ShortFormat);
        widest = std::max(widest, metrics.horizontalAdvance(name));
    }
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    return kDaysOfWeek * (widest + 2 * margin);
}

QSize CMonthCalCtrlEx::withLink(const QSize& calendar) const
{
    const QSize link = m_todayLink->sizeHint();
    return {std::max({calendar.width(), widthOfDays(), link.width()}),
            calendar.height() + link.height() + qMax(0, layout()->spacing())};
}

QSize CMonthCalCtrlEx::sizeHint() const
{
    return withLink(QCalendarWidget::sizeHint());
}

QSize CMonthCalCtrlEx::minimumSizeHint() const
{
    return withLink(QCalendarWidget::minimumSizeHint());
}

void CMonthCalCtrlEx::paintCell(QPainter* painter, const QRect& rect, QDate date) const
{
    QCalendarWidget::paintCell(painter, rect, date);
    if (date == m_today)
        drawTodayMark(*painter, rect, palette());
}

} // namespace condtree
