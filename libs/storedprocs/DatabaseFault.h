#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// What a failure of the database means.
struct DatabaseFault {
    /// What a result code does not tell apart, but a user can do something about.
    enum class Kind { Other, DiskFull, NotWritten };

    HRESULT result = E_FAIL; ///< For callers.
    Kind kind = Kind::Other;

    bool operator==(const DatabaseFault&) const = default;
};

} // namespace condtree
