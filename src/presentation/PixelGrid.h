#pragma once

#include <condtree/platform/WinTypes.h>

#include <QRectF>
#include <QtGlobal>

#include <array>

class QTransform;

namespace condtree {

/// Where lines that are one unit wide lie on the pixels of a device: on whole ones, all equally
/// thick (as many pixels as fit into a unit, one at least) and without a gap where they meet,
/// whatever the scale. All areas are in the painter's co-ordinates.
class PixelGrid {
public:
    /// Of a painter's way to its device; one that turns, shears or mirrors has no such pixels, and
    /// units are taken for them.
    explicit PixelGrid(const QTransform& device);

    /// A rectangle, for filling: what touches in units touches in pixels.
    [[nodiscard]] QRectF area(const RECT& rect) const;
    /// The sides of a frame inside a rectangle.
    [[nodiscard]] std::array<QRectF, 4> frame(const RECT& rect) const;
    /// The lines through points, horizontal or vertical each; the last point is left out. Those at
    /// the right and at the bottom lie at the far edge of their unit, as a frame's do.
    [[nodiscard]] std::array<QRectF, 3> polyline(const std::array<POINT, 4>& points) const;
    /// A horizontal or vertical line without its end. It begins right behind a line that lies in
    /// the unit before.
    [[nodiscard]] QRectF line(const POINT& from, const POINT& to) const;

private:
    /// From the first pixel up to the last, which is left out.
    struct Span {
        qint64 begin, end;
    };
    struct Axis {
        double scale, offset;

        [[nodiscard]] qint64 pixel(LONG at) const { return qRound64(at * scale + offset); }
        [[nodiscard]] qint64 thickness() const;
        [[nodiscard]] Span lineAt(LONG at) const;
        [[nodiscard]] Span lineUpTo(LONG end) const;
        [[nodiscard]] Span along(LONG from, LONG to) const;
        [[nodiscard]] double unit(qint64 pixel) const
        {
            return (static_cast<double>(pixel) - offset) / scale;
        }
    };

    [[nodiscard]] QRectF area(const Span& x, const Span& y) const;

    Axis m_x;
    Axis m_y;
};

} // namespace condtree
