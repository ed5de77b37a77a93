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

// Whether a row's type is that of its variable; the fixed kinds are texts.
bool hasVariableType(LONG nodeCode)
{
    const bool isFixedKind = nodeCode >= Category && nodeCode <= Group;
    return !isFixedKind && nodeCode != NodeHistoricState;
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
                               CardVariables& variables, ConditionModel& model)
    : m_strings(strings)
    , m_settings(settings)
    , m_variables(variables)
    , m_model(model)
{
}

/// One call of save: where the records go, and how.
struct ConditionSaver::Walk {
    std::vector<TransCond>& records;
    bool altersArguments;
    ValueTexts texts;
    bool isOvertaken = false;
};

void ConditionSaver::save(std::vector<TransCond>& records, VarTreeCtrlNode* node,
                          bool alterArguments)
{
    VarTreeCtrlNode* level = node == nullptr ? m_model.top() : node;
    if (level == nullptr)
        return;
    Walk walk{records, alterArguments, ValueTexts(m_strings)};
    saveLevel(walk, *level);
    if (alterArguments)
        m_model.tellTextsChanged();
}

void ConditionSaver::saveLevel(Walk& walk, VarTreeCtrlNode& level)
{
    for (VarTreeCtrlNode* row : level.mChildren) {
        if (isSkipped(*row))
            continue;
        if (isUntouchedPlaceholder(*row))
            return;
        if (row->mlCode == NodeOr)
            saveGroup(walk, *row);
        else
            walk.isOvertaken = !saveCondition(walk, *row);
        if (walk.isOvertaken)
            return; // the level itself may be gone
    }
}

void ConditionSaver::saveGroup(Walk& walk, VarTreeCtrlNode& group)
{
    TransCond record;
    record.lIndex = nextIndex(walk.records);
    record.lRowKind = RowKindGroup;
    walk.records.push_back(std::move(record));
    saveLevel(walk, group);
}

/// False when the tree was changed meanwhile; the row may be gone then.
bool ConditionSaver::saveCondition(Walk& walk, VarTreeCtrlNode& row)
{
    if (!loadVariables(row))
        return false;
    if (walk.altersArguments && !keepsItsValue(row.mlCode))
        alterArgument(row.mValue, row.mlOperator);
    TransCond record = makeRecord(row, walk.texts);
    record.lIndex = nextIndex(walk.records);
    walk.records.push_back(std::move(record));
    return true;
}

/// Makes sure of the variables for a row that needs them. A failure is shown, and the list serves
/// as it stands; but the message lets the host in.
bool ConditionSaver::loadVariables(const VarTreeCtrlNode& row)
{
    const std::uint64_t revision = m_model.revision();
    if (hasVariableType(row.mlCode))
        m_variables.mbInitVars();
    return m_model.revision() == revision;
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

LONG ConditionSaver::argTypeOf(const VarTreeCtrlNode& row) const
{
    if (!hasVariableType(row.mlCode))
        return ArgText;
    const VarDef* variable = m_variables.find(row.mName);
    if (variable == nullptr)
        variable = m_variables.last();
    const bool hasType =
        variable != nullptr && variable->mlType >= VarText && variable->mlType <= VarDate;
    return hasType ? variable->mlType : 0;
}

} // namespace condtree
