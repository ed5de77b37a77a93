#pragma once

#include "Database.h"
#include "SpTransitions.h"

namespace condtree {

/// The procedures on transitions, on behalf of a user.
class TransitionProcs final : public SpTransitions {
public:
    TransitionProcs(Database& database, const CString& login);

    HRESULT mhGetTransitions(std::vector<SpTransition>& transitions) override;
    HRESULT mhLoadCondition(LONG transitionId, SpCondition& condition) override;
    HRESULT mhSaveCondition(LONG transitionId, const std::vector<SpConditionRecord>& records,
                            std::int64_t loadedVersion, SpSaveReport& report) override;

private:
    HRESULT save(LONG transitionId, const std::vector<SpConditionRecord>& records,
                 std::int64_t loadedVersion, SpSaveReport& report);

    Database& m_database;
    CString m_login;
};

} // namespace condtree
