#pragma once

#include "DatabaseFault.h"

namespace condtree {

/// What a result code of SQLite means, primary or extended.
[[nodiscard]] DatabaseFault sqliteFault(int code);

} // namespace condtree
