#pragma once

#include <condtree/storedprocs/SpTransitions.h>

#include <QString>

namespace condtree::workbench {

/// Why the database refused a condition, in the user's language: who saved it in between, or which
/// row and field it cannot hold, rows counted from 1. Empty for results whose own text says it all.
[[nodiscard]] QString saveRefusal(HRESULT result, const SpSaveReport& report);

} // namespace condtree::workbench
