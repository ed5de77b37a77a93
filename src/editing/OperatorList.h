#pragma once

#include <condtree/editing/ChoiceEntry.h>
#include <condtree/platform/TextRef.h>

namespace condtree {

/// The operators that a row offers, by its node code and ArgType; their images are indices of the
/// operator image list.
[[nodiscard]] ChoiceEntries operatorChoices(LONG nodeCode, LONG argType,
                                            const StringSource& strings);

} // namespace condtree
