#pragma once

#include <condtree/platform/WinTypes.h>

#include <QString>

namespace condtree::workbench {

/// The message of a result code in the user's language, those of the data-access library's own
/// codes included. On one line or several; never empty.
[[nodiscard]] QString resultMessage(HRESULT result);

} // namespace condtree::workbench
