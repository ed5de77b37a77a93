#include "Database.h"

#include "ConnectionUrl.h"
#include "SpConnect.h"

#include <QCoreApplication>
#include <QSqlQuery>
#include <QThread>
#include <QUuid>

namespace condtree {

Q_LOGGING_CATEGORY(logStoredProcs, "condtree.storedprocs")

Database::Database(const Dialect& dialect)
    : m_dialect(dialect)
    , m_thread(QThread::currentThread())
    , m_name(QStringLiteral("condtree-storedprocs-") + QUuid::createUuid().toString(QUuid::Id128))
{
}

Database::~Database()
{
    m_handle.close();
    m_handle = QSqlDatabase(); // the name can only be taken away when no handle is left
    if (QSqlDatabase::contains(m_name))
        QSqlDatabase::removeDatabase(m_name);
}

HRESULT Database::open(const ConnectionUrl& url)
{
    const QString driver = QStringView(m_dialect.driver).toString();
    if (QCoreApplication::instance() == nullptr || !QSqlDatabase::isDriverAvailable(driver)) {
        qCWarning(logStoredProcs) << "the database driver is missing:" << driver;
        return SP_E_NOT_INITIALISED;
    }
    m_handle = QSqlDatabase::addDatabase(driver, m_name);
    m_dialect.configure(m_handle, url);
    if (!m_handle.open()) {
        const QSqlError error = m_handle.lastError();
        qCWarning(logStoredProcs) << "opening failed:" << error.text();
        return m_dialect.resultOfOpening(error, url);
    }
    return runOnOpen();
}

HRESULT Database::runOnOpen()
{
    for (const char16_t* sql : m_dialect.onOpen) {
        QSqlQuery query(m_handle);
        if (!query.exec(QStringView(sql).toString()))
            return logged(query.lastError(), "opening").result;
    }
    return S_OK;
}

bool Database::isOnOwnThread() const
{
    return QThread::currentThread() == m_thread;
}

DatabaseFault Database::logged(const QSqlError& error, const char* during) const
{
    qCWarning(logStoredProcs).nospace()
        << during << " failed: " << error.text() << " (" << error.nativeErrorCode() << ')';
    return m_dialect.faultOf(error);
}

} // namespace condtree
