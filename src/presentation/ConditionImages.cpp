#include "ConditionImages.h"

#include <condtree/presentation/RowStyle.h>

#include <QPainter>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace condtree {

namespace {

/// In the order of the indices that the rows use.
constexpr std::array kRowIcons{u"PNG_NEW_FILE", u"PNG_AND",        u"PNG_OR",   u"PNG_ALL_CARD",
                               u"PNG_DELETE",   u"PNG_CATEGORIES", u"PNG_USER", u"PNG_GROUPS"};
/// In the order of the indices that the operators use, counted through.
constexpr std::array kOperatorStrips{u"PNG_BLUE_OPS", u"PNG_RED_OPS", u"PNG_GREEN_OPS",
                                     u"PNG_YELLOW_OPS"};
/// What the library is told that every picture is for.
constexpr int kUse = 3;
/// The library's strips are silver where they are transparent.
constexpr COLORREF kMask = RGB(0xC0, 0xC0, 0xC0);
constexpr int kFullColourBits = 24;
/// A row icon with a longer side is taken for damaged; no screen needs one.
constexpr int kLongestSide = 1024;

/// A null image where the description is not one of a picture.
QImage toImage(const IconPixels& pixels)
{
    constexpr std::size_t channels = 4;
    if (pixels.width <= 0 || pixels.height <= 0)
        return {};
    const auto width = static_cast<std::size_t>(pixels.width);
    const auto height = static_cast<std::size_t>(pixels.height);
    if (pixels.bytes.size() / channels / width < height)
        return {};
    QImage image(pixels.width, pixels.height, QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    const std::uint8_t* pixel = pixels.bytes.data();
    for (int y = 0; y < pixels.height; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < pixels.width; ++x, pixel += channels)
            line[x] = qRgba(pixel[2], pixel[1], pixel[0], pixel[3]);
    }
    return image;
}

/// The row icons, null where the library has none; empty without the library.
std::vector<QImage> loadRowIcons(IconLibrary& library)
{
    std::vector<QImage> icons;
    bool isThere = false;
    for (const char16_t* name : kRowIcons) {
        IconPixels pixels;
        const IconResult result = library.loadIcon(CString::fromUtf16(name), kUse, pixels);
        isThere = isThere || result != IconResult::NoLibrary;
        const bool isUsable =
            result == IconResult::Loaded && std::max(pixels.width, pixels.height) <= kLongestSide;
        icons.push_back(isUsable ? toImage(pixels) : QImage());
    }
    return isThere ? icons : std::vector<QImage>{};
}

/// The icons side by side on white, as high as the highest, but not less than the list's.
QImage stripOf(const std::vector<QImage>& icons, const ImgLst& list)
{
    int height = 0;
    for (const QImage& icon : icons)
        height = std::max(height, icon.height());
    const QSize cell = list.pixelSize(height);

    ImgLst scaled(cell);
    for (const QImage& icon : icons) {
        QImage blank(cell, QImage::Format_ARGB32_Premultiplied);
        blank.fill(Qt::transparent);
        scaled.append(icon.isNull()
                          ? blank
                          : icon.scaled(cell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }

    QImage strip(cell.width() * scaled.count(), cell.height(), QImage::Format_ARGB32_Premultiplied);
    strip.fill(toQColor(kRowBackground));
    QPainter painter(&strip);
    for (int i = 0; i < scaled.count(); ++i)
        scaled.draw(painter, i, {i * cell.width(), 0});
    return strip;
}

} // namespace

void ConditionImages::append(IconLibrary& library, const QSize& iconSize, int bitsPerPixel)
{
    if (!m_rows) {
        m_rows.emplace(iconSize, bitsPerPixel < kFullColourBits ? ImgLst::Depth::Indexed8
                                                                : ImgLst::Depth::Colour32);
        m_operators.emplace(iconSize);
    }

    const std::vector<QImage> icons = loadRowIcons(library);
    if (!icons.empty() && !m_rows->imageSize().isEmpty())
        m_rows->appendStrip(stripOf(icons, *m_rows), kMask);
    for (const char16_t* name : kOperatorStrips) {
        IconPixels pixels;
        if (library.loadImage(CString::fromUtf16(name), kUse, pixels) == IconResult::Loaded)
            m_operators->appendStrip(toImage(pixels), kMask);
    }
}

} // namespace condtree
