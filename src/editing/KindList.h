#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/model/TreeType.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/TextRef.h>

namespace condtree {

/// The row that a list of kinds is for, and what the control was set up with.
struct KindListFor {
    /// Directly under the top node.
    bool isTopLevel = false;
    bool isPlaceholder = false;
    KiroVaultType vaultType{};
    TreeType treeType{};
    LONG transitionType = 0;
    /// The user's setting; counts only where asksForChildRefState.
    bool childRefStateOffered = false;
};

/// Whether the user's setting decides if child reference states are offered. Where it does not they
/// are not offered, and the setting is not to be read: reading makes its key.
[[nodiscard]] bool asksForChildRefState(KiroVaultType vaultType, TreeType treeType,
                                        LONG transitionType);

[[nodiscard]] bool offersUsersAndGroups(const KindListFor& list);
[[nodiscard]] bool offersChildRefState(const KindListFor& list);
[[nodiscard]] bool offersRemove(const KindListFor& list);

/// The kinds and commands with which a list of kinds begins; the variables follow.
[[nodiscard]] ChoiceEntries kindCommands(const KindListFor& list, const StringSource& strings);

/// The card variables as a list of kinds offers them, in the order of the library's list.
[[nodiscard]] ChoiceEntries variableChoices(const Lst<VarDef*>& variables);

} // namespace condtree
