#pragma once

// The reasons for which a database is out of reach, as the program tells them on one line.
namespace condtree::test {

inline const char* const kPermission = "You don't have permission to perform this action.";
inline const char* const kCannotOpen =
    "Could not open database. This could happen if the network connection is broken or if the "
    "database has been removed.";
inline const char* const kLocked =
    "An attempt was made to access a record in the database that is locked by another user. This "
    "can sometimes happen during high workload on the database. Usually this is solved if you try "
    "the operation again.";

} // namespace condtree::test
