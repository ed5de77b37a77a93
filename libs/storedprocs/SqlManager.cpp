#include "SqlManager.h"

#include <utility>

namespace condtree {

SqlManager::SqlManager(std::unique_ptr<Database> database, const CString& login)
    : m_database(std::move(database))
    , m_login(login)
    , m_cardVariables(*m_database)
    , m_user(*m_database)
    , m_workflow(*m_database)
    , m_userMgr(*m_database)
    , m_settings(*m_database)
    , m_docType(*m_database)
    , m_transitions(*m_database, login)
{
}

SqlManager::~SqlManager() = default;

SpProc* SqlManager::mpoGetProc(SPID id)
{
    const std::pair<SPID, SpProc*> procs[] = {
        {SPID_VARIABLE_DEFINITION, &m_cardVariables},
        {SPID_USER, &m_user},
        {SPID_WORKFLOW, &m_workflow},
        {SPID_USER_MGR, &m_userMgr},
        {SPID_SETTINGS, &m_settings},
        {SPID_DOC_TYPE, &m_docType},
    };
    for (const auto& [known, proc] : procs) {
        if (known == id)
            return proc;
    }
    return nullptr;
}

bool SqlManager::mbGetConnectInfo(SpConnectInfo& info)
{
    info.moStrings[5] = m_login;
    return true;
}

SpTransitions* SpTransitionsOf(SpMgr* manager)
{
    auto* ours = dynamic_cast<SqlManager*>(manager);
    return ours != nullptr ? ours->transitions() : nullptr;
}

} // namespace condtree
