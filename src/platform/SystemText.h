#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// The English text of one of the platform's standard result codes, without a line end; empty for a
/// code that is not among them.
[[nodiscard]] CONDTREE_EXPORT CString systemText(HRESULT code);

} // namespace condtree
