#include "RowPainter.h"

#include <condtree/presentation/FittedTexts.h>
#include <condtree/presentation/ImgLst.h>
#include <condtree/presentation/RowStyle.h>

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
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
    Executor(QPainter& painter, const ImgLst& images, FittedTexts& texts)
        : m_painter(painter)
        , m_images(images)
        , m_texts(texts)
        , m_metrics(painter.fontMetrics())
    {
    }

    void operator()(const FillPrimitive& fill) const { fillArea(fill.rect, fill.colour); }

    void operator()(const TintPrimitive& tint) const
    {
        QColor colour = toQColor(tint.colour);
        colour.setAlpha(tint.alpha);
        if (const QRect area = toQRect(tint.rect); !area.isEmpty())
            m_painter.fillRect(area, colour);
    }

    void operator()(const FramePrimitive& frame) const
    {
        const RECT& r = frame.rect;
        if (toQRect(r).isEmpty())
            return;
        fillArea({r.left, r.top, r.right, r.top + 1}, frame.colour);
        fillArea({r.left, r.bottom - 1, r.right, r.bottom}, frame.colour);
        fillArea({r.left, r.top, r.left + 1, r.bottom}, frame.colour);
        fillArea({r.right - 1, r.top, r.right, r.bottom}, frame.colour);
    }

    void operator()(const PolylinePrimitive& line) const
    {
        for (std::size_t i = 1; i < line.points.size(); ++i)
            drawLine(line.points[i - 1], line.points[i], line.colour);
    }

    void operator()(const LinePrimitive& line) const { drawLine(line.from, line.to, line.colour); }

    void operator()(const ImagePrimitive& image) const
    {
        m_images.draw(m_painter, image.index, {image.at.x, image.at.y});
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
    /// Much faster than lines of a pen, and crisp whatever the painter's hints.
    void fillArea(const RECT& rect, COLORREF colour) const
    {
        // The painter would turn a rectangle with negative sides round.
        if (const QRect area = toQRect(rect); !area.isEmpty())
            m_painter.fillRect(area, toQColor(colour));
    }

    /// All pixels from the one point up to the other, which is left out.
    void drawLine(const POINT& from, const POINT& to, COLORREF colour) const
    {
        const auto span = [](LONG start, LONG end) {
            return end >= start ? std::pair{start, end} : std::pair{end + 1, start + 1};
        };
        const auto [left, right] = from.x == to.x ? std::pair{to.x, to.x + 1} : span(from.x, to.x);
        const auto [top, bottom] = from.x == to.x ? span(from.y, to.y) : std::pair{to.y, to.y + 1};
        fillArea({left, top, right, bottom}, colour);
    }

    QPainter& m_painter;
    const ImgLst& m_images;
    FittedTexts& m_texts;
    QFontMetrics m_metrics;
};

} // namespace

void paintRow(QPainter& painter, const RowPicture& picture, const ImgLst& operatorImages,
              FittedTexts& texts)
{
    const Executor executor(painter, operatorImages, texts);
    for (const RowPrimitive& primitive : picture)
        std::visit(executor, primitive);
}

} // namespace condtree
