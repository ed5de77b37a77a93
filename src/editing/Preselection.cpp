#include "Preselection.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/ControlText.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/values/OperatorCatalogue.h>

namespace condtree {

namespace {

constexpr LONG kFirstVariableCode = 100;
/// Where the search starts before the entries that are counted one by one. Not the number of the
/// other fixed entries: it is the same for every row and every vault.
constexpr int kStart = 7;

bool isFoundByCode(LONG nodeCode)
{
    return nodeCode == NodeAnd || nodeCode == NodeOr || nodeCode == Category
           || (nodeCode >= FilePath && nodeCode <= NodeHistoricState);
}

int searchStart(const KindListFor& list)
{
    const int usersAndGroups = offersUsersAndGroups(list) ? 2 : 0;
    const int childRefState = offersChildRefState(list) ? 1 : 0;
    return kStart + usersAndGroups + childRefState + (offersRemove(list) ? 1 : 0);
}

} // namespace

Preselection kindPreselection(LONG nodeCode, const CString& name, const KindListFor& list,
                              const StringSource& strings)
{
    if (isFoundByCode(nodeCode))
        return PreselectCode{nodeCode};
    if (nodeCode < kFirstVariableCode)
        return std::monostate{};
    return PreselectText{name.isEmpty() ? textRef(ControlText::AnyVariable).from(strings) : name,
                         searchStart(list)};
}

CString operatorPreselection(LONG nodeCode, const StringSource& strings)
{
    return operatorName(nodeCode, u"", strings);
}

} // namespace condtree
