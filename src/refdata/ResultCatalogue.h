#pragma once

#include <condtree/platform/TextRef.h>

// The control's own messages of result codes.
namespace condtree {

/// The text of a code in the catalogue; null when the code is not there. Its English text may be
/// empty.
[[nodiscard]] const TextRef* findResultText(DWORD code);

/// A text in the language of strings; in English when there is no source or no translation.
[[nodiscard]] CString translated(const TextRef& text, const StringSource& strings);

/// Which versions of the database server are supported. Several lines.
[[nodiscard]] CString databaseVersionText(const StringSource& strings);

/// What is asked of the operating system. Several lines.
[[nodiscard]] CString systemVersionText(const StringSource& strings);

} // namespace condtree
