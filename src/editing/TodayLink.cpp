#include "TodayLink.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

namespace condtree {

namespace {

// Around the text and the mark in front of it.
constexpr int kMargin = 5;

int markHeight(const QFontMetrics& metrics)
{
    return metrics.ascent();
}

int markWidth(const QFontMetrics& metrics)
{
    return metrics.ascent() * 3 / 2;
}

} // namespace

void drawTodayMark(QPainter& painter, const QRect& rect, const QPalette& palette)
{
    painter.setPen(palette.color(QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1)); // the pen is drawn right of and below the edge
}

QString shortDate(const QLocale& locale, QDate date)
{
    QString format = locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return locale.toString(date, format);
}

TodayLink::TodayLink(QDate today, QWidget* parent)
    : QAbstractButton(parent)
    , m_today(today)
{
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    showDate();
}

void TodayLink::showDate()
{
    setText(shortDate(locale(), m_today));
}

void TodayLink::changeEvent(QEvent* event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::LocaleChange)
        showDate();
}

QSize TodayLink::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {markWidth(metrics) + metrics.horizontalAdvance(text()) + 3 * kMargin,
            metrics.height() + 2 * kMargin};
}

void TodayLink::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QFontMetrics metrics = fontMetrics();
    const QSize content(sizeHint().width() - 2 * kMargin, height());
    const QRect line = QStyle::alignedRect(layoutDirection(), Qt::AlignCenter, content, rect());
    const QRect mark = QStyle::alignedRect(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter,
                                           {markWidth(metrics), markHeight(metrics)}, line);
    drawTodayMark(painter, mark, palette());

    QFont font = painter.font();
    font.setUnderline(underMouse());
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(line, static_cast<int>(Qt::AlignTrailing | Qt::AlignVCenter), text());
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = line.adjusted(-kMargin, kMargin / 2, kMargin, -kMargin / 2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

} // namespace condtree
