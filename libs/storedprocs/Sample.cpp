#include "SpSample.h"

#include "Answer.h"
#include "ConnectionUrl.h"
#include "Migrations.h"
#include "SampleTables.h"
#include "Transaction.h"

namespace condtree {

namespace {

QVariant text(const char16_t* constant)
{
    return textValue(QStringView(constant).toString());
}

/// Whether there is anything beyond what a new database has, its one user.
bool hasContent(Transaction& transaction)
{
    Statement row(transaction, u"SELECT (SELECT count(*) FROM users "
                               u"WHERE id <> 1 OR login COLLATE BINARY <> 'admin' "
                               u"OR full_name <> 'Administrator') + "
                               u"(SELECT count(*) <> 1 FROM users) + "
                               u"(SELECT count(*) FROM card_variables) + "
                               u"(SELECT count(*) FROM workflows) + "
                               u"(SELECT count(*) FROM user_groups) + "
                               u"(SELECT count(*) FROM user_settings) + "
                               u"(SELECT count(*) FROM document_types)");
    return row.exec() && row.next() && row.bigNumber(0) > 0;
}

void addVariables(Transaction& transaction)
{
    Statement insert(transaction, u"INSERT INTO card_variables (id, name, type) VALUES (?, ?, ?)");
    LONG id = 0;
    for (const sample::Variable& variable : sample::variables())
        insert.exec({++id, text(variable.name), static_cast<LONG>(variable.type)});
}

void addWorkflows(Transaction& transaction)
{
    Statement workflow(transaction, u"INSERT INTO workflows (id, name) VALUES (?, ?)");
    Statement state(transaction, u"INSERT INTO states (id, workflow_id, name, second_name, flags) "
                                 u"VALUES (?, ?, ?, ?, ?)");
    LONG id = 0;
    for (const sample::Workflow& each : sample::workflows()) {
        workflow.exec({++id, text(each.name)});
        for (const sample::State& member : each.states)
            state.exec({member.id, id, text(member.name), text(member.secondName), member.flags});
    }
}

void addGroups(Transaction& transaction)
{
    Statement insert(transaction, u"INSERT INTO user_groups (id, name) VALUES (?, ?)");
    LONG id = 0;
    for (const char16_t* name : sample::groups())
        insert.exec({++id, text(name)});
}

void addMemberships(Transaction& transaction, LONG userId, unsigned groups)
{
    Statement insert(transaction, u"INSERT INTO group_members (group_id, user_id) VALUES (?, ?)");
    for (LONG group = 1; group <= static_cast<LONG>(sample::groups().size()); ++group) {
        if ((groups >> static_cast<unsigned>(group)) & 1U)
            insert.exec({group, userId});
    }
}

void addSetting(Transaction& transaction, LONG userId, LONG entry, const char16_t* value)
{
    Statement(transaction, u"INSERT INTO user_settings (user_id, entry, value) VALUES (?, ?, ?)")
        .exec({userId, entry, text(value)});
}

void addUsers(Transaction& transaction)
{
    Statement(transaction, u"DELETE FROM users").exec(); // the first of ours takes its place
    Statement insert(transaction, u"INSERT INTO users (id, login, full_name) VALUES (?, ?, ?)");
    LONG id = 0;
    for (const sample::User& user : sample::users()) {
        insert.exec({++id, text(user.login), text(user.fullName)});
        addMemberships(transaction, id, user.groups);
        if (user.showsFullNames != nullptr)
            addSetting(transaction, id, sample::kShowsFullNames, user.showsFullNames);
    }
    for (const sample::Setting& setting : sample::settings())
        addSetting(transaction, setting.userId, setting.entry, setting.value);
}

void addDocumentTypes(Transaction& transaction)
{
    Statement insert(transaction,
                     u"INSERT INTO document_types (id, name, second_name) VALUES (?, ?, ?)");
    LONG id = 0;
    for (const sample::DocumentType& type : sample::documentTypes())
        insert.exec({++id, text(type.name), text(type.secondName)});
}

void addRecords(Transaction& transaction, LONG transitionId,
                std::span<const sample::Record> records)
{
    Statement insert(
        transaction,
        u"INSERT INTO condition_records (transition_id, position, row_kind, cond_type, "
        u"name, extra, value, arg_type, operator) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    LONG position = 0;
    for (const sample::Record& record : records) {
        insert.exec({transitionId, position++, record.rowKind, record.condType, text(record.name),
                     text(record.extra), text(record.value), record.argType, record.op});
    }
}

void addTransitions(Transaction& transaction)
{
    Statement insert(transaction,
                     u"INSERT INTO transitions (id, workflow_id, name, from_state_id, to_state_id, "
                     u"changed_by, changed_at) VALUES (?, ?, ?, ?, ?, ?, ?)");
    LONG id = 0;
    for (const sample::Transition& each : sample::transitions()) {
        insert.exec({++id, each.workflowId, text(each.name), each.fromState, each.toState,
                     text(each.changedBy), text(each.changedAt)});
        addRecords(transaction, id, each.records);
    }
}

HRESULT fill(Database& database)
{
    {
        Transaction reading(database, Transaction::Access::Read); // it may be read-only
        if (hasContent(reading))
            return S_FALSE;
        if (const HRESULT hr = reading.commit(); FAILED(hr))
            return hr;
    }
    Transaction transaction(database, Transaction::Access::Write);
    if (hasContent(transaction))
        return S_FALSE; // another process was faster
    addVariables(transaction);
    addWorkflows(transaction);
    addGroups(transaction);
    addUsers(transaction);
    addDocumentTypes(transaction);
    addTransitions(transaction);
    return transaction.commit();
}

} // namespace

HRESULT SpMakeSampleDatabase(const CString& url)
{
    ConnectionUrl place;
    if (const HRESULT hr = parseConnectionUrl(url, place); FAILED(hr))
        return hr;
    Database database(sqliteDialect());
    return answer(database, [&] {
        HRESULT hr = database.open(place);
        if (SUCCEEDED(hr))
            hr = migrate(database);
        return SUCCEEDED(hr) ? fill(database) : hr;
    });
}

} // namespace condtree
