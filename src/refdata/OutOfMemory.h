#pragma once

#include <condtree/platform/WinTypes.h>

#include <new>

namespace condtree {

/// The result of function(); throws _com_error(E_OUTOFMEMORY) where it throws std::bad_alloc.
template <class Function>
auto raisingOutOfMemory(Function function)
{
    try {
        return function();
    } catch (const std::bad_alloc&) {
        throw _com_error(E_OUTOFMEMORY);
    }
}

} // namespace condtree
