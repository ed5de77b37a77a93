#include "ImgLst.h"

#include <condtree/presentation/RowStyle.h>

#include <QPainter>

#include <algorithm>
#include <cstddef>
#include <set>
#include <span>
#include <utility>

namespace condtree {

namespace {

/// Makes every pixel of the mask colour transparent.
void applyMask(QImage& image, COLORREF mask)
{
    const QRgb masked = toQColor(mask).rgb();
    for (int y = 0; y < image.height(); ++y) {
        const std::span line(reinterpret_cast<QRgb*>(image.scanLine(y)),
                             static_cast<std::size_t>(image.width()));
        std::replace_if(
            line.begin(), line.end(),
            [masked](QRgb pixel) { return (pixel | 0xFF000000U) == masked; }, QRgb{0});
    }
}

/// A copy with 8 bits a pixel, in the picture's own colours as far as a colour table holds them.
QImage toIndexed(const QImage& image)
{
    constexpr std::size_t largestTable = 256;
    const QImage source = image.convertToFormat(QImage::Format_ARGB32);
    std::set<QRgb> colours;
    for (int y = 0; y < source.height() && colours.size() <= largestTable; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        colours.insert(line, line + source.width());
    }
    if (colours.size() > largestTable)
        return source.convertToFormat(QImage::Format_Indexed8);
    return source.convertToFormat(QImage::Format_Indexed8, {colours.begin(), colours.end()});
}

} // namespace

QImage ImgLst::image(int index) const
{
    return index >= 0 && index < count() ? m_images[static_cast<std::size_t>(index)] : QImage();
}

QSize ImgLst::pixelSize(int height) const
{
    if (height <= m_size.height() || m_size.height() <= 0)
        return m_size;
    return {static_cast<int>(qint64{m_size.width()} * height / m_size.height()), height};
}

void ImgLst::append(const QImage& image)
{
    QImage kept = m_depth == Depth::Indexed8
                      ? toIndexed(image)
                      : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    // A picture of more pixels than the list's size is drawn at that size, as sharp as the screen
    // allows.
    const double tooHigh = static_cast<double>(kept.height()) / std::max(m_size.height(), 1);
    const double tooWide = static_cast<double>(kept.width()) / std::max(m_size.width(), 1);
    kept.setDevicePixelRatio(std::max({1.0, tooHigh, tooWide}));
    m_images.push_back(std::move(kept));
}

void ImgLst::appendStrip(const QImage& strip, COLORREF mask)
{
    const QSize cell = pixelSize(strip.height());
    if (strip.isNull() || cell.isEmpty())
        return;
    QImage masked = strip.convertToFormat(QImage::Format_ARGB32);
    applyMask(masked, mask);
    for (int x = 0; x + cell.width() <= masked.width(); x += cell.width())
        append(masked.copy(QRect({x, 0}, cell)));
}

void ImgLst::draw(QPainter& painter, int index, const QPoint& at) const
{
    if (index < 0 || index >= count())
        return;
    const QImage& picture = m_images[static_cast<std::size_t>(index)];
    const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(at, picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

} // namespace condtree
