#include "CellSize.h"
#include "Pictures.h"

#include <condtree/platform/Export.h>
#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

#include <QGuiApplication>
#include <QScreen>
#include <QtEndian>

#include <cstddef>
#include <new>

namespace condtree {

namespace {

/// In pixels of the screen that has most of them a point, so that it is sharp on every screen.
QSize currentCell()
{
    constexpr SIZE withoutScreen{96, 96};
    const QScreen* screen = QGuiApplication::primaryScreen();
    const SIZE dpi = screen == nullptr ? withoutScreen
                                       : SIZE{qRound(screen->logicalDotsPerInchX()),
                                              qRound(screen->logicalDotsPerInchY())};
    return smallIconCell(dpi, qGuiApp->devicePixelRatio());
}

/// Header and pixels in one block; null when there is no memory for it.
WfImage* handOver(const QImage& image)
{
    const auto bytes = static_cast<std::size_t>(image.sizeInBytes());
    void* const block = image.isNull() ? nullptr : CoTaskMemAlloc(sizeof(WfImage) + bytes);
    if (block == nullptr)
        return nullptr;
    auto* const pixels = static_cast<std::uint8_t*>(block) + sizeof(WfImage);
    qToLittleEndian<QRgb>(image.constBits(), image.sizeInBytes() / qsizetype{sizeof(QRgb)}, pixels);
    return new (block)
        WfImage{sizeof(WfImage), kWfImageVersion, image.width(), image.height(), pixels};
}

/// Null without a graphical application, for then there are no screens.
const Picture* find(const char16_t* name)
{
    const auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    return name == nullptr || application == nullptr ? nullptr : findPicture(name);
}

WfImage* loadAsPerDpi(const char16_t* name, int use, Picture::Kind kind) noexcept
try {
    const Picture* picture = use == kWfSmallIcon ? find(name) : nullptr;
    if (picture == nullptr || picture->kind != kind)
        return nullptr;
    return handOver(drawPicture(*picture, currentCell()));
} catch (const std::bad_alloc&) {
    return nullptr;
}

WfImage* loadAtSize(const char16_t* name, int height) noexcept
try {
    const Picture* picture = height >= 1 && height <= kWfLargestHeight ? find(name) : nullptr;
    return picture == nullptr ? nullptr : handOver(drawPicture(*picture, {height, height}));
} catch (const std::bad_alloc&) {
    return nullptr;
}

} // namespace

extern "C" {

CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t* name, int use)
{
    return loadAsPerDpi(name, use, Picture::Kind::RowIcon);
}

CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t* name, int use)
{
    return loadAsPerDpi(name, use, Picture::Kind::OperatorStrip);
}

CONDTREE_EXPORT WfImage* ghLoadWFImageAtSize(const char16_t* name, int height)
{
    return loadAtSize(name, height);
}
}

} // namespace condtree
