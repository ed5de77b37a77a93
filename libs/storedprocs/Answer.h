#pragma once

#include "Database.h"

#include <condtree/platform/StoredProcs.h>

#include <new>
#include <stdexcept>

namespace condtree {

/// What a procedure answers: runs its body, which gives a result code, on the connection's own
/// thread only, and lets no exception out.
template <class Body>
[[nodiscard]] HRESULT answer(const Database& database, Body&& body)
{
    if (!database.isOnOwnThread()) {
        qCWarning(logStoredProcs) << "a connection was used on a thread that is not its own";
        return E_UNEXPECTED;
    }
    try {
        return body();
    } catch (const _com_error& error) {
        return error.Error();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::length_error&) {
        return E_OUTOFMEMORY; // a list that is full
    }
}

} // namespace condtree
