#pragma once

#include "ConditionJson.h"

#include <vector>

namespace condtree::workbench {

/// Which of the records that were read would come back from the control as something else than
/// what they mean, or not at all; by index, ascending. stored is what saving the untouched rows
/// gives. What the control does to every record is no change: it takes the operator in front off a
/// value and the blanks around it, gives a record that leaves its operator to its text that
/// operator, makes the id of a state positive and names the fixed kinds by their labels.
[[nodiscard]] std::vector<std::size_t> rowsChangedBySaving(const ConditionRecords& read,
                                                           const ConditionRecords& stored);

/// Rows for a message: "3", "1, 2 and 9", and behind the first few how many more there are. Counted
/// from 1; rows are indexes and not empty.
[[nodiscard]] QString rowNumbers(const std::vector<std::size_t>& rows);

} // namespace condtree::workbench
