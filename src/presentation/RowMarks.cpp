#include "RowMarks.h"

namespace condtree {

namespace {

constexpr LONG kBarWidth = 3;

} // namespace

RowPicture describeMarks(const RECT& row, const RowMarks& marks, COLORREF colour)
{
    RowPicture picture;
    const bool isStrong = marks.isSelected || marks.isUnderDrag;
    if (isStrong || marks.isHovered)
        picture.push_back(TintPrimitive{row, colour, isStrong ? kSelectedTint : kHoveredTint});
    if (marks.isSelected)
        picture.push_back(
            FillPrimitive{{row.left, row.top, row.left + kBarWidth, row.bottom}, colour});
    if (marks.isFocused || marks.isUnderDrag)
        picture.push_back(FramePrimitive{row, colour});
    if (marks.isUnderDrag)
        picture.push_back(
            FramePrimitive{{row.left + 1, row.top + 1, row.right - 1, row.bottom - 1}, colour});
    return picture;
}

} // namespace condtree
