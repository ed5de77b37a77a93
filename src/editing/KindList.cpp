#include "KindList.h"

#include <condtree/editing/RecordChoices.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/refdata/RecordText.h>
#include <condtree/values/CommandCatalogue.h>
#include <condtree/values/OperatorRules.h>

namespace condtree {

namespace {

/// A transition of this type has no conditions on child reference states.
constexpr LONG kTransitionWithoutChildRefState = 1;

ChoiceEntry commandChoice(ComboCmd command, const StringSource& strings)
{
    const CommandEntry& entry = *findCommand(command);
    return {command, entry.text->from(strings), entry.image.value_or(-1)};
}

} // namespace

bool asksForChildRefState(KiroVaultType vaultType, TreeType treeType, LONG transitionType)
{
    return vaultType != VaultTypeReduced && treeType != TreeTypeUsersAndGroups
           && transitionType != kTransitionWithoutChildRefState;
}

bool offersUsersAndGroups(const KindListFor& list)
{
    return list.vaultType != VaultTypeReduced && list.treeType == TreeTypeUsersAndGroups;
}

bool offersChildRefState(const KindListFor& list)
{
    return list.childRefStateOffered
           && asksForChildRefState(list.vaultType, list.treeType, list.transitionType);
}

bool offersRemove(const KindListFor& list)
{
    return !list.isPlaceholder;
}

ChoiceEntries kindCommands(const KindListFor& list, const StringSource& strings)
{
    ChoiceEntries entries;
    const auto offer = [&](ComboCmd command, bool isOffered = true) {
        if (isOffered)
            entries.push_back(commandChoice(command, strings));
    };
    offer(Or, list.isTopLevel);
    offer(Category, list.vaultType != VaultTypeReduced);
    offer(FilePath);
    offer(ObjectType);
    offer(Revision);
    offer(User, offersUsersAndGroups(list));
    offer(Group, offersUsersAndGroups(list));
    offer(ChildRefState, offersChildRefState(list));
    offer(Remove, offersRemove(list));
    return entries;
}

ChoiceEntries variableChoices(const Lst<VarDef*>& variables)
{
    const int image = findCommand(VariableBase)->image.value_or(-1);
    return recordChoices(variables, [image](const VarDef& variable) {
        return ChoiceEntry{VariableBase + defaultOperator(variable.mlType),
                           recordText(variable.mName).toString(), image};
    });
}

} // namespace condtree
