#pragma once

#include <condtree/platform/WinTypes.h>

#include <memory>
#include <vector>

namespace condtree {

/// An entry of a list that is offered over a cell.
struct ChoiceEntry {
    /// A ComboCmd, or VariableBase + the operator that a variable starts with.
    LONG code = 0;
    CString text;
    /// Its picture's index in the list's image list; -1 for none.
    int image = -1;

    bool operator==(const ChoiceEntry&) const = default;
};

using ChoiceEntries = std::vector<ChoiceEntry>;
/// Entries that are made once and offered again and again.
using SharedChoices = std::shared_ptr<const ChoiceEntries>;

} // namespace condtree
