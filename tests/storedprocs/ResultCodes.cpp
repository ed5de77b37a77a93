// The library keeps this to itself, so that its source is compiled into the test.
#include <condtree/storedprocs/SqliteFaults.h>

#include <gtest/gtest.h>

#include <set>

namespace condtree::test {
namespace {

using Kind = DatabaseFault::Kind;

constexpr auto kPermission = static_cast<HRESULT>(0x80040203U);
constexpr auto kCannotOpen = static_cast<HRESULT>(0x80040206U);
constexpr auto kNoAccess = static_cast<HRESULT>(0x80040207U);
constexpr auto kLocked = static_cast<HRESULT>(0x8004020AU);
constexpr auto kFail = static_cast<HRESULT>(0x80004005U);
constexpr auto kNoMemory = static_cast<HRESULT>(0x8007000EU);

struct Code {
    const char* name;
    int code;
    HRESULT result;
    Kind kind = Kind::Other;
};

// Every code that SQLite can return, by its own numbers.
const Code kPrimary[] = {
    {"ERROR", 1, kFail},
    {"INTERNAL", 2, kFail},
    {"PERM", 3, kPermission},
    {"ABORT", 4, kFail},
    {"BUSY", 5, kLocked},
    {"LOCKED", 6, kLocked},
    {"NOMEM", 7, kNoMemory},
    {"READONLY", 8, kPermission},
    {"INTERRUPT", 9, kFail},
    {"IOERR", 10, kCannotOpen},
    {"CORRUPT", 11, kCannotOpen},
    {"NOTFOUND", 12, kFail},
    {"FULL", 13, kFail, Kind::DiskFull},
    {"CANTOPEN", 14, kCannotOpen},
    {"PROTOCOL", 15, kLocked},
    {"EMPTY", 16, kFail},
    {"SCHEMA", 17, kFail},
    {"TOOBIG", 18, kNoAccess},
    {"CONSTRAINT", 19, kNoAccess},
    {"MISMATCH", 20, kNoAccess},
    {"MISUSE", 21, kFail},
    {"NOLFS", 22, kFail},
    {"AUTH", 23, kPermission},
    {"FORMAT", 24, kFail},
    {"RANGE", 25, kFail},
    {"NOTADB", 26, kCannotOpen},
    {"NOTICE", 27, kFail},
    {"WARNING", 28, kFail},
    {"ROW", 100, kFail},
    {"DONE", 101, kFail},
};

const Code kExtended[] = {
    {"ERROR_MISSING_COLLSEQ", 257, kFail},
    {"ERROR_RETRY", 513, kFail},
    {"ERROR_SNAPSHOT", 769, kFail},
    {"ABORT_ROLLBACK", 516, kFail},
    {"BUSY_RECOVERY", 261, kLocked},
    {"BUSY_SNAPSHOT", 517, kLocked},
    {"BUSY_TIMEOUT", 773, kLocked},
    {"LOCKED_SHAREDCACHE", 262, kLocked},
    {"LOCKED_VTAB", 518, kLocked},
    {"READONLY_RECOVERY", 264, kPermission},
    {"READONLY_CANTLOCK", 520, kPermission},
    {"READONLY_ROLLBACK", 776, kPermission},
    {"READONLY_DBMOVED", 1032, kCannotOpen},
    {"READONLY_CANTINIT", 1288, kPermission},
    {"READONLY_DIRECTORY", 1544, kPermission},
    {"IOERR_READ", 266, kCannotOpen},
    {"IOERR_SHORT_READ", 522, kCannotOpen},
    {"IOERR_WRITE", 778, kFail, Kind::NotWritten},
    {"IOERR_FSYNC", 1034, kFail, Kind::NotWritten},
    {"IOERR_DIR_FSYNC", 1290, kFail, Kind::NotWritten},
    {"IOERR_TRUNCATE", 1546, kFail, Kind::NotWritten},
    {"IOERR_FSTAT", 1802, kCannotOpen},
    {"IOERR_UNLOCK", 2058, kCannotOpen},
    {"IOERR_RDLOCK", 2314, kCannotOpen},
    {"IOERR_DELETE", 2570, kFail, Kind::NotWritten},
    {"IOERR_BLOCKED", 2826, kCannotOpen},
    {"IOERR_NOMEM", 3082, kNoMemory},
    {"IOERR_ACCESS", 3338, kCannotOpen},
    {"IOERR_CHECKRESERVEDLOCK", 3594, kCannotOpen},
    {"IOERR_LOCK", 3850, kCannotOpen},
    {"IOERR_CLOSE", 4106, kCannotOpen},
    {"IOERR_DIR_CLOSE", 4362, kCannotOpen},
    {"IOERR_SHMOPEN", 4618, kCannotOpen},
    {"IOERR_SHMSIZE", 4874, kCannotOpen},
    {"IOERR_SHMLOCK", 5130, kCannotOpen},
    {"IOERR_SHMMAP", 5386, kCannotOpen},
    {"IOERR_SEEK", 5642, kCannotOpen},
    {"IOERR_DELETE_NOENT", 5898, kFail, Kind::NotWritten},
    {"IOERR_MMAP", 6154, kCannotOpen},
    {"IOERR_GETTEMPPATH", 6410, kFail, Kind::NotWritten},
    {"IOERR_CONVPATH", 6666, kCannotOpen},
    {"IOERR_VNODE", 6922, kCannotOpen},
    {"IOERR_AUTH", 7178, kPermission},
    {"IOERR_BEGIN_ATOMIC", 7434, kFail, Kind::NotWritten},
    {"IOERR_COMMIT_ATOMIC", 7690, kFail, Kind::NotWritten},
    {"IOERR_ROLLBACK_ATOMIC", 7946, kFail, Kind::NotWritten},
    {"IOERR_DATA", 8202, kCannotOpen},
    {"IOERR_CORRUPTFS", 8458, kCannotOpen},
    {"IOERR_IN_PAGE", 8714, kCannotOpen},
    {"CORRUPT_VTAB", 267, kCannotOpen},
    {"CORRUPT_SEQUENCE", 523, kCannotOpen},
    {"CORRUPT_INDEX", 779, kCannotOpen},
    {"CANTOPEN_NOTEMPDIR", 270, kCannotOpen},
    {"CANTOPEN_ISDIR", 526, kCannotOpen},
    {"CANTOPEN_FULLPATH", 782, kCannotOpen},
    {"CANTOPEN_CONVPATH", 1038, kCannotOpen},
    {"CANTOPEN_DIRTYWAL", 1294, kCannotOpen},
    {"CANTOPEN_SYMLINK", 1550, kCannotOpen},
    {"CONSTRAINT_CHECK", 275, kNoAccess},
    {"CONSTRAINT_COMMITHOOK", 531, kNoAccess},
    {"CONSTRAINT_FOREIGNKEY", 787, kNoAccess},
    {"CONSTRAINT_FUNCTION", 1043, kNoAccess},
    {"CONSTRAINT_NOTNULL", 1299, kNoAccess},
    {"CONSTRAINT_PRIMARYKEY", 1555, kNoAccess},
    {"CONSTRAINT_TRIGGER", 1811, kNoAccess},
    {"CONSTRAINT_UNIQUE", 2067, kNoAccess},
    {"CONSTRAINT_VTAB", 2323, kNoAccess},
    {"CONSTRAINT_ROWID", 2579, kNoAccess},
    {"CONSTRAINT_PINNED", 2835, kNoAccess},
    {"CONSTRAINT_DATATYPE", 3091, kNoAccess},
    {"AUTH_USER", 279, kPermission},
    {"NOTICE_RECOVER_WAL", 283, kFail},
    {"NOTICE_RECOVER_ROLLBACK", 539, kFail},
    {"WARNING_AUTOINDEX", 284, kFail},
};

void expectMeaning(const Code& each)
{
    const DatabaseFault fault = sqliteFault(each.code);
    EXPECT_EQ(fault.result, each.result) << each.name;
    EXPECT_EQ(fault.kind, each.kind) << each.name;
}

TEST(ResultCodes, EveryPrimaryCodeHasItsMeaning)
{
    std::set<int> seen;
    for (const Code& each : kPrimary) {
        expectMeaning(each);
        seen.insert(each.code);
    }
    for (int code = 1; code <= 28; ++code)
        EXPECT_TRUE(seen.contains(code)) << code;
}

TEST(ResultCodes, EveryExtendedCodeHasItsMeaning)
{
    for (const Code& each : kExtended)
        expectMeaning(each);
}

TEST(ResultCodes, AnExtendedCodeOfALaterVersionMeansWhatItsPrimaryOneDoes)
{
    for (const Code& each : kPrimary) {
        if (each.code <= 28) {
            EXPECT_EQ(sqliteFault(each.code | 200 << 8), (DatabaseFault{each.result, each.kind}))
                << each.name;
        }
    }
}

TEST(ResultCodes, WhatIsNoCodeOfTheDatabaseIsAFailure)
{
    // 0 is what a failure of Qt's own has; the others are none at all.
    for (const int code : {0, -1, 29, 99, 102, 255, 256, 100'000})
        EXPECT_EQ(sqliteFault(code), DatabaseFault{}) << code;
    EXPECT_EQ(DatabaseFault{}.result, kFail);
    EXPECT_EQ(DatabaseFault{}.kind, Kind::Other);
}

} // namespace
} // namespace condtree::test
