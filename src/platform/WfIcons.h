#pragma once

#include <cstdint>

/// What the icon library offers: a module that is loaded at run time and whose functions are found
/// by name. Plain types only, so that a module of another make can offer the same.
namespace condtree {

/// A picture as the icon library hands it over, as an icon and as a bitmap alike. Header and pixels
/// are one block from CoTaskMemAlloc; the receiver frees it with CoTaskMemFree.
struct WfImage {
    /// sizeof(WfImage); a receiver takes any other value, or another version, for a library that
    /// it does not know.
    std::uint32_t size;
    /// kWfImageVersion.
    std::uint32_t version;
    /// In pixels, both more than 0.
    std::int32_t width;
    std::int32_t height;
    /// width * height pixels of 4 bytes (blue, green, red, alpha; not premultiplied), rows from the
    /// top, without padding.
    const std::uint8_t* bytes;
};
static_assert(sizeof(WfImage) == 4 * sizeof(std::uint32_t) + sizeof(void*));

inline constexpr std::uint32_t kWfImageVersion = 1;

/// The only use that the library has pictures for: small icons.
inline constexpr int kWfSmallIcon = 3;

/// The type of both ghLoadWFPngImageIconAsPerDPI, which has the row icons, and
/// ghLoadWFPNGImageAsPerDPI, which has the strips of operators.
///
/// The name ends with a null; the use is kWfSmallIcon. The picture has the size of a small icon at
/// the primary screen's resolution, in pixels of the screen that has most of them a point; a strip
/// is that high, its pictures are side by side. To be called by the user interface's thread.
/// Null for a name that is null or that this function has no picture of, for another use, before
/// there is a QGuiApplication, and when the memory is exhausted.
using WfLoadAsPerDpi = WfImage*(const char16_t* name, int use);

/// The type of ghLoadWFImageAtSize, which a library may lack: every picture, row icon or strip, so
/// many pixels high, drawn for that size. The pictures of a strip are as wide as they are high.
/// Null as above, and for a height below 1 or above kWfLargestHeight.
using WfLoadAtSize = WfImage*(const char16_t* name, int height);

inline constexpr int kWfLargestHeight = 1024;

inline constexpr const char* kWfLoadIconEntry = "ghLoadWFPngImageIconAsPerDPI";
inline constexpr const char* kWfLoadImageEntry = "ghLoadWFPNGImageAsPerDPI";
inline constexpr const char* kWfLoadAtSizeEntry = "ghLoadWFImageAtSize";

} // namespace condtree
