#pragma once

#include <condtree/platform/TreeVocabulary.h>
#include <condtree/platform/WinTypes.h>

#include <optional>

namespace condtree {

/// The areas of a row from left to right, in viewport co-ordinates. What lies before the button and
/// before the picture is indentation, what lies behind the text is the rest of the row.
struct RowAreas {
    RECT row;
    /// The button that opens and closes the row; equal when it has none.
    LONG buttonLeft, buttonRight;
    /// The picture reaches up to the text; equal to textLeft when there is none.
    LONG pictureLeft;
    LONG textLeft, textRight;
};

/// Where a point lies, as TVHT_ flags. Outside the client one flag for each direction, whatever the
/// row; inside it exactly one flag, TVHT_NOWHERE without a row that holds the point.
[[nodiscard]] unsigned hitFlags(POINT point, const RECT& client,
                                const std::optional<RowAreas>& rowAtPoint);

} // namespace condtree
