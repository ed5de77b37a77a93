#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/model/TreeType.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/TextRef.h>
#include <condtree/refdata/People.h>
#include <condtree/refdata/WorkflowStates.h>

namespace condtree {

[[nodiscard]] ChoiceEntries objectTypeChoices(KiroVaultType vaultType, const StringSource& strings);

[[nodiscard]] ChoiceEntries yesNoChoices(const StringSource& strings);

/// The users in the order of the library's list. With ShownName::Second, those whose second name is
/// empty are offered by their first.
[[nodiscard]] ChoiceEntries userChoices(const Lst<SpuLightData*>& users, ShownName shown);

[[nodiscard]] ChoiceEntries groupChoices(const Lst<SpuLightData*>& groups);

[[nodiscard]] ChoiceEntries docTypeChoices(const Lst<SpDocType::DocType*>& types);

/// The states as they stand, loading nothing, in the order of their table: an entry's index is the
/// state's running index. Their texts are the states' names, not yet what choiceTextAsShown makes
/// of them.
[[nodiscard]] ChoiceEntries stateChoices(const WorkflowStates& states);

} // namespace condtree
