#include "DragImage.h"

#include <QPainter>

namespace condtree {

namespace {

constexpr qreal kOpacity = 0.6;

} // namespace

DragImage::DragImage(QWidget* over, const QPixmap& picture)
    : QWidget(over)
    , m_picture(picture)
{
    setObjectName(QStringLiteral("dragImage"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    resize(picture.deviceIndependentSize().toSize());
}

void DragImage::moveTo(const QPoint& point)
{
    move(point - QPoint(width() / 2, height() / 2));
}

void DragImage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setOpacity(kOpacity);
    painter.drawPixmap(0, 0, m_picture);
}

} // namespace condtree
