#include "ConditionLoader.h"

#include <condtree/model/ConditionKind.h>
#include <condtree/platform/NativeText.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>
#include <condtree/values/TypedValue.h>
#include <condtree/values/ValueTexts.h>

#include <limits>

namespace condtree {

/// The texts that rows are made of, fetched once a load.
struct ConditionLoader::Texts {
    explicit Texts(const StringSource& strings)
        : values(strings)
    {
        for (const ConditionKind& kind : conditionKinds())
            labels.push_back(kind.label ? kind.label->from(strings).trimmed() : CString());
    }

    ValueTexts values;
    /// The first columns of the kinds, in the order of conditionKinds().
    std::vector<CString> labels;
};

ConditionLoader::ConditionLoader(const StringSource& strings, const ControlSettings& settings,
                                 ReferenceData& reference, ConditionModel& model)
    : m_strings(strings)
    , m_settings(settings)
    , m_reference(reference)
    , m_model(model)
{
}

void ConditionLoader::load(const std::vector<TransCond>& records, VarTreeCtrlNode* node)
{
    ensureTop(node == nullptr);
    const HTREEITEM closed = node == nullptr ? TVI_ROOT : node->mhItem;
    const bool closesTop = closed == TVI_ROOT;

    // Making rows may show messages, and those let the host in: what it did to the tree meanwhile
    // holds.
    Rows rows = makeRows(records, closesTop);
    VarTreeCtrlNode* top = m_model.top();
    if (top == nullptr)
        return;
    const std::size_t known = top->mChildren.size();
    m_model.append(*top, std::move(rows));
    close(closed, closesTop ? known : std::numeric_limits<std::size_t>::max());
}

void ConditionLoader::ensureTop(bool isCleared)
{
    if (isCleared)
        m_model.remove(TVI_ROOT);
    if (m_model.top() == nullptr)
        m_model.setTop(std::make_unique<VarTreeCtrlNode>(NodeAnd));
}

bool ConditionLoader::isSkipped(const TransCond& record) const
{
    return m_settings.vaultType == VaultTypeReduced && isDroppedOnReducedLoad(record.lCondType);
}

ConditionLoader::Rows ConditionLoader::makeRows(const std::vector<TransCond>& records,
                                                bool closesGroups)
{
    const Texts texts(m_strings);
    Rows rows;
    std::vector<VarTreeCtrlNode*> groups;
    VarTreeCtrlNode* openGroup = nullptr;
    for (const TransCond& record : records) {
        if (isSkipped(record))
            continue;
        if (record.lRowKind == RowKindGroup) {
            rows.push_back(std::make_unique<VarTreeCtrlNode>(NodeOr));
            openGroup = rows.back().get();
            groups.push_back(openGroup);
            continue;
        }
        if (record.lRowKind != RowKindInGroup)
            openGroup = nullptr;
        ConditionModel::NodePtr row = makeCondition(record, texts);
        if (openGroup == nullptr)
            rows.push_back(std::move(row));
        else
            openGroup->mChildren.push_back(row.release());
    }
    if (closesGroups) {
        for (VarTreeCtrlNode* group : groups)
            group->mChildren.push_back(new VarTreeCtrlNode(NodePlaceholder));
    }
    return rows;
}

ConditionModel::NodePtr ConditionLoader::makeCondition(const TransCond& record, const Texts& texts)
{
    auto row = std::make_unique<VarTreeCtrlNode>(NodePlaceholder);
    if (const ConditionKind* kind = kindOfRecord(record.lCondType)) {
        row->mlCode = kind->nodeCode;
        row->mName = texts.labels[static_cast<std::size_t>(kind - conditionKinds().data())];
    }
    setValue(*row, record, texts);
    if (row->mName.isEmpty())
        row->mName = record.oName.str();
    row->mExtra = record.oExtra.str();
    row->mlArgType = record.lArgType;
    row->mlOperator = record.lOperator;

    // Every value loses the operator in front of it; only a record that says so takes it.
    const auto current = static_cast<ComboCmd>(record.lOperator);
    const ComboCmd fitting = compareType(row->mValue, record.lArgType, current);
    if (current == OperatorFromText)
        row->mlOperator = fitting;
    return row;
}

void ConditionLoader::setValue(VarTreeCtrlNode& row, const TransCond& record, const Texts& texts)
{
    const ConditionKind* kind = kindOfRecord(record.lCondType);
    const ValueKind valueKind = kind == nullptr ? ValueKind::Text : kind->value;
    if (valueKind == ValueKind::ChildRefState && record.lOperator != TextCompare) {
        setChildRefState(row, leadingNumber(record.oValue.str()));
    } else if (valueKind == ValueKind::User) {
        row.mlUserOrGroupId = leadingNumber(record.oValue.str());
        row.mValue = m_reference.users.nameOf(row.mlUserOrGroupId, m_settings.shownUserName());
    } else if (valueKind == ValueKind::Group) {
        row.mlUserOrGroupId = leadingNumber(record.oValue.str());
        row.mValue = m_reference.groups.nameOf(row.mlUserOrGroupId, ShownName::First);
    } else {
        row.mValue = texts.values.shown(record.oValue.str(), record.lArgType, record.lCondType);
    }
}

void ConditionLoader::setChildRefState(VarTreeCtrlNode& row, LONG id)
{
    row.mlStateId = id;
    row.mValue = m_reference.states.nameOf(id);
    if (!row.mValue.isEmpty() || id >= 0 || id == std::numeric_limits<LONG>::min())
        return;
    row.mlStateId = -id;
    row.mValue = m_reference.states.nameOf(-id);
}

/// Ends a level and the groups in it with their placeholders. Groups from the place knownChildren
/// on have theirs already.
void ConditionLoader::close(HTREEITEM item, std::size_t knownChildren)
{
    VarTreeCtrlNode* level = m_model.node(item);
    if (level == nullptr)
        return;
    m_model.add(*level, std::make_unique<VarTreeCtrlNode>(NodePlaceholder), false);
    m_model.expand(item);
    const std::vector<VarTreeCtrlNode*> children = level->mChildren;
    for (std::size_t i = 0; i < children.size() && i < knownChildren; ++i) {
        if (children[i]->mlCode == NodeOr)
            m_model.add(*children[i], std::make_unique<VarTreeCtrlNode>(NodePlaceholder), false);
    }
}

} // namespace condtree
