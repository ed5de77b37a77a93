#pragma once

#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The message of a result code in the user's language.
/// Throws _com_error(E_OUTOFMEMORY) when the memory is exhausted.
[[nodiscard]] CONDTREE_EXPORT _bstr_t ResultCodeText(HRESULT code);

/// The same with the texts of a given source; the language is the source's own.
[[nodiscard]] CONDTREE_EXPORT _bstr_t ResultCodeText(HRESULT code, const StringSource& strings);

} // namespace condtree
