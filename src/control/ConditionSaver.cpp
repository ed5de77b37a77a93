#include "ConditionSaver.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/model/ConditionKind.h>
#include <condtree/refdata/CardVariables.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/values/TypedValue.h>
#include <condtree/values/ValueTexts.h>

namespace condtree {

namespace {

// A row whose value alterArguments leaves alone: it stores an id or a fixed number.
bool keepsItsValue(LONG nodeCode)
{
    return nodeCode == ObjectType || isChildRefState(nodeCode);
}

bool isUntouchedPlaceholder(const VarTreeCtrlNode& row)
{
    return row.mlCode == NodePlaceholder && row.mlOperator == -1;
}

LONG nextIndex(const std::vector<TransCond>& records)
{
    return static_cast<LONG>(records.size());
}

} // namespace

ConditionSaver::ConditionSaver(const StringSource& strings, const ControlSettings& settings,
                               CardVariables& variables, const ConditionModel& model)
    : m_strings(strings)
    , m_settings(settings)
    , m_variables(variables)
    , m_model(model)
{
}

void ConditionSaver::save(std::vector<TransCond>& records, VarTreeCtrlNode* node,
                          bool alterArguments)
{
    VarTreeCtrlNode* level = node == nullptr ? m_model.top() : node;
    if (level != nullptr)
        saveLevel(records, *level, alterArguments, ValueTexts(m_strings));
}

void ConditionSaver::saveLevel(std::vector<TransCond>& records, VarTreeCtrlNode& level,
                               bool alterArguments, const ValueTexts& texts)
{
    // By index: a message on the way may let the host change the level.
    for (std::size_t i = 0; i < level.mChildren.size(); ++i) {
        VarTreeCtrlNode& row = *level.mChildren[i];
        if (isSkipped(row))
            continue;
        if (isUntouchedPlaceholder(row))
            return;
        const LONG index = nextIndex(records);
        if (row.mlCode == NodeOr) {
            TransCond& group = records.emplace_back();
            group.lIndex = index;
            group.lRowKind = RowKindGroup;
            saveLevel(records, row, alterArguments, texts);
            continue;
        }
        if (alterArguments && !keepsItsValue(row.mlCode))
            alterArgument(row.mValue, row.mlOperator);
        records.push_back(makeRecord(row, texts));
        records.back().lIndex = index;
    }
}

bool ConditionSaver::isSkipped(const VarTreeCtrlNode& row) const
{
    return m_settings.vaultType == VaultTypeReduced && isDroppedOnReducedSave(row.mlCode);
}

TransCond ConditionSaver::makeRecord(VarTreeCtrlNode& row, const ValueTexts& texts)
{
    TransCond record;
    record.lRowKind = m_model.hasParentItem(row.mhItem) ? RowKindInGroup : RowKindTop;
    const std::optional<LONG> condType = recordTypeOfNode(row.mlCode);
    record.lCondType = condType.value_or(0);
    record.oName = condType ? SpStr(row.mName) : SpStr(u"n/a");
    record.oExtra = row.mExtra;
    record.lOperator = row.mlOperator;
    setValue(record, row, texts);
    return record;
}

void ConditionSaver::setValue(TransCond& record, VarTreeCtrlNode& row, const ValueTexts& texts)
{
    record.lArgType = argTypeOf(row);
    if (isChildRefState(row.mlCode)) {
        // TextCompare has no text form, so the free text is stored as it stands.
        record.oValue = row.mlOperator == TextCompare ? row.mValue : CString::number(row.mlStateId);
    } else if (row.mlCode == User || row.mlCode == Group) {
        record.oValue = CString::number(row.mlUserOrGroupId);
    } else {
        record.oValue = texts.stored(row.mValue, record.lArgType, record.lCondType);
    }
}

LONG ConditionSaver::argTypeOf(const VarTreeCtrlNode& row)
{
    const bool isFixedKind = row.mlCode >= Category && row.mlCode <= Group;
    if (isFixedKind || row.mlCode == NodeHistoricState)
        return ArgText;
    m_variables.mbInitVars(); // a failure is shown, and the list serves as it stands
    const VarDef* variable = m_variables.find(row.mName);
    if (variable == nullptr)
        variable = m_variables.last();
    const bool hasType =
        variable != nullptr && variable->mlType >= VarText && variable->mlType <= VarDate;
    return hasType ? variable->mlType : 0;
}

} // namespace condtree
