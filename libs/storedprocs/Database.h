#pragma once

#include "Dialect.h"

#include <QLoggingCategory>
#include <QSqlDatabase>
#include <QSqlError>

class QThread;

namespace condtree {

Q_DECLARE_LOGGING_CATEGORY(logStoredProcs)

/// A connection to a database under a name of its own; it belongs to the thread that made it. All
/// statements go through a Transaction.
class Database final {
public:
    explicit Database(const Dialect& dialect);
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;
    ~Database();

    /// Opens the connection. To be called once, before anything else.
    [[nodiscard]] HRESULT open(const ConnectionUrl& url);

    [[nodiscard]] const Dialect& dialect() const { return m_dialect; }
    [[nodiscard]] const QSqlDatabase& handle() const { return m_handle; }
    [[nodiscard]] bool isOnOwnThread() const;

    /// Writes what the database said into the log; gives what it means.
    [[nodiscard]] DatabaseFault logged(const QSqlError& error, const char* during) const;

private:
    HRESULT runOnOpen();

    const Dialect& m_dialect;
    const QThread* m_thread;
    CString m_name;
    QSqlDatabase m_handle;
};

} // namespace condtree
