#pragma once

#include <condtree/platform/TextRef.h>
#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The text that a list shows for an entry: from 100 to 999 the string library's name of the
/// operator of that number, with given as its default, else given itself. The fixed values and the
/// states lie between the operators and are asked for like them.
[[nodiscard]] CString choiceTextAsShown(LONG code, const CString& given,
                                        const StringSource& strings);

/// What of a chosen entry's text goes into the row: its first 256 units of UTF-16, wherever that
/// cuts.
[[nodiscard]] CString choiceTextAsRead(const CString& entryText);

} // namespace condtree
