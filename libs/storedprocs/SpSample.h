#pragma once

#include <condtree/platform/WinTypes.h>

// The sample database that the workbench opens when it is given none.
namespace condtree {

/// Creates a database, where it is missing, and fills it with a small engineering company's card
/// variables, workflows, users, groups, document types and transitions with conditions; the same
/// content every time. Log in as "admin". The connection is closed again before it returns.
///
/// S_OK: the content was written. S_FALSE: the database has content already (anything beyond the
/// one user of a new database) and was left alone; nothing is ever overwritten. On failure, with
/// the result codes of SpConnect, no content is written, but a missing database may have been made
/// and an older one brought up to date. 0x80040203: the database may not be written; E_FAIL: the
/// disk is full.
///
/// url is as for SpConnect. A QCoreApplication must exist; any thread may call.
[[nodiscard]] CONDTREE_EXPORT HRESULT SpMakeSampleDatabase(const CString& url);

} // namespace condtree
