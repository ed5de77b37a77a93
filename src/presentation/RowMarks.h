#pragma once

#include <condtree/presentation/RowPicture.h>

namespace condtree {

// How strong tints are, of 255: black on white keeps a contrast of more than 13:1 on the one and
// 17:1 on the other.
inline constexpr int kSelectedTint = 48;
inline constexpr int kHoveredTint = 18;

/// What is special about a row at the moment.
struct RowMarks {
    bool isSelected = false;
    bool isHovered = false;
    /// The keyboard acts on it.
    bool isFocused = false;
    /// It lies under a row that is dragged.
    bool isUnderDrag = false;
};

/// Describes what is laid over a finished row, from the viewport's left edge to its right one: a
/// tint and a bar in front where it is selected, a paler tint under the pointer, a frame where the
/// focus is, a tint and a thick frame under a drag. Texts and pictures are below the tint, and stay
/// readable.
[[nodiscard]] RowPicture describeMarks(const RECT& row, const RowMarks& marks, COLORREF colour);

} // namespace condtree
