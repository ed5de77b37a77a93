#include "support/FakeLibrary.h"

#include <algorithm>

namespace condtree::test {

namespace {

template <std::size_t N>
void copyName(char16_t (&target)[N], const CString& name)
{
    const auto length = std::min(N, static_cast<std::size_t>(name.size()));
    std::copy_n(reinterpret_cast<const char16_t*>(name.utf16()), length, target);
}

VarDef* recordOf(const FakeLibrary::Variable& variable)
{
    auto* record = SpNew<VarDef>();
    record->mlId = variable.id;
    record->mlType = variable.type;
    copyName(record->mName, variable.name);
    return record;
}

SpuLightData* recordOf(const FakeLibrary::Person& person)
{
    auto* record = SpNew<SpuLightData>();
    record->mlId = person.id;
    copyName(record->mName, person.name);
    copyName(record->mSecondName, person.secondName);
    return record;
}

SpWorkflowState* recordOf(const FakeLibrary::State& state)
{
    auto* record = SpNew<SpWorkflowState>();
    record->mlId = state.id;
    record->moWorkflowName = state.workflow;
    record->moName = state.name;
    record->moSecondName = state.secondName;
    record->mlFlags = state.flags;
    return record;
}

SpDocType::DocType* recordOf(const FakeLibrary::DocumentType& type)
{
    auto* record = SpNew<SpDocType::DocType>();
    record->moName = type.name;
    record->moSecond = type.second;
    return record;
}

/// Counts a call and takes its result off the script.
HRESULT begin(FakeLibrary::Operation& operation)
{
    ++operation.calls;
    if (operation.during)
        operation.during();
    if (operation.results.empty())
        return S_OK;
    const HRESULT result = operation.results.front();
    operation.results.pop_front();
    return result;
}

bool takeOutOfMemory(FakeLibrary::Operation& operation)
{
    if (operation.callsOutOfMemory == 0)
        return false;
    --operation.callsOutOfMemory;
    return true;
}

template <class Content, class Record>
HRESULT appendAll(FakeLibrary::Operation& operation, const std::vector<Content>& contents,
                  Lst<Record*>& list)
{
    const HRESULT result = begin(operation);
    const bool outOfMemory = takeOutOfMemory(operation);
    const bool isWhole = SUCCEEDED(result) && !outOfMemory;
    const std::size_t count =
        isWhole ? contents.size() : std::min(operation.recordsBeforeFailure, contents.size());
    for (std::size_t i = 0; i < count; ++i)
        list.AddTail(contents[i].isNull ? nullptr : recordOf(contents[i]));
    if (outOfMemory)
        throw std::bad_alloc();
    return result;
}

struct Variables final : SpUpdateVariableDefinition {
    explicit Variables(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetVariables(Lst<VarDef*>& list, bool flag) override
    {
        library.variablesFlag = flag;
        return appendAll(library.getVariables, library.variables, list);
    }
    FakeLibrary& library;
};

struct Workflows final : SpWorkflow {
    explicit Workflows(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetAllStatesInAllWorkflows(DWORD number, Lst<SpWorkflowState*>& list) override
    {
        library.statesNumber = number;
        return appendAll(library.getStates, library.states, list);
    }
    FakeLibrary& library;
};

struct Members final : SpUserMgr {
    explicit Members(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetUsers(Lst<SpuLightData*>& list, LONG number, bool flag) override
    {
        library.usersNumber = number;
        library.usersFlag = flag;
        return appendAll(library.getUsers, library.users, list);
    }
    HRESULT mhGetGroups(Lst<SpuLightData*>& list) override
    {
        return appendAll(library.getGroups, library.groups, list);
    }
    FakeLibrary& library;
};

struct UserIds final : SpUser {
    explicit UserIds(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetUserID(const char16_t* name, LONG& id) override
    {
        library.askedUserName = QString::fromUtf16(name);
        const HRESULT result = begin(library.getUserId);
        const bool isAnswered = SUCCEEDED(result) || library.getUserId.fillsInOnFailure;
        if (isAnswered && library.askedUserName == library.userName)
            id = library.userId;
        return result;
    }
    FakeLibrary& library;
};

struct UserSettings final : SpSettings {
    explicit UserSettings(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetUserSettings(LONG userId, SpSettingsData& settings, bool flag) override
    {
        library.askedUserId = userId;
        library.settingsFlag = flag;
        const HRESULT result = begin(library.getUserSettings);
        const bool isAnswered = SUCCEEDED(result) || library.getUserSettings.fillsInOnFailure;
        if (!isAnswered || userId != library.userId)
            return result;
        for (const auto& [entry, value] : library.settings)
            settings.mvSet(entry, value);
        return result;
    }
    FakeLibrary& library;
};

struct DocTypes final : SpDocType {
    explicit DocTypes(FakeLibrary& owner)
        : library(owner)
    {
    }
    HRESULT mhGetDocTypes(Lst<DocType*>& list) override
    {
        return appendAll(library.getDocTypes, library.docTypes, list);
    }
    FakeLibrary& library;
};

} // namespace

FakeLibrary::FakeLibrary()
{
    m_procs[SPID_VARIABLE_DEFINITION] = std::make_unique<Variables>(*this);
    m_procs[SPID_WORKFLOW] = std::make_unique<Workflows>(*this);
    m_procs[SPID_USER_MGR] = std::make_unique<Members>(*this);
    m_procs[SPID_USER] = std::make_unique<UserIds>(*this);
    m_procs[SPID_SETTINGS] = std::make_unique<UserSettings>(*this);
    m_procs[SPID_DOC_TYPE] = std::make_unique<DocTypes>(*this);
}

FakeLibrary::~FakeLibrary()
{
    if (destroyed != nullptr)
        *destroyed = true;
}

FakeLibrary* FakeLibrary::make()
{
    return new FakeLibrary;
}

LONG FakeLibrary::references()
{
    AddRef();
    return Release();
}

SpProc* FakeLibrary::mpoGetProc(SPID id)
{
    ++procRequests[id];
    const auto found = m_procs.find(id);
    return found == m_procs.end() || missing.count(id) != 0 ? nullptr : found->second.get();
}

bool FakeLibrary::mbGetConnectInfo(SpConnectInfo& info)
{
    connectNumber = info.mlNumber;
    const bool isAnswered = SUCCEEDED(begin(getConnectInfo));
    if (isAnswered || getConnectInfo.fillsInOnFailure)
        info.moStrings[5] = userName;
    return isAnswered;
}

} // namespace condtree::test
