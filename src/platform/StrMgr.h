#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The text numbered id under key and section in the user's language; defaultText, the English
/// text, where there is no translation. The string library implements it.
[[nodiscard]] CONDTREE_EXPORT CString TSS_internal(LONG id, const char16_t* key,
                                                   const char16_t* section,
                                                   const char16_t* defaultText);

} // namespace condtree
