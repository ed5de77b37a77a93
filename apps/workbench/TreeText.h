#pragma once

#include <condtree/control/CondTreeCtrl.h>

namespace condtree::workbench {

/// The rows below a node as text, a line a row, two spaces a level: variable, operator, value and
/// extra separated by " | "; of groups and placeholders the caption alone. Control characters are
/// written as \uXXXX, so that a row is one line.
[[nodiscard]] QString treeText(const VarTreeCtrlNode& top, const StringSource& strings);

} // namespace condtree::workbench
