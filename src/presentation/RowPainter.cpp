#include "RowPainter.h"

#include <condtree/presentation/FittedTexts.h>
#include <condtree/presentation/ImgLst.h>
#include <condtree/presentation/PixelGrid.h>
#include <condtree/presentation/RowStyle.h>

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cstddef>

namespace condtree {

namespace {

/// The font code takes time in proportion to the text, whatever the width: more than any cell can
/// show is kept from it.
constexpr qsizetype kLongestText = 1000;
constexpr QChar kEllipsis(0x2026);

QRect toQRect(const RECT& rect)
{
    return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

bool breaksLine(QChar c)
{
    return c.category() == QChar::Other_Control || c == QChar::LineSeparator
           || c == QChar::ParagraphSeparator;
}

/// What the font code is given for a text: one line, and not too long.
QString shownText(const CString& text)
{
    QString shown = text;
    if (shown.size() > kLongestText) {
        const qsizetype kept = kLongestText - 1;
        shown = shown.left(shown[kept - 1].isHighSurrogate() ? kept - 1 : kept) + kEllipsis;
    }
    if (std::any_of(shown.cbegin(), shown.cend(), breaksLine))
        std::replace_if(shown.begin(), shown.end(), breaksLine, QChar(QChar::Space));
    return shown;
}

class Executor {
public:
    Executor(QPainter& painter, const ImgLst* images, FittedTexts& texts)
        : m_painter(painter)
        , m_images(images)
        , m_texts(texts)
        , m_metrics(painter.fontMetrics())
        , m_grid(painter.deviceTransform())
    {
    }

    void operator()(const FillPrimitive& fill) const
    {
        fillArea(m_grid.area(fill.rect), toQColor(fill.colour));
    }

    void operator()(const TintPrimitive& tint) const
    {
        QColor colour = toQColor(tint.colour);
        colour.setAlpha(tint.alpha);
        fillArea(m_grid.area(tint.rect), colour);
    }

    void operator()(const FramePrimitive& frame) const
    {
        if (!toQRect(frame.rect).isEmpty())
            fillAreas(m_grid.frame(frame.rect), frame.colour);
    }

    void operator()(const PolylinePrimitive& line) const
    {
        fillAreas(m_grid.polyline(line.points), line.colour);
    }

    void operator()(const LinePrimitive& line) const
    {
        fillArea(m_grid.line(line.from, line.to), toQColor(line.colour));
    }

    void operator()(const ImagePrimitive& image) const
    {
        if (m_images != nullptr)
            m_images->draw(m_painter, image.index, {image.at.x, image.at.y});
    }

    void operator()(const TextPrimitive& text) const
    {
        const QRect rect = toQRect(text.rect);
        if (rect.isEmpty() || text.text.isEmpty())
            return;
        const bool isElided = (text.format & kTextEndEllipsis) != 0;
        const FittedText shown =
            m_texts.fit(m_painter, shownText(text.text), rect.width(), isElided);
        const bool isCentred = (text.format & kTextVerticallyCentred) != 0;
        const int above = isCentred ? (rect.height() - m_metrics.height()) / 2 : 0;
        const QPoint at(rect.left(), rect.top() + above + m_metrics.ascent());
        // A clip costs more than the text, and a text that fits needs none.
        if (above >= 0 && shown.width <= rect.width()) {
            m_painter.drawText(at, shown.text);
            return;
        }
        m_painter.save();
        m_painter.setClipRect(rect, Qt::IntersectClip);
        m_painter.drawText(at, shown.text);
        m_painter.restore();
    }

private:
    /// Much faster than lines of a pen.
    void fillArea(const QRectF& area, const QColor& colour) const
    {
        // The painter would turn a rectangle with negative sides round.
        if (!area.isEmpty())
            m_painter.fillRect(area, colour);
    }

    template <std::size_t N>
    void fillAreas(const std::array<QRectF, N>& areas, COLORREF colour) const
    {
        for (const QRectF& area : areas)
            fillArea(area, toQColor(colour));
    }

    QPainter& m_painter;
    const ImgLst* m_images;
    FittedTexts& m_texts;
    QFontMetrics m_metrics;
    PixelGrid m_grid;
};

} // namespace

void paintRow(QPainter& painter, const RowPicture& picture, const ImgLst* operatorImages,
              FittedTexts& texts)
{
    // Soft edges would blur what does not lie on whole pixels, and leave gaps between rows.
    const bool wasSoft = painter.testRenderHint(QPainter::Antialiasing);
    if (wasSoft)
        painter.setRenderHint(QPainter::Antialiasing, false);
    const Executor executor(painter, operatorImages, texts);
    for (const RowPrimitive& primitive : picture)
        std::visit(executor, primitive);
    if (wasSoft)
        painter.setRenderHint(QPainter::Antialiasing);
}

} // namespace condtree
