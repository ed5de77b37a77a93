#include "Migrations.h"

#include "Schema.h"
#include "SpConnect.h"
#include "Transaction.h"

namespace condtree {

namespace {

LONG tableCount(Transaction& transaction, const QVariant& name)
{
    Statement statement(transaction, transaction.database().dialect().countTables);
    return statement.exec({name}) && statement.next() ? statement.number(0) : 0;
}

/// Whether a version can be worked with; fails the transaction otherwise.
bool isKnown(Transaction& transaction, LONG version)
{
    const auto newest = static_cast<LONG>(schemaSteps().size());
    if (version >= 1 && version <= newest)
        return true;
    qCWarning(logStoredProcs) << "the database has schema version" << version
                              << "but this library knows 1 to" << newest;
    transaction.fail(version > newest ? SP_E_NOT_INITIALISED : SP_E_CANNOT_OPEN);
    return false;
}

/// The version of the schema; 0 for an empty database and on failure.
LONG schemaVersion(Transaction& transaction)
{
    if (tableCount(transaction, QStringLiteral("schema_version")) > 0) {
        Statement statement(
            transaction,
            u"SELECT version FROM schema_version WHERE id = 1 AND product = 'condtree'");
        const LONG version = statement.exec() && statement.next() ? statement.number(0) : 0;
        return transaction.isGood() && isKnown(transaction, version) ? version : 0;
    }
    if (tableCount(transaction, QVariant()) > 0) {
        qCWarning(logStoredProcs) << "the database holds tables that are not ours";
        transaction.fail(SP_E_CANNOT_OPEN);
    }
    return 0;
}

CString tableOptions(Transaction& transaction)
{
    const Dialect& dialect = transaction.database().dialect();
    Statement statement(transaction, dialect.serverVersion);
    return statement.exec() && statement.next() ? dialect.tableOptions(statement.text(0))
                                                : QString();
}

void applySteps(Transaction& transaction, LONG from)
{
    const auto steps = schemaSteps();
    const CString options = tableOptions(transaction);
    for (const SchemaStep& step : steps.subspan(static_cast<std::size_t>(from))) {
        for (const char16_t* sql : step) {
            CString text = QStringView(sql).toString();
            text.replace(QLatin1String("%OPTIONS%"), options);
            Statement(transaction, text).exec();
        }
    }
    Statement version(transaction, u"UPDATE schema_version SET version = ? WHERE id = 1");
    version.exec({static_cast<LONG>(steps.size())});
}

} // namespace

HRESULT migrate(Database& database)
{
    LONG version = 0;
    {
        Transaction reading(database, Transaction::Access::Read);
        version = schemaVersion(reading);
        if (const HRESULT hr = reading.commit(); FAILED(hr))
            return hr;
    }
    const auto newest = static_cast<LONG>(schemaSteps().size());
    if (version == newest)
        return S_OK;
    Transaction writing(database, Transaction::Access::Write);
    version = schemaVersion(writing); // another connection may have been faster
    if (writing.isGood() && version < newest)
        applySteps(writing, version);
    return writing.commit();
}

} // namespace condtree
