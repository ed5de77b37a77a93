#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

class Database;

/// Brings the schema up to date, in one transaction; an empty database gets all of it. A database
/// that is up to date is only read. 0x80040201 for one that is newer than we are, 0x80040206 for
/// one that is none of ours.
[[nodiscard]] HRESULT migrate(Database& database);

} // namespace condtree
