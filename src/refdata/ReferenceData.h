#pragma once

#include <condtree/refdata/CardVariables.h>
#include <condtree/refdata/ManagerRef.h>
#include <condtree/refdata/People.h>
#include <condtree/refdata/WorkflowStates.h>

namespace condtree {

/// The lists that rows refer to, each loaded from the data-access library on first use.
struct ReferenceData {
    /// manager must outlive the lists; report is called for each failure to load one.
    ReferenceData(const ManagerRef& manager, const FailureReport& report)
        : variables(manager, report)
        , states(manager)
        , users(People::Kind::Users, manager, report)
        , groups(People::Kind::Groups, manager, report)
    {
    }

    CardVariables variables;
    WorkflowStates states;
    People users;
    People groups;
};

} // namespace condtree
