#pragma once

#include "Database.h"
#include "Options.h"

namespace condtree::workbench {

/// Opens the database that the options name.
[[nodiscard]] Outcome<std::unique_ptr<Database>> openDatabase(const Options& options);

/// The transition that the options name; without one the first of the list, if there is any.
[[nodiscard]] Outcome<SpTransition> chosenTransition(const Options& options,
                                                     const std::vector<SpTransition>& transitions);

/// Does what the options ask for without a window, in the order import, list, print, export,
/// screenshot, and stops at the first failure. A file to import is read before the database is
/// touched. Nobody is asked anything. A QApplication must exist.
[[nodiscard]] MaybeFailure runHeadless(const Options& options);

} // namespace condtree::workbench
