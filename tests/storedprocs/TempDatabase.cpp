#include "TempDatabase.h"

#include <condtree/storedprocs/SpConnect.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QUuid>
#include <QVariant>

namespace condtree::test {

RawConnection::RawConnection(const QString& path)
    : m_name(QUuid::createUuid().toString())
    , m_handle(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name))
{
    m_handle.setDatabaseName(path);
    m_handle.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    EXPECT_TRUE(m_handle.open());
}

RawConnection::~RawConnection()
{
    m_handle.close();
    m_handle = QSqlDatabase();
    QSqlDatabase::removeDatabase(m_name);
}

bool RawConnection::run(const QString& sql)
{
    return QSqlQuery(m_handle).exec(sql);
}

QStringList RawConnection::rows(const QString& sql)
{
    QStringList result;
    QSqlQuery query(m_handle);
    EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
    while (query.next()) {
        QStringList columns;
        for (int column = 0; column < query.record().count(); ++column)
            columns.append(query.value(column).toString());
        result.append(columns.join(u'|'));
    }
    return result;
}

QString TempDatabase::url() const
{
    return SpSqliteUrl(path()) + QStringLiteral("?busy_timeout=20");
}

ManagerPtr TempDatabase::connected(const QString& user) const
{
    HRESULT hr = E_FAIL;
    ManagerPtr manager(SpConnect(url(), user, &hr));
    EXPECT_EQ(hr, S_OK);
    return manager;
}

void TempDatabase::run(const QStringList& statements) const
{
    RawConnection connection(path());
    for (const QString& sql : statements)
        EXPECT_TRUE(connection.run(sql)) << sql.toStdString();
}

QStringList TempDatabase::rows(const QString& sql) const
{
    return RawConnection(path()).rows(sql);
}

QString TempDatabase::value(const QString& sql) const
{
    return rows(sql).value(0);
}

QStringList TempDatabase::everything() const
{
    QStringList result;
    RawConnection connection(path());
    for (const QString& table : connection.rows(
             QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"))) {
        result.append(table);
        result += connection.rows(QStringLiteral("SELECT * FROM %1 ORDER BY 1, 2").arg(table));
    }
    return result;
}

QByteArray TempDatabase::bytes() const
{
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void TempDatabase::setBytes(const QByteArray& bytes) const
{
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
}

QString toText(const std::vector<SpConditionRecord>& records)
{
    QString result;
    for (const SpConditionRecord& record : records) {
        result += QStringLiteral("%1 %2 [").arg(record.rowKind).arg(record.condType)
                  + record.name.str() + u'|' + record.extra.str() + u'|' + record.value.str()
                  + QStringLiteral("] %1 %2\n").arg(record.argType).arg(record.op);
    }
    return result;
}

} // namespace condtree::test
