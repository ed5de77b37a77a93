#pragma once

#include <condtree/presentation/RowPicture.h>

#include <QString>

#include <string>
#include <variant>

namespace condtree::test {

/// A picture as text, a line a primitive, so that tests show whole rows.
[[nodiscard]] inline std::string toText(const RowPicture& picture)
{
    struct Writer {
        static QString at(const POINT& p) { return QStringLiteral("(%1,%2)").arg(p.x).arg(p.y); }
        static QString in(const RECT& r)
        {
            return at({r.left, r.top}) + QLatin1Char('-') + at({r.right, r.bottom});
        }
        static QString hex(unsigned number) { return QString::number(number, 16).toUpper(); }

        QString operator()(const FillPrimitive& p) const
        {
            return QStringLiteral("fill %1 %2").arg(in(p.rect), hex(p.colour));
        }
        QString operator()(const TintPrimitive& p) const
        {
            return QStringLiteral("tint %1 %2 %3").arg(in(p.rect), hex(p.colour)).arg(p.alpha);
        }
        QString operator()(const FramePrimitive& p) const
        {
            return QStringLiteral("frame %1 %2").arg(in(p.rect), hex(p.colour));
        }
        QString operator()(const PolylinePrimitive& p) const
        {
            QString text = QStringLiteral("polyline ");
            for (const POINT& point : p.points)
                text += at(point);
            return text + QLatin1Char(' ') + hex(p.colour);
        }
        QString operator()(const LinePrimitive& p) const
        {
            return QStringLiteral("line %1%2 %3").arg(at(p.from), at(p.to), hex(p.colour));
        }
        QString operator()(const ImagePrimitive& p) const
        {
            return QStringLiteral("image %1 %2").arg(p.index).arg(at(p.at));
        }
        QString operator()(const TextPrimitive& p) const
        {
            return QStringLiteral("text %1 %2 '%3'").arg(in(p.rect), hex(p.format), p.text);
        }
    };
    std::string text;
    for (const RowPrimitive& primitive : picture)
        text += '\n' + std::visit(Writer{}, primitive).toStdString();
    return text;
}

} // namespace condtree::test
