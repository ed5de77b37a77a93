#include "CDib.h"

#include <algorithm>
#include <cstddef>

namespace condtree {

namespace {

constexpr std::size_t kLargestPalette = 256;

} // namespace

CPalette halftonePalette()
{
    constexpr int steps = 6;
    constexpr int step = 255 / (steps - 1);
    CPalette palette{CPalette::kVersion, {}};
    for (int i = 0; i < steps * steps * steps; ++i)
        palette.entries.push_back(
            qRgb(i / (steps * steps) * step, i / steps % steps * step, i % steps * step));
    constexpr int greys = static_cast<int>(kLargestPalette) - steps * steps * steps;
    for (int i = 1; i <= greys; ++i) {
        const int grey = i * 255 / (greys + 1);
        palette.entries.push_back(qRgb(grey, grey, grey));
    }
    return palette;
}

void CDib::attach(const QImage& bitmap)
{
    *this = {};
    if (bitmap.isNull())
        return;
    m_bitmap = bitmap;
    const QImage& kept = m_bitmap;
    m_description = {0,
                     kept.width(),
                     kept.height(),
                     static_cast<LONG>(kept.bytesPerLine()),
                     1,
                     static_cast<std::uint16_t>(kept.depth()),
                     kept.constBits()};
    createPalette(m_palette);
}

bool CDib::createPalette(CPalette& palette) const
{
    if (m_bitmap.isNull())
        return false;
    const QList<QRgb> table = m_bitmap.colorTable();
    if (table.isEmpty()) {
        palette = halftonePalette();
        return true;
    }
    const auto count = std::min(static_cast<std::size_t>(table.size()), kLargestPalette);
    palette = {CPalette::kVersion, {}};
    for (std::size_t i = 0; i < count; ++i)
        palette.entries.push_back(table[static_cast<qsizetype>(i)] | 0xFF000000U);
    return true;
}

} // namespace condtree
