#pragma once

#include <condtree/platform/TreeVocabulary.h>
#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/HitTest.h>

#include <optional>

class QModelIndex;
class QTreeView;

// Where the rows of a tree view lie: a view of one column, from left to right. All points are in
// viewport co-ordinates.
namespace condtree {

class ConditionModel;

/// Where a row lies in the viewport: the whole row, and the left edge of its text behind
/// indentation and picture.
struct RowPlace {
    RECT row;
    LONG textLeft;
};

/// The place of a row of a tree view; none for a row that is not laid out (inside a closed group).
[[nodiscard]] std::optional<RowPlace> placeOfRow(const QTreeView& view, const QModelIndex& index);

/// The areas of a row; none for a row that is not laid out. Rows have no text of their own, so that
/// their text is a few pixels wide. The button is where the view's style wants it, and only on a
/// row that the view can open.
[[nodiscard]] std::optional<RowAreas> rowAreas(const QTreeView& view, const QModelIndex& index);

/// What a point hits: the row, null when there is none, and where on it, as TVHT_ flags.
struct TreeHit {
    HTREEITEM item;
    unsigned flags;
    bool operator==(const TreeHit&) const = default;
};

/// What a point hits in a view of the model. Outside the viewport there are no rows.
[[nodiscard]] TreeHit hitTest(const QTreeView& view, const ConditionModel& model, POINT point);

} // namespace condtree
