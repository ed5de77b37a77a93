#include "ConditionLoader.h"

#include <condtree/model/ConditionKind.h>
#include <condtree/platform/NativeText.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ReferenceData.h>
#include <condtree/values/TypedValue.h>
#include <condtree/values/ValueTexts.h>

#include <limits>
#include <utility>

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
    VarTreeCtrlNode& top = *m_model.top();
    VarTreeCtrlNode& closed = node == nullptr ? top : *node;

    // Making rows may show messages, and those let the host in: a load during which the tree was
    // changed has been overtaken, and gives up its rows.
    std::optional<Rows> rows = makeRows(records, &closed == &top);
    if (!rows)
        return;
    const HTREEITEM closedItem = closed.mhItem;
    {
        const ConditionModel::Bulk bulk(m_model);
        const std::size_t known = top.mChildren.size();
        const bool isTop = &closed == &top;
        m_model.append(top, *std::move(rows));
        if (!isThere(closedItem, closed))
            return;
        close(closed, isTop ? known : closed.mChildren.size());
    }
    m_model.expand(closedItem);
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

std::optional<ConditionLoader::Rows>
ConditionLoader::makeRows(const std::vector<TransCond>& records, bool closesGroups)
{
    const Texts texts(m_strings);
    const std::uint64_t revision = m_model.revision();
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
        if (m_model.revision() != revision)
            return std::nullopt;
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

/// Ends a level and its first knownChildren groups with their placeholders; groups behind have
/// theirs.
// Each placeholder's text lets the host in, who may delete what is not closed yet.
void ConditionLoader::close(VarTreeCtrlNode& level, std::size_t knownChildren)
{
    std::vector<std::pair<HTREEITEM, VarTreeCtrlNode*>> levels{{level.mhItem, &level}};
    for (std::size_t child = 0; child < knownChildren; ++child) {
        if (level.mChildren[child]->mlCode == NodeOr)
            levels.emplace_back(level.mChildren[child]->mhItem, level.mChildren[child]);
    }
    for (const auto& [item, node] : levels) {
        if (isThere(item, *node))
            m_model.add(*node, std::make_unique<VarTreeCtrlNode>(NodePlaceholder), false);
    }
}

/// Whether a node that had this handle is still what the handle names; one outside the tree, which
/// has no handle, is its owner's.
bool ConditionLoader::isThere(HTREEITEM item, const VarTreeCtrlNode& node) const
{
    return item == nullptr || m_model.node(item) == &node;
}

} // namespace condtree
