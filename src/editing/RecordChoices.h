#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/platform/Lst.h>

namespace condtree {

/// An entry of each record of a library's list, in its order; toEntry takes a const Record&.
/// A null in the list has no entry.
template <class Record, class ToEntry>
[[nodiscard]] ChoiceEntries recordChoices(const Lst<Record*>& records, ToEntry toEntry)
{
    ChoiceEntries entries;
    entries.reserve(static_cast<std::size_t>(records.GetCount()));
    for (POSITION position = records.GetHeadPosition(); position != nullptr;) {
        const Record* record = records.GetNext(position);
        if (record != nullptr)
            entries.push_back(toEntry(*record));
    }
    return entries;
}

} // namespace condtree
