#include "Dialect.h"

#include "ConnectionUrl.h"
#include "SpConnect.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QVersionNumber>

namespace condtree {

namespace {

struct KnownCode {
    int code;
    HRESULT result;
};

// Of the extended result codes, which tell apart what the primary ones have in common.
constexpr KnownCode kExtendedCodes[] = {
    {8 | 4 << 8, SP_E_CANNOT_OPEN}, // READONLY_DBMOVED: the file was removed
};

// The primary result codes; what is not here is E_FAIL.
constexpr KnownCode kPrimaryCodes[] = {
    {1, SP_E_CANNOT_OPEN},        // ERROR: a table or column is not there
    {3, SP_E_PERMISSION},         // PERM
    {5, SP_E_LOCKED},             // BUSY: another connection
    {6, SP_E_LOCKED},             // LOCKED: another statement
    {7, E_OUTOFMEMORY},           // NOMEM
    {8, SP_E_PERMISSION},         // READONLY
    {10, SP_E_CANNOT_OPEN},       // IOERR
    {11, SP_E_CANNOT_OPEN},       // CORRUPT
    {14, SP_E_CANNOT_OPEN},       // CANTOPEN
    {19, SP_E_NO_ACCESS_TO_ITEM}, // CONSTRAINT
    {20, SP_E_NO_ACCESS_TO_ITEM}, // MISMATCH
    {23, SP_E_PERMISSION},        // AUTH
    {26, SP_E_CANNOT_OPEN},       // NOTADB
};

HRESULT resultOf(const QSqlError& error)
{
    const int code = error.nativeErrorCode().toInt();
    for (const KnownCode& known : kExtendedCodes) {
        if (known.code == code)
            return known.result;
    }
    for (const KnownCode& known : kPrimaryCodes) {
        if (known.code == (code & 0xff))
            return known.result;
    }
    return E_FAIL;
}

HRESULT resultOfOpening(const QSqlError& error, const ConnectionUrl& url)
{
    QFile file(url.path);
    if (QFileInfo(file).isFile() && !file.open(QIODevice::ReadOnly))
        return SP_E_PERMISSION; // for SQLite it is just a file that it cannot open
    return resultOf(error);
}

void configure(QSqlDatabase& handle, const ConnectionUrl& url)
{
    handle.setDatabaseName(url.path);
    handle.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(url.busyTimeout));
}

CString tableOptions(const CString& version)
{
    const bool hasStrict = QVersionNumber::fromString(version) >= QVersionNumber(3, 37);
    return hasStrict ? QStringLiteral(" STRICT") : QString();
}

// The schema of a file that somebody made may not run functions of its own; a damaged page is
// noticed when it is read rather than when it has confused something.
constexpr const char16_t* kOnOpen[] = {
    u"PRAGMA foreign_keys = ON",
    u"PRAGMA trusted_schema = OFF",
    u"PRAGMA cell_size_check = ON",
};

constexpr Dialect kSqlite = {
    u"QSQLITE",
    configure,
    kOnOpen,
    u"BEGIN",
    u"BEGIN IMMEDIATE",
    u"SELECT count(*) FROM sqlite_master WHERE name = coalesce(?, name)",
    u"SELECT sqlite_version()",
    tableOptions,
    // A text bound as UTF-16 loses a U+FEFF at its start, or has its bytes swapped by a U+FFFE
    // there; one read as UTF-16 has U+FFFD for U+FFFE and U+FFFF.
    u"CAST(%1 AS BLOB)",
    u"CAST(? AS TEXT)",
    resultOf,
    resultOfOpening,
};

} // namespace

const Dialect& sqliteDialect()
{
    return kSqlite;
}

} // namespace condtree
