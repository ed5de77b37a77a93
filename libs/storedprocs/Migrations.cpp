#include "Migrations.h"

#include "Schema.h"
#include "SpConnect.h"
#include "Transaction.h"

#include <algorithm>
#include <vector>

namespace condtree {

namespace {

constexpr QStringView kVersionTable = u"schema_version";

struct Contents {
    bool isEmpty = true;
    std::vector<CString> tables;
};

Contents contentsOf(Transaction& transaction)
{
    Contents contents;
    Statement row(transaction, transaction.database().dialect().listContents);
    row.exec();
    while (row.next()) {
        contents.isEmpty = false;
        if (row.number(1) != 0)
            contents.tables.push_back(row.text(0));
    }
    return contents;
}

bool contains(const std::vector<CString>& names, QStringView name)
{
    return std::any_of(names.begin(), names.end(), [&](const CString& each) {
        return name.compare(each, Qt::CaseInsensitive) == 0;
    });
}

/// Whether a table of that name is the one in which we keep the version; other programs have one,
/// too.
bool hasOurColumns(Transaction& transaction)
{
    std::vector<CString> columns;
    Statement row(transaction, transaction.database().dialect().listColumns);
    row.exec({kVersionTable.toString()});
    while (row.next())
        columns.push_back(row.text(0));
    return contains(columns, u"id") && contains(columns, u"product")
           && contains(columns, u"version");
}

/// Fails the transaction unless a database of that version has all its tables.
void requireTables(Transaction& transaction, const Contents& contents, LONG version)
{
    for (const SchemaStep& step : schemaSteps().first(static_cast<std::size_t>(version))) {
        for (const char16_t* table : step.tables) {
            if (contains(contents.tables, table))
                continue;
            qCWarning(logStoredProcs) << "the database has lost its table" << QStringView(table);
            transaction.fail(SP_E_CANNOT_OPEN);
        }
    }
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

LONG readVersion(Transaction& transaction)
{
    Statement row(transaction,
                  u"SELECT version FROM schema_version WHERE id = 1 AND product = 'condtree'");
    return row.exec() && row.next() ? row.number(0) : 0;
}

/// The version of the schema, whose tables are all there; 0 for an empty database and on failure.
LONG schemaVersion(Transaction& transaction)
{
    const Contents contents = contentsOf(transaction);
    if (contents.isEmpty || !transaction.isGood())
        return 0;
    if (!contains(contents.tables, kVersionTable) || !hasOurColumns(transaction)) {
        if (transaction.isGood())
            qCWarning(logStoredProcs) << "the database holds tables that are not ours";
        transaction.fail(SP_E_CANNOT_OPEN);
        return 0;
    }
    const LONG version = readVersion(transaction);
    if (!transaction.isGood() || !isKnown(transaction, version))
        return 0;
    requireTables(transaction, contents, version);
    return transaction.isGood() ? version : 0;
}

CString tableOptions(Transaction& transaction)
{
    const Dialect& dialect = transaction.database().dialect();
    Statement statement(transaction, dialect.serverVersion);
    return statement.exec() && statement.next() ? dialect.tableOptions(statement.text(0))
                                                : QString();
}

void applyStep(Transaction& transaction, const SchemaStep& step, const CString& options)
{
    for (const char16_t* sql : step.statements) {
        CString text = QStringView(sql).toString();
        text.replace(QLatin1String("%OPTIONS%"), options);
        Statement(transaction, text).exec();
    }
    for (const NameColumn& name : step.lineNames) {
        for (const char16_t* sql : transaction.database().dialect().refuseControls) {
            CString text = QStringView(sql).toString();
            text.replace(QLatin1String("%TABLE%"), QStringView(name.table).toString());
            text.replace(QLatin1String("%COLUMN%"), QStringView(name.column).toString());
            Statement(transaction, text).exec();
        }
    }
}

void applySteps(Transaction& transaction, LONG from)
{
    const auto steps = schemaSteps();
    const CString options = tableOptions(transaction);
    for (const SchemaStep& step : steps.subspan(static_cast<std::size_t>(from)))
        applyStep(transaction, step, options);
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
