#pragma once

#include <condtree/platform/StoredProcs.h>
#include <condtree/refdata/ManagerRef.h>

#include <map>
#include <utility>

namespace condtree {

/// The states of all workflows, loaded on first use and kept for good.
class WorkflowStates {
public:
    explicit WorkflowStates(const ManagerRef& manager)
        : m_manager(manager)
    {
    }

    /// Loads the states if they are not loaded, replacing the names that the host gave. False
    /// without a manager or when the memory is exhausted; a failure of the library is no failure
    /// here: it leaves the states loaded and empty.
    bool mbInitWorkflowStates();

    /// Replaces the names by a copy of the host's.
    void setNames(const std::map<LONG, CString>& names) { mStateNames = names; }
    /// State id -> display name. Loads nothing.
    [[nodiscard]] const std::map<LONG, CString>& names() const { return mStateNames; }
    /// Running index -> state id and display name, in the library's order.
    [[nodiscard]] const std::map<LONG, std::pair<LONG, CString>>& inOrder() const
    {
        return mStatesInOrder;
    }
    /// The display name of a state, which is loaded if need be; empty when the states cannot be
    /// loaded or no state has the id.
    [[nodiscard]] CString nameOf(LONG id);

private:
    void fetch(Lst<SpWorkflowState*>& states) const;
    void take(SpWorkflowState& state);

    const ManagerRef& m_manager;
    std::map<LONG, CString> mStateNames;
    std::map<LONG, std::pair<LONG, CString>> mStatesInOrder;
    bool mbStatesLoaded = false;
};

} // namespace condtree
