#pragma once

#include <condtree/platform/WinTypes.h>

#include <QColor>
#include <QImage>

#include <cstdint>
#include <vector>

namespace condtree {

/// A bitmap's description.
struct BITMAP {
    LONG bmType = 0;
    LONG bmWidth = 0;
    LONG bmHeight = 0;
    LONG bmWidthBytes = 0;
    std::uint16_t bmPlanes = 0;
    std::uint16_t bmBitsPixel = 0;
    /// The first line from the top; valid as long as the bitmap is attached.
    const void* bmBits = nullptr;
};

/// A logical palette.
struct CPalette {
    static constexpr std::uint16_t kVersion = 0x300;

    std::uint16_t version = 0; ///< 0 as long as there is none
    std::vector<QRgb> entries;
};

/// The palette for screens of 256 colours: a cube of six steps a channel, and grey between them.
[[nodiscard]] CPalette halftonePalette();

/// A bitmap with its description and its palette, which belong to this bitmap: it holds the bitmap
/// instead of being one, so that nobody can paint on it or exchange it behind their back. A copy
/// shares the bits, which nobody changes.
class CDib {
public:
    /// Takes a bitmap over, describes it and gives it its palette. A null image detaches.
    void attach(const QImage& bitmap);

    /// Null when none is attached.
    [[nodiscard]] const QImage& bitmap() const { return m_bitmap; }
    /// All 0 when none is attached.
    [[nodiscard]] const BITMAP& description() const { return m_description; }
    [[nodiscard]] const CPalette& palette() const { return m_palette; }

    /// Makes a palette of the bitmap's colour table, at most 256 entries of it, or, where it has
    /// none, the halftone palette. Whether palette took it: not without a bitmap.
    bool createPalette(CPalette& palette) const;

private:
    QImage m_bitmap;
    BITMAP m_description;
    CPalette m_palette;
};

} // namespace condtree
