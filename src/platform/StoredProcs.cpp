#include "StoredProcs.h"

namespace condtree {

const CString* SpSettingsData::mpoGet(int entry) const
{
    const auto found = m_entries.find(entry);
    return found == m_entries.end() ? nullptr : &found->second;
}

void SpSettingsData::mvSet(int entry, const CString& value)
{
    m_entries[entry] = value;
}

SpProc::~SpProc() = default;
SpUpdateVariableDefinition::~SpUpdateVariableDefinition() = default;
SpWorkflow::~SpWorkflow() = default;
SpUserMgr::~SpUserMgr() = default;
SpUser::~SpUser() = default;
SpSettings::~SpSettings() = default;
SpDocType::~SpDocType() = default;
SpMgr::~SpMgr() = default;

LONG SpMgr::AddRef()
{
    return m_references.fetch_add(1, std::memory_order_relaxed) + 1;
}

LONG SpMgr::Release()
{
    const LONG left = m_references.fetch_sub(1, std::memory_order_acq_rel) - 1;
    if (left == 0)
        delete this;
    return left;
}

} // namespace condtree
