#include "ComboFace.h"

#include <QPainter>
#include <QPainterPath>

namespace condtree {

namespace {

constexpr int kFrameAlpha = 110;
constexpr int kGap = 4;
constexpr int kGlass = 11;
constexpr double kStroke = 1.4;

QColor frameColour(const ComboFace& face)
{
    QColor colour = face.palette.color(face.isOpen ? QPalette::Highlight : QPalette::Text);
    if (!face.isOpen)
        colour.setAlpha(kFrameAlpha);
    return colour;
}

void paintFrame(QPainter& painter, const QRect& rect, const QColor& colour)
{
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), colour);
    painter.fillRect(QRect(rect.left(), rect.top() + 1, 1, rect.height() - 2), colour);
    painter.fillRect(QRect(rect.right(), rect.top() + 1, 1, rect.height() - 2), colour);
}

void paintArrow(QPainter& painter, const QRectF& rect)
{
    const QPointF middle = rect.center() + QPointF(0, 1);
    QPainterPath path(middle + QPointF(-4, -2));
    path.lineTo(middle + QPointF(0, 2));
    path.lineTo(middle + QPointF(4, -2));
    painter.drawPath(path);
}

void paintGlass(QPainter& painter, const QRectF& rect)
{
    const QRectF lens(rect.left(), rect.top(), rect.width() * 0.7, rect.height() * 0.7);
    painter.drawEllipse(lens);
    painter.drawLine(lens.center() + QPointF(lens.width(), lens.height()) * 0.36,
                     rect.bottomRight());
}

void paintSearched(QPainter& painter, const QRect& rect, const ComboFace& face)
{
    paintGlass(painter,
               QRectF(rect.left() + 1, rect.center().y() - kGlass / 2 + 0.5, kGlass, kGlass));
    const QRect room = rect.adjusted(kGlass + kGap + 1, 0, -2, 0);
    const QFontMetrics metrics = painter.fontMetrics();
    const QString text = metrics.elidedText(face.searched, Qt::ElideLeft, room.width());
    painter.setPen(face.palette.color(QPalette::Text));
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
    const int end = room.left() + metrics.horizontalAdvance(text);
    painter.fillRect(QRect(end, rect.center().y() - metrics.height() / 2, 1, metrics.height()),
                     face.palette.color(QPalette::Text));
}

void paintEntry(QPainter& painter, QRect rect, const ComboFace& face)
{
    if (!face.icon.isNull()) {
        face.icon.paint(&painter,
                        QRect(rect.topLeft(), QSize(face.iconSize.width(), rect.height())));
        rect.setLeft(rect.left() + face.iconSize.width() + kGap);
    }
    painter.setPen(face.palette.color(QPalette::Text));
    painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     painter.fontMetrics().elidedText(face.text, Qt::ElideRight, rect.width()));
}

} // namespace

void ComboFace::paint(QPainter& painter, const QRect& rect) const
{
    painter.fillRect(rect, palette.color(QPalette::Base));
    paintFrame(painter, rect, frameColour(*this));
    const QRect inside = rect.adjusted(margin, 0, -arrowWidth, 0);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(frameColour(*this), kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    paintArrow(painter,
               QRectF(rect.right() + 1 - arrowWidth, rect.top(), arrowWidth, rect.height()));
    if (searched.isEmpty())
        paintEntry(painter, inside, *this);
    else
        paintSearched(painter, inside, *this);
}

} // namespace condtree
