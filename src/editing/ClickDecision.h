#pragma once

#include <condtree/platform/WinTypes.h>

#include <variant>

namespace condtree {

class VarTreeCtrlNode;

/// The click is none on a row: all stays as it is.
struct IgnoreClick {};
/// The row was clicked, and is remembered as such, but the click opens nothing.
struct OpenNothing {};
/// The list of what the row may be, over column 0.
struct OpenKindList {};
/// The list of operators, over column 1.
struct OpenOperatorList {};
/// The editor of the value; the edited column becomes 2.
struct OpenValueEditor {};
/// The editor of the fourth column, in the place of one that is open; the edited column becomes 3.
struct OpenExtraEditor {};
/// The row has no fourth column to edit: an open editor is closed and none is opened, and the
/// edited column becomes 3 all the same.
struct CloseExtraEditor {};

/// What a click does. The clicked row is remembered by all but IgnoreClick.
using ClickAction = std::variant<IgnoreClick, OpenNothing, OpenKindList, OpenOperatorList,
                                 OpenValueEditor, OpenExtraEditor, CloseExtraEditor>;

/// Whether a click that hits these TVHT_ flags may open an editor: on the label, right of it, or
/// right of the client, and nothing else in the word.
[[nodiscard]] bool opensAnything(unsigned flags);

/// What a click does that hits a row with these TVHT_ flags in a column (-1: outside the row). node
/// is the row's, null for none; top is the tree's, which no click edits.
[[nodiscard]] ClickAction decideClick(unsigned flags, const VarTreeCtrlNode* node,
                                      const VarTreeCtrlNode* top, int column);

/// Where the list of a column is placed, from the column's cell: over the row's picture too in
/// column 0, and as high as the list is dropped down in columns 0 and 1. Other cells stay as they
/// are.
[[nodiscard]] RECT comboCell(RECT cell, int column, int smallIconWidth);

} // namespace condtree
