#include "SqliteFaults.h"

#include "SpConnect.h"

namespace condtree {

namespace {

using Kind = DatabaseFault::Kind;

struct KnownCode {
    int code;
    HRESULT result;
    Kind kind = Kind::Other;
};

/// The number of an extended code: the primary one's in its low byte.
constexpr int extended(int primary, int number)
{
    return primary | number << 8;
}

// Extended codes stand here only where they mean something else than their primary code, which
// answers for all others. What is not here at all is E_FAIL: mistakes of ours (INTERNAL, MISUSE,
// RANGE), what cannot happen to us (ABORT, INTERRUPT), and what says nothing in particular (ERROR).
constexpr KnownCode kCodes[] = {
    {3, SP_E_PERMISSION},                         // PERM
    {5, SP_E_LOCKED},                             // BUSY: another connection
    {6, SP_E_LOCKED},                             // LOCKED: another statement
    {7, E_OUTOFMEMORY},                           // NOMEM
    {8, SP_E_PERMISSION},                         // READONLY
    {extended(8, 4), SP_E_CANNOT_OPEN},           // READONLY_DBMOVED: the file was removed
    {10, SP_E_CANNOT_OPEN},                       // IOERR: the file cannot be reached
    {extended(10, 3), E_FAIL, Kind::NotWritten},  // IOERR_WRITE
    {extended(10, 4), E_FAIL, Kind::NotWritten},  // IOERR_FSYNC
    {extended(10, 5), E_FAIL, Kind::NotWritten},  // IOERR_DIR_FSYNC
    {extended(10, 6), E_FAIL, Kind::NotWritten},  // IOERR_TRUNCATE
    {extended(10, 10), E_FAIL, Kind::NotWritten}, // IOERR_DELETE: the journal stays
    {extended(10, 12), E_OUTOFMEMORY},            // IOERR_NOMEM
    {extended(10, 23), E_FAIL, Kind::NotWritten}, // IOERR_DELETE_NOENT
    {extended(10, 25), E_FAIL, Kind::NotWritten}, // IOERR_GETTEMPPATH
    {extended(10, 28), SP_E_PERMISSION},          // IOERR_AUTH
    {extended(10, 29), E_FAIL, Kind::NotWritten}, // IOERR_BEGIN_ATOMIC
    {extended(10, 30), E_FAIL, Kind::NotWritten}, // IOERR_COMMIT_ATOMIC
    {extended(10, 31), E_FAIL, Kind::NotWritten}, // IOERR_ROLLBACK_ATOMIC
    {11, SP_E_CANNOT_OPEN},                       // CORRUPT
    {13, E_FAIL, Kind::DiskFull},                 // FULL
    {14, SP_E_CANNOT_OPEN},                       // CANTOPEN
    {15, SP_E_LOCKED},                            // PROTOCOL: lost the race for a lock
    {18, SP_E_NO_ACCESS_TO_ITEM},                 // TOOBIG: a text beyond what it can hold
    {19, SP_E_NO_ACCESS_TO_ITEM},                 // CONSTRAINT
    {20, SP_E_NO_ACCESS_TO_ITEM},                 // MISMATCH: the wrong type
    {23, SP_E_PERMISSION},                        // AUTH
    {26, SP_E_CANNOT_OPEN},                       // NOTADB
};

const KnownCode* find(int code)
{
    for (const KnownCode& known : kCodes) {
        if (known.code == code)
            return &known;
    }
    return nullptr;
}

} // namespace

DatabaseFault sqliteFault(int code)
{
    const KnownCode* known = find(code);
    if (known == nullptr)
        known = find(code & 0xff);
    return known != nullptr ? DatabaseFault{known->result, known->kind} : DatabaseFault{};
}

} // namespace condtree
