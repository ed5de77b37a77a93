#include "PickerPlacement.h"

#include <algorithm>

namespace condtree {

namespace {

constexpr int kUnitsAcross = 4;
constexpr int kUnitsDown = 8;

LONG within(LONG wanted, LONG length, LONG first, LONG last)
{
    return std::max(first, std::min(wanted, last - length));
}

} // namespace

SIZE fromDialogUnits(const SIZE& units, const SIZE& character)
{
    return {MulDiv(units.cx, character.cx, kUnitsAcross),
            MulDiv(units.cy, character.cy, kUnitsDown)};
}

POINT placePicker(const RECT& cell, const SIZE& size, const RECT& screen)
{
    const LONG above = cell.top - size.cy;
    const bool fitsBelow = cell.bottom + size.cy <= screen.bottom;
    const bool fitsAbove = above >= screen.top;
    const LONG y = !fitsBelow && fitsAbove ? above : cell.bottom;
    return {within(cell.left, size.cx, screen.left, screen.right),
            within(y, size.cy, screen.top, screen.bottom)};
}

} // namespace condtree
