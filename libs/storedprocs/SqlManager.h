#pragma once

#include "Database.h"
#include "ReferenceProcs.h"
#include "TransitionProcs.h"

#include <memory>

namespace condtree {

/// A logged-in connection with its procedure objects; what SpConnect makes.
class SqlManager final : public SpMgr {
public:
    SqlManager(std::unique_ptr<Database> database, const CString& login);

    SpProc* mpoGetProc(SPID id) override;
    /// The login in the sixth text; all else is left as it is.
    bool mbGetConnectInfo(SpConnectInfo& info) override;

    [[nodiscard]] SpTransitions* transitions() { return &m_transitions; }

protected:
    ~SqlManager() override;

private:
    std::unique_ptr<Database> m_database;
    CString m_login;
    CardVariableProc m_cardVariables;
    UserProc m_user;
    WorkflowProc m_workflow;
    UserMgrProc m_userMgr;
    SettingsProc m_settings;
    DocTypeProc m_docType;
    TransitionProcs m_transitions;
};

} // namespace condtree
