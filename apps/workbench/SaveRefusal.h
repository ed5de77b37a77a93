#pragma once

#include <condtree/storedprocs/SpTransitions.h>

#include <QString>

namespace condtree::workbench {

/// Why a condition was not saved, in the user's language: who saved it in between, which row and
/// field the database cannot hold, rows counted from 1, or what hindered it from writing; the
/// result's own message where the report does not tell.
[[nodiscard]] QString saveRefusal(HRESULT result, const SpSaveReport& report);

} // namespace condtree::workbench
