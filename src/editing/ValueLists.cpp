#include "ValueLists.h"

#include <condtree/editing/ChoiceText.h>
#include <condtree/editing/RecordChoices.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/refdata/RecordText.h>
#include <condtree/values/CommandCatalogue.h>

namespace condtree {

namespace {

constexpr int kNoImage = -1;
constexpr int kImageOfUserChoice = 0;

ChoiceEntry fixedValue(ComboCmd value, const StringSource& strings)
{
    const CString text = findCommand(value)->text->from(strings);
    return {value, choiceTextAsShown(value, text, strings), kNoImage};
}

} // namespace

ChoiceEntries objectTypeChoices(KiroVaultType vaultType, const StringSource& strings)
{
    ChoiceEntries entries{fixedValue(ObjectTypeFile, strings)};
    if (vaultType == VaultTypeStandard) {
        entries.push_back(fixedValue(ObjectTypeBom, strings));
        entries.push_back(fixedValue(ObjectTypeItem, strings));
    }
    return entries;
}

ChoiceEntries yesNoChoices(const StringSource& strings)
{
    return {fixedValue(BinaryYes, strings), fixedValue(BinaryNo, strings)};
}

ChoiceEntries userChoices(const Lst<SpuLightData*>& users, ShownName shown)
{
    return recordChoices(users, [shown](const SpuLightData& user) {
        return ChoiceEntry{UserChoice, offeredName(user, shown).toString(), kImageOfUserChoice};
    });
}

ChoiceEntries groupChoices(const Lst<SpuLightData*>& groups)
{
    const int image = findCommand(GroupChoice)->image.value_or(kNoImage);
    return recordChoices(groups, [image](const SpuLightData& group) {
        return ChoiceEntry{GroupChoice, recordText(group.mName).toString(), image};
    });
}

ChoiceEntries docTypeChoices(const Lst<SpDocType::DocType*>& types)
{
    return recordChoices(types, [](const SpDocType::DocType& type) {
        return ChoiceEntry{DocTypeChoice, type.moName.str(), kNoImage};
    });
}

ChoiceEntries stateChoices(const WorkflowStates& states)
{
    ChoiceEntries entries;
    entries.reserve(states.inOrder().size());
    for (const auto& [index, state] : states.inOrder())
        entries.push_back({StateChoice, state.second, kNoImage});
    return entries;
}

} // namespace condtree
