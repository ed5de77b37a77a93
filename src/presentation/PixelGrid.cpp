#include "PixelGrid.h"

#include <QTransform>

#include <algorithm>
#include <cstddef>

namespace condtree {

PixelGrid::PixelGrid(const QTransform& device)
    : m_x{1, 0}
    , m_y{1, 0}
{
    if (device.type() > QTransform::TxScale || device.m11() <= 0 || device.m22() <= 0)
        return;
    m_x = {device.m11(), device.dx()};
    m_y = {device.m22(), device.dy()};
}

QRectF PixelGrid::area(const RECT& rect) const
{
    return area({m_x.pixel(rect.left), m_x.pixel(rect.right)},
                {m_y.pixel(rect.top), m_y.pixel(rect.bottom)});
}

std::array<QRectF, 4> PixelGrid::frame(const RECT& rect) const
{
    const Span width{m_x.pixel(rect.left), m_x.pixel(rect.right)};
    const Span height{m_y.pixel(rect.top), m_y.pixel(rect.bottom)};
    return {area(width, m_y.lineAt(rect.top)), area(width, m_y.lineUpTo(rect.bottom)),
            area(m_x.lineAt(rect.left), height), area(m_x.lineUpTo(rect.right), height)};
}

std::array<QRectF, 3> PixelGrid::polyline(const std::array<POINT, 4>& points) const
{
    const auto [left, right] = std::ranges::minmax(points, {}, &POINT::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &POINT::y);
    const auto place = [](const Axis& axis, LONG at, LONG nearest, LONG farthest) {
        return at == farthest && at != nearest ? axis.lineUpTo(at + 1) : axis.lineAt(at);
    };
    std::array<QRectF, 3> lines;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const POINT& from = points[i];
        const POINT& to = points[i + 1];
        Span x = place(m_x, from.x, left.x, right.x);
        Span y = place(m_y, from.y, top.y, bottom.y);
        const bool isVertical = from.x == to.x;
        const Span end =
            isVertical ? place(m_y, to.y, top.y, bottom.y) : place(m_x, to.x, left.x, right.x);
        Span& length = isVertical ? y : x;
        const bool isOpen = i + 1 == lines.size();
        if (end.begin < length.begin)
            length.begin = isOpen ? end.end : end.begin;
        else
            length.end = isOpen ? (isVertical ? m_y.pixel(to.y) : m_x.pixel(to.x)) : end.end;
        lines[i] = area(x, y);
    }
    return lines;
}

QRectF PixelGrid::line(const POINT& from, const POINT& to) const
{
    return from.x == to.x ? area(m_x.lineAt(from.x), m_y.along(from.y, to.y))
                          : area(m_x.along(from.x, to.x), m_y.lineAt(from.y));
}

qint64 PixelGrid::Axis::thickness() const
{
    return std::max<qint64>(1, static_cast<qint64>(scale));
}

/// A line at the near edge of its unit.
PixelGrid::Span PixelGrid::Axis::lineAt(LONG at) const
{
    const qint64 begin = pixel(at);
    return {begin, begin + thickness()};
}

/// A line at the far edge of the unit before end.
PixelGrid::Span PixelGrid::Axis::lineUpTo(LONG end) const
{
    const qint64 last = pixel(end);
    return {last - thickness(), last};
}

/// The pixels of the units from the one up to the other, which is left out.
PixelGrid::Span PixelGrid::Axis::along(LONG from, LONG to) const
{
    return to >= from ? Span{lineAt(from - 1).end, pixel(to)}
                      : Span{lineAt(to).end, pixel(from + 1)};
}

QRectF PixelGrid::area(const Span& x, const Span& y) const
{
    const double left = m_x.unit(x.begin);
    const double top = m_y.unit(y.begin);
    return {left, top, m_x.unit(x.end) - left, m_y.unit(y.end) - top};
}

} // namespace condtree
