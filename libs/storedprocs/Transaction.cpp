#include "Transaction.h"

#include "SpConnect.h"

#include <QStringDecoder>

#include <limits>

namespace condtree {

Transaction::Transaction(Database& database, Access access)
    : m_database(database)
{
    const Dialect& dialect = database.dialect();
    m_isOpen = run(access == Access::Write ? dialect.beginWrite : dialect.beginRead);
}

Transaction::~Transaction()
{
    rollBack();
}

void Transaction::fail(HRESULT result)
{
    fail(DatabaseFault{result});
}

void Transaction::fail(const QSqlError& error, const char* during)
{
    fail(m_database.logged(error, during));
}

void Transaction::fail(const DatabaseFault& fault)
{
    if (SUCCEEDED(m_fault.result))
        m_fault = fault;
}

HRESULT Transaction::commit()
{
    if (isGood() && run(u"COMMIT"))
        m_isOpen = false;
    rollBack();
    return m_fault.result;
}

bool Transaction::run(const char16_t* sql)
{
    QSqlQuery query(m_database.handle());
    if (query.exec(QStringView(sql).toString()))
        return true;
    fail(query.lastError(), "the transaction");
    return false;
}

void Transaction::rollBack()
{
    if (!m_isOpen)
        return;
    m_isOpen = false;
    // Fails, without harm, where the database has rolled back by itself.
    QSqlQuery(m_database.handle()).exec(QStringLiteral("ROLLBACK"));
}

Statement::Statement(Transaction& transaction, const CString& sql)
    : m_transaction(transaction)
    , m_query(transaction.database().handle())
{
    m_query.setForwardOnly(true);
    if (transaction.isGood() && !m_query.prepare(sql))
        transaction.fail(m_query.lastError(), "preparing a statement");
}

Statement::Statement(Transaction& transaction, const char16_t* sql)
    : Statement(transaction, QStringView(sql).toString())
{
}

bool Statement::exec(std::initializer_list<QVariant> values)
{
    if (!m_transaction.isGood())
        return false;
    int position = 0;
    for (const QVariant& value : values)
        m_query.bindValue(position++, value);
    if (!m_query.exec())
        m_transaction.fail(m_query.lastError(), "a statement");
    return m_transaction.isGood();
}

bool Statement::next()
{
    if (!m_transaction.isGood())
        return false;
    if (m_query.next())
        return true;
    if (m_query.lastError().isValid())
        m_transaction.fail(m_query.lastError(), "reading");
    return false;
}

void Statement::failOnColumn(int column, const char* why)
{
    if (!m_transaction.isGood())
        return;
    qCWarning(logStoredProcs) << "column" << column << "of" << m_query.lastQuery() << why;
    m_transaction.fail(SP_E_NO_ACCESS_TO_ITEM);
}

std::int64_t Statement::numberWithin(int column, std::int64_t lowest, std::int64_t highest)
{
    bool isNumber = false;
    const std::int64_t number = m_query.value(column).toLongLong(&isNumber);
    if (isNumber && number >= lowest && number <= highest)
        return number;
    failOnColumn(column, "holds no number that fits");
    return 0;
}

LONG Statement::number(int column)
{
    using Limits = std::numeric_limits<LONG>;
    return static_cast<LONG>(numberWithin(column, Limits::min(), Limits::max()));
}

std::int64_t Statement::bigNumber(int column)
{
    using Limits = std::numeric_limits<std::int64_t>;
    return numberWithin(column, Limits::min(), Limits::max());
}

DWORD Statement::flags(int column)
{
    return static_cast<DWORD>(numberWithin(column, 0, std::numeric_limits<DWORD>::max()));
}

CString Statement::text(int column)
{
    return name(column, std::numeric_limits<qsizetype>::max());
}

CString Statement::name(int column, qsizetype longest)
{
    const QVariant value = m_query.value(column);
    if (value.typeId() != QMetaType::QString)
        failOnColumn(column, "holds no text");
    else if (CString text = value.toString(); text.size() <= longest)
        return text;
    else
        failOnColumn(column, "holds a text that is too long");
    return {};
}

CString Statement::exactText(int column)
{
    const QVariant value = m_query.value(column);
    // Statelessly and with its first character, even if it is U+FEFF.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless
                                                     | QStringDecoder::Flag::ConvertInitialBom);
    CString text = decoder(value.toByteArray());
    if (value.typeId() == QMetaType::QByteArray && !decoder.hasError())
        return text;
    failOnColumn(column, "holds no text");
    return {};
}

QVariant exactTextValue(const CString& text)
{
    return text.isEmpty() ? QByteArray("") : text.toUtf8();
}

QVariant textValue(const CString& text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace condtree
