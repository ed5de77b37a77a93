#include "ManagerRef.h"

#include <utility>

namespace condtree {

ManagerRef::~ManagerRef()
{
    reset(nullptr);
}

void ManagerRef::reset(SpMgr* manager)
{
    // In this order, so that the manager already held survives being given again.
    if (manager != nullptr)
        manager->AddRef();
    SpMgr* previous = std::exchange(m_manager, manager);
    if (previous != nullptr)
        previous->Release();
}

} // namespace condtree
