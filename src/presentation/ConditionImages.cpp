#include "ConditionImages.h"

#include <condtree/platform/WfIcons.h>
#include <condtree/presentation/CDib.h>
#include <condtree/presentation/ListIcon.h>
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
/// The library's strips are silver where they are transparent.
constexpr COLORREF kMask = RGB(0xC0, 0xC0, 0xC0);
constexpr int kFullColourBits = 24;

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
        const IconResult result = library.loadIcon(CString::fromUtf16(name), kWfSmallIcon, pixels);
        isThere = isThere || result != IconResult::NoLibrary;
        // One with a longer side is taken for damaged; no screen needs it.
        const bool isUsable = result == IconResult::Loaded
                              && std::max(pixels.width, pixels.height) <= kWfLargestHeight;
        icons.push_back(isUsable ? toImage(pixels) : QImage());
    }
    return isThere ? icons : std::vector<QImage>{};
}

/// The icons side by side on white, each as large as a cell; null ones are blank.
QImage stripOf(const std::vector<QImage>& icons, const QSize& cell)
{
    QImage strip(cell.width() * static_cast<int>(icons.size()), cell.height(),
                 QImage::Format_ARGB32_Premultiplied);
    strip.fill(toQColor(kRowBackground));
    QPainter painter(&strip);
    int x = 0;
    for (const QImage& icon : icons) {
        if (!icon.isNull())
            painter.drawImage(x, 0,
                              icon.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                  .scaled(cell, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        x += cell.width();
    }
    return strip;
}

/// The height of the highest icon.
int heightOf(const std::vector<QImage>& icons)
{
    int height = 0;
    for (const QImage& icon : icons)
        height = std::max(height, icon.height());
    return height;
}

QImage loadAtSize(IconLibrary& library, const CString& name, const QSize& cell)
{
    IconPixels pixels;
    if (library.loadAtSize(name, cell.height(), pixels) != IconResult::Loaded)
        return {};
    const QImage image = toImage(pixels);
    return image.height() == cell.height() ? image : QImage();
}

/// The row icons for a cell: drawn for it where the library does so, else the ones that it gave.
QImage redrawRows(IconLibrary& library, std::vector<QImage> icons, const QSize& cell)
{
    bool isRedrawn = false;
    for (std::size_t i = 0; i < icons.size(); ++i) {
        if (icons[i].isNull()) // blank once is blank in every resolution
            continue;
        QImage icon = loadAtSize(library, CString::fromUtf16(kRowIcons[i]), cell);
        isRedrawn = isRedrawn || !icon.isNull();
        if (!icon.isNull())
            icons[i] = icon;
    }
    return isRedrawn ? stripOf(icons, cell) : QImage();
}

/// An operator strip whose icons are as wide as a cell. The library's are squares: where the cells
/// are none, the strip is stretched.
QImage redrawOperators(IconLibrary& library, const CString& name, const QSize& cell)
{
    const QImage strip = loadAtSize(library, name, cell);
    if (strip.isNull() || cell.width() == cell.height())
        return strip;
    const int icons = strip.width() / cell.height();
    return strip.scaled(icons * cell.width(), cell.height(), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

} // namespace

void ConditionImages::append(IconLibrary& library, const QSize& iconSize, int bitsPerPixel)
{
    if (m_rows == nullptr) {
        m_rows = std::make_shared<ImgLst>(iconSize, bitsPerPixel < kFullColourBits
                                                        ? ImgLst::Depth::Indexed8
                                                        : ImgLst::Depth::Colour32);
        m_rows->setBackground(kRowBackground);
        m_operators = std::make_shared<ImgLst>(iconSize);
    }

    const std::vector<QImage> icons = loadRowIcons(library);
    CDib dib;
    if (!icons.empty() && !m_rows->imageSize().isEmpty()) {
        dib.attach(stripOf(icons, m_rows->pixelSize(heightOf(icons))));
        m_rows->appendStrip(dib.bitmap(), kMask, [&library, icons](const QSize& cell) {
            return redrawRows(library, icons, cell);
        });
    }
    for (const char16_t* name : kOperatorStrips) {
        IconPixels pixels;
        const CString text = CString::fromUtf16(name);
        if (library.loadImage(text, kWfSmallIcon, pixels) != IconResult::Loaded)
            continue;
        dib.attach(toImage(pixels));
        m_operators->appendStrip(dib.bitmap(), kMask, [&library, text](const QSize& cell) {
            return redrawOperators(library, text, cell);
        });
    }
}

QIcon ConditionImages::rowIcon(int index) const
{
    const bool isThere = m_rows != nullptr && index >= 0 && index < m_rows->count();
    return isThere ? listIcon(m_rows, index) : QIcon();
}

} // namespace condtree
