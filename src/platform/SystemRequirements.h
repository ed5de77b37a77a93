#pragma once

#include <condtree/platform/Export.h>

#include <span>

namespace condtree {

/// What the platform asks of the operating system, as lines to show below one another.
[[nodiscard]] CONDTREE_EXPORT std::span<const char16_t* const> systemRequirements();

} // namespace condtree
