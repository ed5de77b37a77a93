#include "WorkflowStates.h"

#include <memory>
#include <new>

namespace condtree {

namespace {

/// With either bit set, a state is shown by its second name.
constexpr DWORD kShowsSecondName = 0x3;

struct RecordDeleter {
    void operator()(SpWorkflowState* state) const { SpDelete(state); }
};

} // namespace

bool WorkflowStates::mbInitWorkflowStates()
{
    if (mbStatesLoaded)
        return true;
    if (m_manager.get() == nullptr)
        return false;
    mStateNames.clear();
    mStatesInOrder.clear();
    try {
        AutoLst<Lst<SpWorkflowState*>> states;
        fetch(states);
        while (!states.IsEmpty()) {
            const std::unique_ptr<SpWorkflowState, RecordDeleter> state(states.RemoveHead());
            if (state != nullptr)
                take(*state);
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    mbStatesLoaded = true;
    return true;
}

/// Fills a list with what the library has; a failure of it, however told, counts as no more states.
void WorkflowStates::fetch(Lst<SpWorkflowState*>& states) const
{
    auto* proc = m_manager.proc<SpWorkflow>(SPID_WORKFLOW);
    if (proc == nullptr)
        return;
    try {
        proc->mhGetAllStatesInAllWorkflows(0, states);
    } catch (const _com_error& error) {
        if (error.Error() == E_OUTOFMEMORY)
            throw std::bad_alloc();
    }
}

void WorkflowStates::take(SpWorkflowState& state)
{
    if (state.moWorkflowName.length() == 0)
        return;
    const bool isSecond = (state.mlFlags & kShowsSecondName) != 0;
    const SpStr name = state.moWorkflowName + u"." + (isSecond ? state.moSecondName : state.moName);
    mStatesInOrder[static_cast<LONG>(mStatesInOrder.size())] = {state.mlId, name.str()};
    mStateNames.try_emplace(state.mlId, name.str());
}

CString WorkflowStates::nameOf(LONG id)
{
    if (!mbInitWorkflowStates())
        return {};
    const auto found = mStateNames.find(id);
    return found == mStateNames.end() ? CString() : found->second;
}

} // namespace condtree
