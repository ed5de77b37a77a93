#include "ReferenceProcs.h"

#include "Answer.h"
#include "SpConnect.h"
#include "Transaction.h"

#include <condtree/platform/NativeText.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace condtree {

namespace {

template <std::size_t N>
void copyName(Statement& row, int column, char16_t (&target)[N])
{
    const CString name = row.name(column, N - 1); // records are zeroed: the null is there
    const auto units = QStringView(name).utf16();
    std::copy(units, units + name.size(), target);
}

template <class Record>
struct DeleteRecord {
    void operator()(Record* record) const { SpDelete(record); }
};

/// Moves the records of a list behind those of another; when the memory is exhausted, none of them.
template <class Record>
void moveAll(AutoLst<Lst<Record*>>& records, Lst<Record*>& target)
{
    LONG moved = 0;
    try {
        for (; !records.IsEmpty(); ++moved) {
            POSITION head = records.GetHeadPosition();
            target.AddTail(records.GetNext(head));
            records.RemoveHead();
        }
    } catch (...) {
        for (; moved > 0; --moved)
            SpDelete(target.RemoveTail());
        throw;
    }
}

/// Appends a record for each row of a query: all of them, or none.
template <class Record, class Fill>
HRESULT appendAll(Database& database, const char16_t* sql, Lst<Record*>& target, Fill fill)
{
    return answer(database, [&] {
        AutoLst<Lst<Record*>> records;
        Transaction transaction(database, Transaction::Access::Read);
        Statement row(transaction, sql);
        row.exec();
        while (row.next()) {
            std::unique_ptr<Record, DeleteRecord<Record>> record(SpNew<Record>());
            fill(row, *record);
            records.AddTail(record.get());
            (void)record.release(); // the list owns it now
        }
        const HRESULT hr = transaction.commit();
        if (SUCCEEDED(hr))
            moveAll(records, target);
        return hr;
    });
}

struct UserRow {
    LONG id = 0;
    CString login;
};

} // namespace

HRESULT findUser(Database& database, const CString& name, LONG& id, CString& login)
{
    // Not all servers fold case as we do, so the comparison is ours.
    std::vector<UserRow> matches;
    Transaction transaction(database, Transaction::Access::Read);
    Statement row(transaction, u"SELECT id, login FROM users ORDER BY id");
    row.exec();
    while (row.next()) {
        const CString candidate = row.text(1);
        if (equalsNoCase(candidate, name))
            matches.push_back({row.number(0), candidate});
    }
    if (const HRESULT hr = transaction.commit(); FAILED(hr))
        return hr;
    if (matches.empty())
        return S_FALSE;
    const auto exact = std::find_if(matches.begin(), matches.end(),
                                    [&](const UserRow& user) { return user.login == name; });
    const UserRow& found = exact != matches.end() ? *exact : matches.front();
    id = found.id;
    login = found.login;
    return S_OK;
}

HRESULT findFirstUser(Database& database, LONG& id, CString& login)
{
    Transaction transaction(database, Transaction::Access::Read);
    Statement row(transaction, u"SELECT id, login FROM users ORDER BY id LIMIT 1");
    row.exec();
    UserRow found;
    const bool isFound = row.next();
    if (isFound)
        found = {row.number(0), row.text(1)};
    row.finish();
    if (const HRESULT hr = transaction.commit(); FAILED(hr))
        return hr;
    if (!isFound)
        return S_FALSE;
    id = found.id;
    login = found.login;
    return S_OK;
}

CardVariableProc::CardVariableProc(Database& database)
    : m_database(database)
{
}

HRESULT CardVariableProc::mhGetVariables(Lst<VarDef*>& variables, bool)
{
    return appendAll(m_database, u"SELECT id, type, name FROM card_variables ORDER BY id",
                     variables, [](Statement& row, VarDef& variable) {
                         variable.mlId = row.number(0);
                         variable.mlType = row.number(1);
                         copyName(row, 2, variable.mName);
                     });
}

WorkflowProc::WorkflowProc(Database& database)
    : m_database(database)
{
}

HRESULT WorkflowProc::mhGetAllStatesInAllWorkflows(DWORD, Lst<SpWorkflowState*>& states)
{
    constexpr auto sql = u"SELECT s.id, s.name, s.second_name, w.name, s.flags FROM states s "
                         u"JOIN workflows w ON w.id = s.workflow_id ORDER BY w.id, s.id";
    return appendAll(m_database, sql, states, [](Statement& row, SpWorkflowState& state) {
        state.mlId = row.number(0);
        state.moName = row.text(1);
        state.moSecondName = row.text(2);
        state.moWorkflowName = row.text(3);
        state.mlFlags = row.flags(4);
    });
}

UserMgrProc::UserMgrProc(Database& database)
    : m_database(database)
{
}

HRESULT UserMgrProc::mhGetUsers(Lst<SpuLightData*>& users, LONG, bool)
{
    return appendAll(m_database, u"SELECT id, login, full_name FROM users ORDER BY id", users,
                     [](Statement& row, SpuLightData& user) {
                         user.mlId = row.number(0);
                         copyName(row, 1, user.mName);
                         copyName(row, 2, user.mSecondName);
                     });
}

HRESULT UserMgrProc::mhGetGroups(Lst<SpuLightData*>& groups)
{
    return appendAll(m_database, u"SELECT id, name FROM user_groups ORDER BY id", groups,
                     [](Statement& row, SpuLightData& group) {
                         group.mlId = row.number(0);
                         copyName(row, 1, group.mName);
                     });
}

UserProc::UserProc(Database& database)
    : m_database(database)
{
}

HRESULT UserProc::mhGetUserID(const char16_t* name, LONG& id)
{
    return answer(m_database, [&] {
        if (name == nullptr)
            return E_POINTER;
        CString login;
        const HRESULT hr = findUser(m_database, QStringView(name).toString(), id, login);
        return hr == S_FALSE ? SP_E_NO_ACCESS_TO_ITEM : hr;
    });
}

SettingsProc::SettingsProc(Database& database)
    : m_database(database)
{
}

HRESULT SettingsProc::mhGetUserSettings(LONG userId, SpSettingsData& settings, bool)
{
    return answer(m_database, [&] {
        Transaction transaction(m_database, Transaction::Access::Read);
        Statement user(transaction, u"SELECT id FROM users WHERE id = ?");
        user.exec({userId});
        if (!user.next())
            transaction.fail(SP_E_NO_ACCESS_TO_ITEM);
        user.finish();
        std::vector<std::pair<LONG, CString>> entries;
        Statement row(transaction,
                      u"SELECT entry, value FROM user_settings WHERE user_id = ? ORDER BY entry");
        row.exec({userId});
        while (row.next())
            entries.emplace_back(row.number(0), row.text(1));
        const HRESULT hr = transaction.commit();
        if (SUCCEEDED(hr)) {
            for (const auto& [entry, value] : entries)
                settings.mvSet(entry, value);
        }
        return hr;
    });
}

DocTypeProc::DocTypeProc(Database& database)
    : m_database(database)
{
}

HRESULT DocTypeProc::mhGetDocTypes(Lst<DocType*>& types)
{
    return appendAll(m_database, u"SELECT name, second_name FROM document_types ORDER BY id", types,
                     [](Statement& row, DocType& type) {
                         type.moName = row.text(0);
                         type.moSecond = row.text(1);
                     });
}

} // namespace condtree
