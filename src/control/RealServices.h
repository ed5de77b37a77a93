#pragma once

#include <condtree/platform/Services.h>

namespace condtree {

/// The real ports: message boxes and metrics of Qt, the clock, the string library, the settings
/// files and the icon library.
[[nodiscard]] CONDTREE_EXPORT Services realServices();

} // namespace condtree
