#include "Dialect.h"

#include "ConnectionUrl.h"
#include "SpConnect.h"
#include "SqliteFaults.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QVersionNumber>

namespace condtree {

namespace {

DatabaseFault faultOf(const QSqlError& error)
{
    return sqliteFault(error.nativeErrorCode().toInt());
}

HRESULT resultOfOpening(const QSqlError& error, const ConnectionUrl& url)
{
    QFile file(url.path);
    if (QFileInfo(file).isFile() && !file.open(QIODevice::ReadOnly))
        return SP_E_PERMISSION; // for SQLite it is just a file that it cannot open
    return faultOf(error).result;
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

// A check cannot be added to a table, but a trigger can; it leaves alone what is there already.
// GLOB ends at U+0000, which therefore is looked for by itself.
constexpr const char16_t* kRefuseControls[] = {
    uR"(CREATE TRIGGER %TABLE%_%COLUMN%_insert BEFORE INSERT ON %TABLE%
        WHEN NEW.%COLUMN% GLOB '*[' || char(1) || '-' || char(31) || char(127) || ']*'
            OR instr(NEW.%COLUMN%, char(0)) > 0
        BEGIN SELECT RAISE(ABORT, '%TABLE%.%COLUMN% may not hold control characters'); END)",
    uR"(CREATE TRIGGER %TABLE%_%COLUMN%_update BEFORE UPDATE OF %COLUMN% ON %TABLE%
        WHEN NEW.%COLUMN% IS NOT OLD.%COLUMN%
            AND (NEW.%COLUMN% GLOB '*[' || char(1) || '-' || char(31) || char(127) || ']*'
            OR instr(NEW.%COLUMN%, char(0)) > 0)
        BEGIN SELECT RAISE(ABORT, '%TABLE%.%COLUMN% may not hold control characters'); END)",
};

constexpr Dialect kSqlite = {
    u"QSQLITE",
    configure,
    kOnOpen,
    u"BEGIN",
    u"BEGIN IMMEDIATE",
    u"SELECT name, type = 'table' FROM sqlite_master",
    u"SELECT name FROM pragma_table_info(?)",
    u"SELECT sqlite_version()",
    tableOptions,
    kRefuseControls,
    // A text bound as UTF-16 loses a U+FEFF at its start, or has its bytes swapped by a U+FFFE
    // there; one read as UTF-16 has U+FFFD for U+FFFE and U+FFFF.
    u"CAST(%1 AS BLOB)",
    u"CAST(? AS TEXT)",
    faultOf,
    resultOfOpening,
};

} // namespace

const Dialect& sqliteDialect()
{
    return kSqlite;
}

} // namespace condtree
