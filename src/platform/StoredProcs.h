#pragma once

#include <condtree/platform/Lst.h>
#include <condtree/platform/SpStr.h>
#include <condtree/platform/WinTypes.h>

#include <atomic>
#include <cstring>
#include <map>
#include <new>
#include <type_traits>

// What a data-access library must offer. Hosts may implement it; libs/storedprocs does.
//
// Every operation answers with a result code, negative on failure. Records are handed over as
// blocks from CoTaskMemAlloc (SpNew makes them); who receives them destroys and frees them.
namespace condtree {

/// The procedure objects of a manager, by number.
enum SPID {
    SPID_VARIABLE_DEFINITION = 2,
    SPID_USER = 23,
    SPID_WORKFLOW = 27,
    SPID_USER_MGR = 40,
    SPID_SETTINGS = 41,
    SPID_DOC_TYPE = 49
};

/// Who is connected. moStrings[5] is the logged-in user's name; the others belong to the library.
struct SpConnectInfo {
    CString moStrings[6];
    LONG mlNumber = -1;
};

/// A card variable; mlType is a VariableType, mName is terminated by a null.
struct VarDef {
    LONG mlId;
    LONG mlType;
    char16_t mName[256];
};

/// A user or a group; mSecondName is used only for users.
struct SpuLightData {
    LONG mlId;
    char16_t mName[1001];
    char16_t mSecondName[256];
};

/// A state of a workflow. With bit 0 or bit 1 of mlFlags set, its second name is the one to show.
struct SpWorkflowState {
    LONG mlId;
    SpStr moName, moSecondName, moWorkflowName;
    DWORD mlFlags;
};

/// A user's settings, by entry number.
class CONDTREE_EXPORT SpSettingsData {
public:
    /// Null when the user has no such setting. Valid until the entry is set again.
    [[nodiscard]] const CString* mpoGet(int entry) const;
    void mvSet(int entry, const CString& value);

private:
    std::map<int, CString> m_entries;
};

/// The base of every procedure object; a manager owns its procedure objects.
struct CONDTREE_EXPORT SpProc {
    SpProc() = default;
    SpProc(const SpProc&) = delete;
    SpProc& operator=(const SpProc&) = delete;
    virtual ~SpProc();
};

struct CONDTREE_EXPORT SpUpdateVariableDefinition : SpProc {
    ~SpUpdateVariableDefinition() override;
    /// Appends every card variable.
    virtual HRESULT mhGetVariables(Lst<VarDef*>& variables, bool) = 0;
};

struct CONDTREE_EXPORT SpWorkflow : SpProc {
    ~SpWorkflow() override;
    /// Appends every state of every workflow.
    virtual HRESULT mhGetAllStatesInAllWorkflows(DWORD, Lst<SpWorkflowState*>& states) = 0;
};

struct CONDTREE_EXPORT SpUserMgr : SpProc {
    ~SpUserMgr() override;
    /// Appends every user.
    virtual HRESULT mhGetUsers(Lst<SpuLightData*>& users, LONG, bool) = 0;
    /// Appends every group.
    virtual HRESULT mhGetGroups(Lst<SpuLightData*>& groups) = 0;
};

struct CONDTREE_EXPORT SpUser : SpProc {
    ~SpUser() override;
    /// The id of the user with a login name.
    virtual HRESULT mhGetUserID(const char16_t* name, LONG& id) = 0;
};

struct CONDTREE_EXPORT SpSettings : SpProc {
    ~SpSettings() override;
    /// Fills in the settings of a user.
    virtual HRESULT mhGetUserSettings(LONG userId, SpSettingsData& settings, bool) = 0;
};

struct CONDTREE_EXPORT SpDocType : SpProc {
    struct DocType {
        SpStr moName, moSecond;
    };
    ~SpDocType() override;
    /// Appends every document type.
    virtual HRESULT mhGetDocTypes(Lst<DocType*>& types) = 0;
};

/// A connection to the data-access library; reference-counted, made with one reference.
class CONDTREE_EXPORT SpMgr {
public:
    SpMgr() = default;
    SpMgr(const SpMgr&) = delete;
    SpMgr& operator=(const SpMgr&) = delete;

    /// Adds a reference; the new count. May be called from any thread.
    LONG AddRef();
    /// Takes a reference back; the new count. The last one deletes the manager.
    LONG Release();

    /// The procedure object of a kind, owned by the manager; null if there is none.
    virtual SpProc* mpoGetProc(SPID id) = 0;
    /// Fills in who is connected; false when that is not known.
    virtual bool mbGetConnectInfo(SpConnectInfo& info) = 0;

protected:
    virtual ~SpMgr();

private:
    std::atomic<LONG> m_references{1};
};

/// A record as a library hands it over: zeroed memory from CoTaskMemAlloc, then constructed.
/// Throws _com_error(E_OUTOFMEMORY) when the memory is exhausted.
template <class T>
[[nodiscard]] T* SpNew()
{
    void* memory = CoTaskMemAlloc(sizeof(T));
    if (memory == nullptr)
        throw _com_error(E_OUTOFMEMORY);
    std::memset(memory, 0, sizeof(T));
    if constexpr (std::is_trivially_default_constructible_v<T>)
        return static_cast<T*>(memory); // default construction would leave the zeros unspecified
    else
        return new (memory) T();
}

} // namespace condtree
