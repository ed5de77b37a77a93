#pragma once

#include <condtree/platform/WinTypes.h>

#include <cstdint>
#include <vector>

namespace condtree {

/// A picture: 4 bytes a pixel (blue, green, red, alpha; not premultiplied), rows from the top,
/// without padding.
struct IconPixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
};

/// What became of a request for a picture.
enum class IconResult {
    Loaded,   ///< The picture was filled in.
    NoImage,  ///< The library is there, but has no such picture.
    NoLibrary ///< The library or its entry point is missing.
};

/// The source of the control's pictures, by resource name.
class CONDTREE_EXPORT IconLibrary {
public:
    IconLibrary() = default;
    IconLibrary(const IconLibrary&) = delete;
    IconLibrary& operator=(const IconLibrary&) = delete;
    virtual ~IconLibrary();

    /// One icon at the size for the current resolution.
    virtual IconResult loadIcon(const CString& name, int use, IconPixels& icon) = 0;
    /// A strip of icons side by side, each as wide as loadIcon's.
    virtual IconResult loadImage(const CString& name, int use, IconPixels& strip) = 0;
    /// An icon or a strip so many pixels high, drawn for that size; a strip's icons are as wide as
    /// they are high. A library that has no such pictures says so.
    virtual IconResult loadAtSize(const CString& name, int height, IconPixels& pixels);
};

} // namespace condtree
