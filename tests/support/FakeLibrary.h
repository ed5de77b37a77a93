#pragma once

#include <condtree/platform/StoredProcs.h>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace condtree::test {

/// A data-access library whose contents and failures a test sets. Everything is public data and may
/// be changed between calls.
///
///     FakeLibrary* library = FakeLibrary::make();      // the test holds the one reference
///     library->variables = {{1, VarText, QStringLiteral("Weight")}};
///     library->getVariables.results = {E_FAIL};        // the first call fails, later ones succeed
///     ...
///     library->Release();
class FakeLibrary final : public SpMgr {
public:
    // The contents. A name too long for its record fills the array and leaves it without a
    // terminator. A record with isNull set is handed over as a null pointer.
    struct Variable {
        LONG id;
        LONG type;
        CString name;
        bool isNull = false;
    };
    struct Person {
        LONG id;
        CString name;
        CString secondName;
        bool isNull = false;
    };
    struct State {
        LONG id;
        CString workflow;
        CString name;
        CString secondName;
        DWORD flags = 0;
        bool isNull = false;
    };
    struct DocumentType {
        CString name;
        CString second;
        bool isNull = false;
    };

    /// How the calls of one operation go, and how many there were.
    struct Operation {
        /// The results of the next calls, first to last; S_OK when it is empty.
        std::deque<HRESULT> results;
        /// How many records a failing call appends before it fails (at most all).
        std::size_t recordsBeforeFailure = 0;
        /// A failing call of an operation that fills something in does so all the same.
        bool fillsInOnFailure = false;
        /// How many of the next calls throw std::bad_alloc, after as many records as a failing one.
        int callsOutOfMemory = 0;
        /// Called at the beginning of each call.
        std::function<void()> during;
        /// The number of calls so far.
        int calls = 0;
    };

    std::vector<Variable> variables;
    std::vector<State> states;
    std::vector<Person> users;
    std::vector<Person> groups;
    std::vector<DocumentType> docTypes;
    /// Who is connected, and that user's id; mhGetUserID leaves the id alone for any other name.
    CString userName = QStringLiteral("admin");
    LONG userId = 0;
    /// The settings of the user with the id userId, by entry number.
    std::map<int, CString> settings;

    /// The kinds of procedure objects that this library does not have.
    std::set<SPID> missing;

    Operation getVariables;
    Operation getStates;
    Operation getUsers;
    Operation getGroups;
    Operation getDocTypes;
    Operation getUserId;
    Operation getUserSettings;
    /// A failing result leaves the info alone and answers false.
    Operation getConnectInfo;
    /// How often each procedure object was asked for.
    std::map<SPID, int> procRequests;

    // What the last call was given.
    bool variablesFlag = false;
    DWORD statesNumber = 0;
    LONG usersNumber = 0;
    bool usersFlag = false;
    CString askedUserName;
    LONG askedUserId = 0;
    bool settingsFlag = false;
    /// The number in the connect info before it was filled in.
    LONG connectNumber = 0;

    /// Set to true when the library is deleted; may be null. Must outlive the library.
    bool* destroyed = nullptr;

    /// A library with one reference, which is the caller's; the last Release deletes it.
    [[nodiscard]] static FakeLibrary* make();

    /// The number of references held on it.
    [[nodiscard]] LONG references();

    SpProc* mpoGetProc(SPID id) override;
    bool mbGetConnectInfo(SpConnectInfo& info) override;

private:
    FakeLibrary();
    ~FakeLibrary() override;

    std::map<SPID, std::unique_ptr<SpProc>> m_procs;
};

/// A library that is released at the end of the test; the others' references may outlive it.
class FakeLibraryHolder {
public:
    FakeLibraryHolder()
        : m_library(FakeLibrary::make())
    {
    }
    FakeLibraryHolder(const FakeLibraryHolder&) = delete;
    FakeLibraryHolder& operator=(const FakeLibraryHolder&) = delete;
    ~FakeLibraryHolder() { m_library->Release(); }

    FakeLibrary* operator->() const { return m_library; }
    FakeLibrary& operator*() const { return *m_library; }
    [[nodiscard]] FakeLibrary* get() const { return m_library; }

private:
    FakeLibrary* m_library;
};

} // namespace condtree::test
