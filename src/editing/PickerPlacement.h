#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// A size in dialog units, in the pixels of a font: a unit is a quarter of its average character's
/// width and an eighth of its height.
[[nodiscard]] SIZE fromDialogUnits(const SIZE& units, const SIZE& character);

/// The top-left corner of what drops down from a cell: directly below it, its left edge at the
/// cell's. Where the screen ends, it goes above the cell, or else as far up as it takes, and as far
/// to the left; what is larger than the screen begins at its corner. All in one system of
/// co-ordinates.
[[nodiscard]] POINT placePicker(const RECT& cell, const SIZE& size, const RECT& screen);

} // namespace condtree
