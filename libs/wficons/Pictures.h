#pragma once

#include <QImage>
#include <QSize>

#include <span>
#include <string_view>

namespace condtree {

/// A picture of the library: one cell, or several side by side. Cells are drawn from the drawings
/// of the folder svg, which are named without their suffix.
struct Picture {
    enum class Kind { RowIcon, OperatorStrip };

    /// The name by which it is asked for.
    std::u16string_view name;
    Kind kind;
    /// The drawing below that of every cell; null for none.
    const char* tile;
    /// A drawing for each of the first cells.
    std::span<const char* const> drawings;
    /// Cells behind these, which stand for nothing.
    int unused;
};

/// Null for a name that is not a picture's.
[[nodiscard]] const Picture* findPicture(std::u16string_view name);

/// Draws every cell at a size in pixels, side by side, in Format_ARGB32. The drawings are square
/// and fill the middle of a cell that is not. A strip has the mask colour where it is transparent
/// and nowhere else. Null for a size that no image can have.
[[nodiscard]] QImage drawPicture(const Picture& picture, const QSize& cell);

/// Gives transparent pixels silver, the colour that an image list makes transparent, and takes
/// exactly that colour from all others. The picture is in Format_ARGB32.
void applyMaskColour(QImage& strip);

} // namespace condtree
