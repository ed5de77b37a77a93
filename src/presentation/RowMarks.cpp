#include "RowMarks.h"

namespace condtree {

namespace {

constexpr LONG kBarWidth = 3;

} // namespace

RowPicture describeMarks(const RECT& row, const RowMarks& marks, COLORREF colour)
{
    RowPicture picture;
    if (marks.isSelected || marks.isHovered)
        picture.push_back(
            TintPrimitive{row, colour, marks.isSelected ? kSelectedTint : kHoveredTint});
    if (marks.isSelected)
        picture.push_back(
            FillPrimitive{{row.left, row.top, row.left + kBarWidth, row.bottom}, colour});
    if (marks.isFocused)
        picture.push_back(FramePrimitive{row, colour});
    return picture;
}

} // namespace condtree
