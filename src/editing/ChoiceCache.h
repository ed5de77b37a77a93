#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/TextRef.h>
#include <condtree/refdata/People.h>
#include <condtree/refdata/WorkflowStates.h>

#include <memory>

namespace condtree {

/// Keeps the entries made of the reference lists, so that opening a long list again costs nothing.
/// The document types have no place here: they are fetched anew for every list.
///
/// One is for one set of lists, and is asked after they were loaded. A list is taken for the one
/// that the entries were made of while its count and its first record are the same: lists grow at
/// their end, or are filled anew with other records while the old ones still exist.
class ChoiceCache {
public:
    [[nodiscard]] SharedChoices variables(const Lst<VarDef*>& list);
    [[nodiscard]] SharedChoices users(const Lst<SpuLightData*>& list, ShownName shown);
    [[nodiscard]] SharedChoices groups(const Lst<SpuLightData*>& list);
    /// The states with the texts that the list shows. Asks for texts, during which this, the states
    /// and what holds strings may end.
    [[nodiscard]] SharedChoices states(const WorkflowStates& states, StringSource strings);

private:
    struct OfRecords {
        SharedChoices entries;
        const void* firstRecord = nullptr;
        LONG count = 0;
        ShownName shown = ShownName::First;
    };
    struct OfStates {
        SharedChoices named;
        SharedChoices shown;
    };

    template <class Record, class Make>
    static SharedChoices kept(OfRecords& cached, const Lst<Record*>& list, ShownName shown,
                              Make make);

    OfRecords m_variables;
    OfRecords m_users;
    OfRecords m_groups;
    std::shared_ptr<OfStates> m_states = std::make_shared<OfStates>();
};

} // namespace condtree
