#pragma once

#include <condtree/platform/StoredProcs.h>

namespace condtree {

/// Holds one reference on a data-access manager, or on none.
class ManagerRef {
public:
    ManagerRef() = default;
    ManagerRef(const ManagerRef&) = delete;
    ManagerRef& operator=(const ManagerRef&) = delete;
    ~ManagerRef();

    /// Adds a reference to manager, then releases the one held. Null holds none from now on.
    void reset(SpMgr* manager);
    /// Null when there is none.
    [[nodiscard]] SpMgr* get() const { return m_manager; }
    /// The manager's procedure object of the type that the number stands for; null without a
    /// manager or when the manager has none.
    template <class Proc>
    [[nodiscard]] Proc* proc(SPID id) const
    {
        return m_manager == nullptr ? nullptr : static_cast<Proc*>(m_manager->mpoGetProc(id));
    }

private:
    SpMgr* m_manager = nullptr;
};

} // namespace condtree
