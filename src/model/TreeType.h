#pragma once

#include <condtree/platform/WinTypes.h>

namespace condtree {

/// What kind of condition the control edits. Any number is valid; the one named changes behaviour.
enum TreeType : LONG {
    /// Conditions on a user and on a group are offered instead of child reference states.
    TreeTypeUsersAndGroups = 1
};

/// What kind of vault the condition belongs to. Any number is valid; those named change behaviour.
enum KiroVaultType : LONG {
    /// Rows offer every object type, user and group as values; in every other vault they offer only
    /// files.
    VaultTypeStandard = 0,
    /// No conditions on a category, child reference state, user or group.
    VaultTypeReduced = 1
};

} // namespace condtree
