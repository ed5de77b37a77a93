#pragma once

#include <condtree/platform/WinTypes.h>

// The sample database that the workbench opens when it is given none.
namespace condtree {

/// Creates a database, where it is missing, and fills it with a small engineering company's card
/// variables, workflows, users, groups, document types and transitions with conditions; the same
/// content every time. Log in as "admin".
///
/// S_OK: the content was written. S_FALSE: the database has content already and was left alone;
/// nothing is ever overwritten. On failure, with the result codes of SpConnect, nothing is written.
/// url is as for SpConnect.
[[nodiscard]] CONDTREE_EXPORT HRESULT SpMakeSampleDatabase(const CString& url);

} // namespace condtree
