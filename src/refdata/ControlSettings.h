#pragma once

#include <condtree/model/TreeType.h>
#include <condtree/platform/RegistryStore.h>
#include <condtree/refdata/ManagerRef.h>
#include <condtree/refdata/People.h>
#include <condtree/refdata/Registry.h>

namespace condtree {

/// What the control was set up with, and the settings that it reads. Missing ones have defaults;
/// nothing here is reported, and nothing fails but for exhausted memory
/// (_com_error(E_OUTOFMEMORY)).
class ControlSettings {
public:
    ControlSettings(const ManagerRef& manager, RegistryStore& store);

    LONG dateStyle = 120;
    KiroVaultType vaultType{};
    TreeType treeType{};
    LONG transitionType = 0;

    /// Reads the current user's id and whether users are shown by their second name. False without
    /// a manager.
    bool mbInitSettings();
    /// Whether conditions on the state of a child reference are offered: unless the user's value
    /// "HasChildRefState" reads as zero. Makes the settings key when it is missing and keeps it
    /// open.
    bool mbChildRefStateEnabled();

    [[nodiscard]] LONG currentUserId() const { return mlCurrentUserId; }
    /// The name by which users are shown.
    [[nodiscard]] ShownName shownUserName() const
    {
        return mbUseSecondUserName ? ShownName::Second : ShownName::First;
    }

private:
    const ManagerRef& m_manager;
    LONG mlCurrentUserId = 0;
    bool mbUseSecondUserName = false;
    Registry mSettingsKey;
};

} // namespace condtree
