#pragma once

#include "Database.h"

#include <condtree/platform/StoredProcs.h>

// The procedures that every data-access library offers. A list is appended to only when all of it
// was read; a name that is longer than its record holds fails the call with 0x80040207.
namespace condtree {

/// A user by login, case ignored; an exact match goes before others, then the lowest id. S_FALSE
/// when there is no such user.
[[nodiscard]] HRESULT findUser(Database& database, const CString& name, LONG& id, CString& login);

/// The user with the lowest id; S_FALSE when there is none.
[[nodiscard]] HRESULT findFirstUser(Database& database, LONG& id, CString& login);

class CardVariableProc final : public SpUpdateVariableDefinition {
public:
    explicit CardVariableProc(Database& database);
    HRESULT mhGetVariables(Lst<VarDef*>& variables, bool) override;

private:
    Database& m_database;
};

class WorkflowProc final : public SpWorkflow {
public:
    explicit WorkflowProc(Database& database);
    HRESULT mhGetAllStatesInAllWorkflows(DWORD, Lst<SpWorkflowState*>& states) override;

private:
    Database& m_database;
};

class UserMgrProc final : public SpUserMgr {
public:
    explicit UserMgrProc(Database& database);
    HRESULT mhGetUsers(Lst<SpuLightData*>& users, LONG, bool) override;
    HRESULT mhGetGroups(Lst<SpuLightData*>& groups) override;

private:
    Database& m_database;
};

class UserProc final : public SpUser {
public:
    explicit UserProc(Database& database);
    /// 0x80040207 when there is no such user, E_POINTER for null; id is untouched then.
    HRESULT mhGetUserID(const char16_t* name, LONG& id) override;

private:
    Database& m_database;
};

class SettingsProc final : public SpSettings {
public:
    explicit SettingsProc(Database& database);
    /// 0x80040207 when there is no such user; settings is untouched on failure.
    HRESULT mhGetUserSettings(LONG userId, SpSettingsData& settings, bool) override;

private:
    Database& m_database;
};

class DocTypeProc final : public SpDocType {
public:
    explicit DocTypeProc(Database& database);
    HRESULT mhGetDocTypes(Lst<DocType*>& types) override;

private:
    Database& m_database;
};

} // namespace condtree
