#pragma once

#include "Options.h"

namespace condtree::workbench {

/// Opens the window that the options ask for, and returns when it is closed. A failure means that
/// there was none to open. A QApplication must exist.
[[nodiscard]] MaybeFailure runWindow(const Options& options);

} // namespace condtree::workbench
