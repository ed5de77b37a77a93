#include "ChoiceCache.h"

#include <condtree/editing/ChoiceText.h>
#include <condtree/editing/KindList.h>
#include <condtree/editing/ValueLists.h>

#include <utility>

namespace condtree {

namespace {

SharedChoices shared(ChoiceEntries entries)
{
    return std::make_shared<const ChoiceEntries>(std::move(entries));
}

template <class Record>
const void* firstRecord(const Lst<Record*>& list)
{
    POSITION head = list.GetHeadPosition();
    return head == nullptr ? nullptr : list.GetNext(head);
}

CString shownText(const ChoiceEntry& entry, const StringSource& strings)
{
    return choiceTextAsShown(entry.code, entry.text, strings);
}

/// The entries with the texts that the list shows; the same ones when none differs.
SharedChoices withShownTexts(const SharedChoices& named, const StringSource& strings)
{
    ChoiceEntries entries = *named;
    for (ChoiceEntry& entry : entries)
        entry.text = shownText(entry, strings);
    return entries == *named ? named : shared(std::move(entries));
}

} // namespace

template <class Record, class Make>
SharedChoices ChoiceCache::kept(OfRecords& cached, const Lst<Record*>& list, ShownName shown,
                                Make make)
{
    const void* first = firstRecord(list);
    const bool isCurrent = cached.entries != nullptr && cached.firstRecord == first
                           && cached.count == list.GetCount() && cached.shown == shown;
    if (!isCurrent)
        cached = {shared(make(list, shown)), first, list.GetCount(), shown};
    return cached.entries;
}

SharedChoices ChoiceCache::variables(const Lst<VarDef*>& list)
{
    return kept(m_variables, list, ShownName::First,
                [](const auto& variables, ShownName) { return variableChoices(variables); });
}

SharedChoices ChoiceCache::users(const Lst<SpuLightData*>& list, ShownName shown)
{
    return kept(m_users, list, shown, userChoices);
}

SharedChoices ChoiceCache::groups(const Lst<SpuLightData*>& list)
{
    return kept(m_groups, list, ShownName::First,
                [](const auto& groups, ShownName) { return groupChoices(groups); });
}

SharedChoices ChoiceCache::states(const WorkflowStates& states, StringSource strings)
{
    const std::shared_ptr<OfStates> cached = m_states;
    if (cached->named == nullptr || cached->named->size() != states.inOrder().size())
        *cached = {shared(stateChoices(states)), nullptr};
    const SharedChoices named = cached->named;
    if (named->empty())
        return named;
    // The first one's text tells whether the string library still answers as it did.
    const CString first = shownText(named->front(), strings);
    if (cached->shown != nullptr && cached->shown->front().text == first)
        return cached->shown;
    const SharedChoices shown = withShownTexts(named, strings);
    cached->shown = shown;
    return shown;
}

} // namespace condtree
