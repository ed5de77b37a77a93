#pragma once

#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/RowLayout.h>

#include <QVarLengthArray>

#include <array>
#include <optional>
#include <variant>

namespace condtree {

/// What a row shows, whatever its place.
struct RowContent {
    /// The node's code; below 3 the row is one caption.
    LONG code = 0;
    CString name, value, extra;
    LONG op = -1;
    /// The code of the row's parent row; none for a row of the top level.
    std::optional<LONG> parentCode;
};

// The primitives of a picture. Colours are 0x00BBGGRR; co-ordinates are the row's.
struct FillPrimitive {
    RECT rect;
    COLORREF colour;
    bool operator==(const FillPrimitive&) const = default;
};
/// A colour laid over what is there; alpha is of 255.
struct TintPrimitive {
    RECT rect;
    COLORREF colour;
    int alpha;
    bool operator==(const TintPrimitive&) const = default;
};
/// A frame of one pixel inside rect.
struct FramePrimitive {
    RECT rect;
    COLORREF colour;
    bool operator==(const FramePrimitive&) const = default;
};
/// A line of one pixel through the points, the last one exclusive.
struct PolylinePrimitive {
    std::array<POINT, 4> points;
    COLORREF colour;
    bool operator==(const PolylinePrimitive&) const = default;
};
/// A line of one pixel, its end exclusive.
struct LinePrimitive {
    POINT from, to;
    COLORREF colour;
    bool operator==(const LinePrimitive&) const = default;
};
/// A picture of the operator image list.
struct ImagePrimitive {
    int index;
    POINT at;
    bool operator==(const ImagePrimitive&) const = default;
};
struct TextPrimitive {
    CString text;
    RECT rect;
    unsigned format;
    bool operator==(const TextPrimitive&) const = default;
};

using RowPrimitive = std::variant<FillPrimitive, FramePrimitive, PolylinePrimitive, LinePrimitive,
                                  ImagePrimitive, TextPrimitive, TintPrimitive>;
/// What is drawn for a row, in order; a whole row needs no heap.
using RowPicture = QVarLengthArray<RowPrimitive, 10>;

/// The bits of a text's format.
inline constexpr unsigned kTextVerticallyCentred = 0x4;
inline constexpr unsigned kTextSingleLine = 0x20;
inline constexpr unsigned kTextEndEllipsis = 0x8000;
/// The format of every text of a row.
inline constexpr unsigned kRowTextFormat =
    kTextVerticallyCentred | kTextSingleLine | kTextEndEllipsis;

/// Describes a row as primitives. Changes nothing and draws nothing.
[[nodiscard]] RowPicture describeRow(const RowContent& content, const RowLayout& layout,
                                     const StringSource& strings);

} // namespace condtree
