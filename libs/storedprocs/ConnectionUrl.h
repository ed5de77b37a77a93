#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// Where the database is and how patiently to wait for it.
struct ConnectionUrl {
    /// Absolute, cleaned.
    CString path;
    /// How long to wait for somebody else's lock, in milliseconds.
    int busyTimeout = 1000;
};

/// Reads a URL. E_INVALIDARG for what is none of ours, E_NOTIMPL for a server that has no driver
/// here; target is untouched then.
[[nodiscard]] HRESULT parseConnectionUrl(const CString& url, ConnectionUrl& target);

} // namespace condtree
