#pragma once

#include <condtree/platform/WinTypes.h>

// Messages of result codes that no catalogue knows; they are not translated.
namespace condtree {

/// The message of a code by its range, else the system's text, else the code itself in words.
/// Never empty.
[[nodiscard]] CString fallbackText(HRESULT code);

/// A text without one line feed at its end, and without one carriage return at the end of what is
/// left.
[[nodiscard]] CString withoutLineEnd(CString text);

} // namespace condtree
