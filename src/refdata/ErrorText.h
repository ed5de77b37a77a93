#pragma once

#include <condtree/platform/ResultTexts.h>
#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>

namespace condtree {

// The message of a result code, never empty: the control's own, else the host's, else one by the
// code's range, the system's text, or the code itself in words. All forms throw
// _com_error(E_OUTOFMEMORY) when the memory is exhausted.

/// The message in the user's language, without messages of the host's.
[[nodiscard]] CONDTREE_EXPORT _bstr_t ResultCodeText(HRESULT code);

/// The message with the texts of a given source and the host's messages in more, which may be null.
/// A text that the source leaves empty is in English, as are all texts when there is no source.
[[nodiscard]] CONDTREE_EXPORT _bstr_t ResultCodeText(HRESULT code, const StringSource& strings,
                                                     const ResultTexts* more = nullptr);

/// The same in a given language, which the source is told with each text.
[[nodiscard]] CONDTREE_EXPORT _bstr_t ResultCodeText(HRESULT code,
                                                     const LanguageStringSource& strings,
                                                     const CString& language,
                                                     const ResultTexts* more = nullptr);

} // namespace condtree
