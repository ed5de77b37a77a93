#include "ReadAll.h"

#include <gtest/gtest.h>

namespace condtree::test {

std::vector<HRESULT> readAll(const ManagerPtr& manager)
{
    AutoLst<Lst<VarDef*>> variables;
    AutoLst<Lst<SpWorkflowState*>> states;
    AutoLst<Lst<SpuLightData*>> users;
    AutoLst<Lst<SpuLightData*>> groups;
    AutoLst<Lst<SpDocType::DocType*>> types;
    SpSettingsData settings;
    std::vector<SpTransition> transitions;
    LONG id = 0;
    std::vector<HRESULT> results = {
        procOf<SpUpdateVariableDefinition>(manager, SPID_VARIABLE_DEFINITION)
            .mhGetVariables(variables, false),
        procOf<SpUser>(manager, SPID_USER).mhGetUserID(u"admin", id),
        procOf<SpWorkflow>(manager, SPID_WORKFLOW).mhGetAllStatesInAllWorkflows(0, states),
        procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetUsers(users, 0, true),
        procOf<SpUserMgr>(manager, SPID_USER_MGR).mhGetGroups(groups),
        procOf<SpSettings>(manager, SPID_SETTINGS).mhGetUserSettings(1, settings, false),
        procOf<SpDocType>(manager, SPID_DOC_TYPE).mhGetDocTypes(types),
        SpTransitionsOf(manager.get())->mhGetTransitions(transitions),
    };
    EXPECT_EQ(results[0] == S_OK, !variables.IsEmpty()) << "all of a list or nothing";
    EXPECT_EQ(results[2] == S_OK, !states.IsEmpty());
    EXPECT_EQ(results[3] == S_OK, !users.IsEmpty());
    EXPECT_EQ(results[7] == S_OK, !transitions.empty());
    for (const SpTransition& transition : transitions) {
        SpCondition condition;
        results.push_back(
            SpTransitionsOf(manager.get())->mhLoadCondition(transition.id, condition));
    }
    return results;
}

std::vector<HRESULT> everythingRead(HRESULT hr)
{
    return std::vector<HRESULT>(8 + 12, hr);
}

} // namespace condtree::test
