#pragma once

#include "DatabaseFault.h"

#include <span>

class QSqlDatabase;
class QSqlError;

namespace condtree {

struct ConnectionUrl;

/// What differs from one kind of database to the next; everything else is common SQL. Its
/// statements are constant texts.
struct Dialect {
    /// Qt's name of the driver.
    const char16_t* driver;
    /// Where and how to connect, told to a handle that is not open yet.
    void (*configure)(QSqlDatabase& handle, const ConnectionUrl& url);
    /// Run once behind opening.
    std::span<const char16_t* const> onOpen;
    const char16_t* beginRead;
    /// Takes the right to write at once, so that a transaction never finds out at its end.
    const char16_t* beginWrite;
    /// A row for everything that the database holds: its name, and whether it is a table.
    const char16_t* listContents;
    /// A row for each column of a table: its name. No row where there is no such table.
    const char16_t* listColumns;
    /// One text: the server's version.
    const char16_t* serverVersion;
    /// What stands behind the closing bracket of a table in that version.
    CString (*tableOptions)(const CString& version);
    /// Have the database refuse control characters in %COLUMN% of %TABLE% from now on.
    std::span<const char16_t* const> refuseControls;
    /// How a statement reads a column (%1) and writes a placeholder so that every text comes
    /// through as its UTF-8 bytes; drivers' own ways with texts lose some characters.
    const char16_t* readExactly;
    const char16_t* writeExactly;
    /// What a failed statement means to callers.
    DatabaseFault (*faultOf)(const QSqlError& error);
    /// What a failed opening means to callers.
    HRESULT (*resultOfOpening)(const QSqlError& error, const ConnectionUrl& url);
};

[[nodiscard]] const Dialect& sqliteDialect();

} // namespace condtree
