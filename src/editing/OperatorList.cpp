#include "OperatorList.h"

#include <condtree/values/OperatorCatalogue.h>
#include <condtree/values/OperatorRules.h>

namespace condtree {

ChoiceEntries operatorChoices(LONG nodeCode, LONG argType, const StringSource& strings)
{
    const auto commands = offeredOperators(nodeCode, argType);
    ChoiceEntries entries;
    entries.reserve(commands.size());
    for (const ComboCmd command : commands) {
        const OperatorEntry& entry = *findOperator(command);
        entries.push_back({command, operatorName(command, entry.name, strings), entry.image});
    }
    return entries;
}

} // namespace condtree
