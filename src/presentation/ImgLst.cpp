#include "ImgLst.h"

#include <condtree/presentation/CDib.h>
#include <condtree/presentation/RowStyle.h>

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cstddef>
#include <set>
#include <span>
#include <utility>

namespace condtree {

namespace {

/// More resolutions than the screens of one desktop have.
constexpr std::size_t kMostEditions = 8;

bool isPlace(const QSize& pixels)
{
    return !pixels.isEmpty() && std::max(pixels.width(), pixels.height()) <= ImgLst::kLongestSide;
}

/// In whole pixels; 0 for what is no length, and just too long for what is much too long.
int sideOf(double length)
{
    return length > 0 ? qRound(std::min(length, ImgLst::kLongestSide + 1.0)) : 0;
}

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

/// The pictures of a strip, side by side from the left.
std::vector<QImage> cut(const QImage& strip, const QSize& cell, COLORREF mask)
{
    std::vector<QImage> pictures;
    if (strip.isNull() || cell.isEmpty())
        return pictures;
    QImage masked = strip.convertToFormat(QImage::Format_ARGB32);
    applyMask(masked, mask);
    for (int x = 0; x + cell.width() <= masked.width(); x += cell.width())
        pictures.push_back(masked.copy(QRect({x, 0}, cell)));
    return pictures;
}

/// The halftone palette, with a transparent entry in the place of a grey one.
QList<QRgb> halftoneTable()
{
    const CPalette palette = halftonePalette();
    QList<QRgb> table(palette.entries.begin(), palette.entries.end());
    table.back() = qRgba(0, 0, 0, 0);
    return table;
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
        return source.convertToFormat(QImage::Format_Indexed8, halftoneTable());
    return source.convertToFormat(QImage::Format_Indexed8, {colours.begin(), colours.end()});
}

} // namespace

ImgLst::ImgLst(const QSize& imageSize, Depth depth)
    : m_size(imageSize)
    , m_depth(depth)
{
}

ImgLst::~ImgLst() = default;

void ImgLst::setBackground(COLORREF colour)
{
    m_background = colour;
    m_editions.clear();
}

QImage ImgLst::image(int index) const
{
    return index >= 0 && index < count() ? m_images[static_cast<std::size_t>(index)] : QImage();
}

QImage ImgLst::image(int index, const QSize& pixels) const
{
    const QImage original = image(index);
    if (original.isNull() || !isPlace(pixels))
        return {};
    if (original.size() == pixels && !m_background)
        return original;
    Edition& edition = editionOf(pixels);
    edition.resize(m_images.size());
    QImage& found = edition[static_cast<std::size_t>(index)];
    if (found.isNull())
        fillEdition(edition, index, pixels);
    return found;
}

QSize ImgLst::place(int index, double scaleX, double scaleY) const
{
    const QImage picture = image(index);
    if (picture.isNull())
        return {};
    const double tooHigh = static_cast<double>(picture.height()) / std::max(m_size.height(), 1);
    const double tooWide = static_cast<double>(picture.width()) / std::max(m_size.width(), 1);
    const double ratio = std::max({1.0, tooHigh, tooWide});
    return {sideOf(picture.width() / ratio * scaleX), sideOf(picture.height() / ratio * scaleY)};
}

QSize ImgLst::pixelSize(int height) const
{
    if (height <= m_size.height() || m_size.height() <= 0)
        return m_size;
    return {static_cast<int>(qint64{m_size.width()} * height / m_size.height()), height};
}

void ImgLst::append(const QImage& image)
{
    m_images.push_back(kept(image));
}

void ImgLst::appendStrip(const QImage& strip, COLORREF mask, Redraw redraw)
{
    const int first = count();
    for (const QImage& picture : cut(strip, pixelSize(strip.height()), mask))
        append(picture);
    m_strips.push_back({first, count() - first, mask, std::move(redraw)});
}

void ImgLst::draw(QPainter& painter, int index, const QPoint& at) const
{
    const QImage original = image(index);
    if (original.isNull())
        return;
    const QTransform device = painter.deviceTransform();
    const QSize pixels = place(index, device.m11(), device.m22());
    if (device.type() > QTransform::TxScale || !isPlace(pixels)) {
        const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRect(at, place(index, 1, 1)), shown(original));
        painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
        return;
    }
    // Pixel by pixel, whatever lies between the painter's co-ordinates and the device's.
    const QPointF corner = device.map(QPointF(at));
    const QTransform world = painter.worldTransform();
    const QTransform below = world.inverted() * device;
    painter.setWorldTransform(QTransform::fromTranslate(qRound(corner.x()), qRound(corner.y()))
                              * below.inverted());
    painter.drawImage(QPoint(0, 0), image(index, pixels));
    painter.setWorldTransform(world);
}

/// The oldest one goes where one more would be too many.
ImgLst::Edition& ImgLst::editionOf(const QSize& pixels) const
{
    const auto known =
        std::find_if(m_editions.begin(), m_editions.end(),
                     [&pixels](const auto& edition) { return edition.first == pixels; });
    if (known != m_editions.end())
        return known->second;
    if (m_editions.size() >= kMostEditions)
        m_editions.pop_front();
    return m_editions.emplace_back(pixels, Edition{}).second;
}

QImage ImgLst::kept(const QImage& image) const
{
    return m_depth == Depth::Indexed8 ? toIndexed(image)
                                      : image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// On the background, if there is one.
QImage ImgLst::shown(const QImage& image) const
{
    if (!m_background)
        return kept(image);
    QImage onBackground(image.size(), QImage::Format_ARGB32_Premultiplied);
    onBackground.fill(toQColor(*m_background));
    QPainter(&onBackground).drawImage(0, 0, image);
    return kept(onBackground);
}

void ImgLst::fillEdition(Edition& edition, int index, const QSize& pixels) const
{
    const QImage original = image(index);
    const auto strip = std::find_if(m_strips.begin(), m_strips.end(), [index](const Strip& s) {
        return index >= s.first && index < s.first + s.count;
    });
    if (original.size() != pixels && strip != m_strips.end() && strip->redraw)
        redrawStrip(edition, *strip, pixels);
    QImage& picture = edition[static_cast<std::size_t>(index)];
    if (picture.isNull())
        picture = shown(original.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                            .scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// All pictures of a strip, if it can be redrawn with as many.
void ImgLst::redrawStrip(Edition& edition, const Strip& strip, const QSize& pixels) const
{
    const std::vector<QImage> pictures = cut(strip.redraw(pixels), pixels, strip.mask);
    if (static_cast<int>(pictures.size()) != strip.count)
        return;
    std::transform(pictures.begin(), pictures.end(), edition.begin() + strip.first,
                   [this](const QImage& picture) { return shown(picture); });
}

} // namespace condtree
