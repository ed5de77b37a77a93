#pragma once

#include <condtree/platform/RegistryStore.h>

#include <array>
#include <optional>

namespace condtree::workbench {

/// The shares of the columns that the user's settings hold from an earlier run; none where they
/// hold none, or something that is not three numbers.
[[nodiscard]] std::optional<std::array<double, 3>> keptColumnShares(RegistryStore& store);

/// Keeps the shares of the columns for later runs. Settings that cannot be written stay as they
/// are, which the store tells the log.
void keepColumnShares(RegistryStore& store, const std::array<double, 3>& shares);

} // namespace condtree::workbench
