#include "FittedTexts.h"

#include <QFontMetrics>
#include <QPaintDevice>
#include <QPainter>

namespace condtree {

FittedText FittedTexts::fit(const QPainter& painter, const QString& text, int width, bool isElided)
{
    const int dpi = painter.device()->logicalDpiY();
    if (m_font != painter.font() || m_dpi != dpi)
        m_texts.clear();
    m_font = painter.font();
    m_dpi = dpi;

    const std::pair key(text, std::pair(width, isElided));
    const auto known = m_texts.constFind(key);
    if (known != m_texts.constEnd())
        return *known;
    if (m_texts.size() >= kMost)
        m_texts.clear();
    const QFontMetrics metrics = painter.fontMetrics();
    FittedText fitted{text, metrics.horizontalAdvance(text)};
    if (isElided && fitted.width > width) {
        fitted.text = metrics.elidedText(text, Qt::ElideRight, width);
        fitted.width = metrics.horizontalAdvance(fitted.text);
    }
    return *m_texts.insert(key, fitted);
}

} // namespace condtree
