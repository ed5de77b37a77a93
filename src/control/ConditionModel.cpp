#include "ConditionModel.h"

#include <condtree/platform/Lst.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/values/CommandCatalogue.h>
#include <condtree/values/OperatorCatalogue.h>

#include <QHash>
#include <QImage>
#include <QStringList>

#include <algorithm>

namespace condtree {

namespace {
// Groups are small: the first block of a level's list.
constexpr std::size_t kFirstChildren = 10;
} // namespace

ConditionModel::ConditionModel(const StringSource& strings, const ConditionImages& images)
    : m_strings(strings)
    , m_images(images)
{
}

ConditionModel::~ConditionModel() = default;

VarTreeCtrlNode* ConditionModel::node(HTREEITEM item) const
{
    return item == TVI_ROOT ? m_top.get() : m_items.node(item);
}

bool ConditionModel::holds(const VarTreeCtrlNode& node) const
{
    return this->node(node.mhItem) == &node;
}

bool ConditionModel::hasParentItem(HTREEITEM item) const
{
    const VarTreeCtrlNode* node = m_items.node(item);
    return node != nullptr && node->mpParent != nullptr && node->mpParent != m_top.get();
}

QModelIndex ConditionModel::indexOf(HTREEITEM item) const
{
    const VarTreeCtrlNode* node = m_items.node(item);
    return node == nullptr ? QModelIndex() : indexOfNode(*node);
}

HTREEITEM ConditionModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? reinterpret_cast<HTREEITEM>(index.internalId()) : TVI_ROOT;
}

VarTreeCtrlNode* ConditionModel::nodeOf(const QModelIndex& index) const
{
    return node(itemOf(index));
}

QModelIndex ConditionModel::indexOfNode(const VarTreeCtrlNode& node) const
{
    if (node.mpParent == nullptr)
        return {};
    const int row = m_items.place(node.mhItem, node.mpParent->mChildren);
    return row < 0 ? QModelIndex() : createIndex(row, 0, reinterpret_cast<quintptr>(node.mhItem));
}

std::vector<CString> ConditionModel::typeLabels() const
{
    std::vector<CString> labels;
    for (const LONG code : {NodePlaceholder, NodeAnd, NodeOr})
        labels.push_back(typeLabel(code)->from(m_strings));
    return labels;
}

void ConditionModel::enter(VarTreeCtrlNode& node, VarTreeCtrlNode& parent,
                           const std::vector<CString>& labels)
{
    if (typeLabel(node.mlCode) != nullptr)
        node.mName = labels[static_cast<std::size_t>(node.mlCode - NodePlaceholder)];
    node.mpParent = &parent;
    node.mhItem = m_items.add(node, rowImageIndex(node.mlCode));
    for (VarTreeCtrlNode* child : node.mChildren)
        enter(*child, node, labels);
}

void ConditionModel::leave(VarTreeCtrlNode& node)
{
    for (VarTreeCtrlNode* child : node.mChildren)
        leave(*child);
    m_items.remove(node.mhItem);
    node.mhItem = nullptr;
}

ConditionModel::NodePtr ConditionModel::setTop(NodePtr node)
{
    beginResetModel();
    if (m_top)
        leave(*m_top);
    std::swap(m_top, node);
    if (m_top) {
        updateTypeName(*m_top);
        m_top->mpParent = nullptr;
        m_top->mhItem = TVI_ROOT;
        const std::vector<CString> labels = typeLabels();
        for (VarTreeCtrlNode* child : m_top->mChildren)
            enter(*child, *m_top, labels);
    }
    endResetModel();
    return node;
}

HTREEITEM ConditionModel::add(VarTreeCtrlNode& parent, NodePtr node, bool first)
{
    if (holds(*node))
        return node.release()->mhItem; // it has its place and its owner already
    requireRoomInList(parent.mChildren.size());
    if (parent.mChildren.capacity() == 0)
        parent.mChildren.reserve(kFirstChildren);
    const bool isShown = holds(parent);
    const int row = first ? 0 : static_cast<int>(parent.mChildren.size());
    if (isShown)
        beginInsertRows(indexOfNode(parent), row, row);
    VarTreeCtrlNode* added = node.release();
    parent.mChildren.insert(parent.mChildren.begin() + row, added);
    added->mpParent = &parent;
    updateTypeName(*added);
    if (isShown) {
        enter(*added, parent, typeLabels());
        endInsertRows();
    }
    return added->mhItem;
}

HTREEITEM ConditionModel::attach(VarTreeCtrlNode* parent, VarTreeCtrlNode* node, bool first)
{
    if (node == nullptr)
        return nullptr;
    if (parent != nullptr)
        return add(*parent, NodePtr(node), first);
    if (node != m_top.get())
        static_cast<void>(setTop(NodePtr(node)).release());
    return TVI_ROOT;
}

void ConditionModel::append(VarTreeCtrlNode& parent, std::vector<NodePtr> nodes)
{
    if (nodes.empty())
        return;
    requireRoomInList(parent.mChildren.size() + nodes.size() - 1);
    const std::vector<CString> labels = typeLabels();
    const int row = static_cast<int>(parent.mChildren.size());
    parent.mChildren.reserve(parent.mChildren.size() + nodes.size());
    beginInsertRows(indexOfNode(parent), row, row + static_cast<int>(nodes.size()) - 1);
    for (NodePtr& node : nodes) {
        parent.mChildren.push_back(node.release());
        enter(*parent.mChildren.back(), parent, labels);
    }
    endInsertRows();
}

void ConditionModel::remove(HTREEITEM item)
{
    if (item == TVI_ROOT) {
        setTop(nullptr);
        return;
    }
    const NodePtr removed(m_items.node(item));
    if (!removed)
        return;
    VarTreeCtrlNode& parent = *removed->mpParent;
    const int row = m_items.place(item, parent.mChildren);
    if (row >= 0) {
        beginRemoveRows(indexOfNode(parent), row, row);
        parent.mChildren.erase(parent.mChildren.begin() + row);
    }
    leave(*removed);
    if (row >= 0)
        endRemoveRows();
}

void ConditionModel::removeChildren(VarTreeCtrlNode& parent,
                                    const std::function<bool(const VarTreeCtrlNode&)>& picked)
{
    std::vector<VarTreeCtrlNode*> order = parent.mChildren;
    const auto firstPicked = std::stable_partition(
        order.begin(), order.end(), [&](const VarTreeCtrlNode* child) { return !picked(*child); });
    const int kept = static_cast<int>(firstPicked - order.begin());
    const int last = static_cast<int>(order.size()) - 1;
    if (kept > last)
        return;
    const bool isShown = holds(parent);
    if (order != parent.mChildren)
        moveToEnd(parent, order);
    if (isShown)
        beginRemoveRows(indexOfNode(parent), kept, last);
    const std::vector<VarTreeCtrlNode*> removed(parent.mChildren.begin() + kept,
                                                parent.mChildren.end());
    parent.mChildren.resize(static_cast<std::size_t>(kept));
    for (VarTreeCtrlNode* node : removed) {
        leave(*node);
        delete node;
    }
    if (isShown)
        endRemoveRows();
}

// One layout change and one removal cost less than a removal a row, each of which moves all that
// follow.
void ConditionModel::moveToEnd(VarTreeCtrlNode& parent, const std::vector<VarTreeCtrlNode*>& order)
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    parent.mChildren = order;
    int place = 0;
    QHash<quintptr, int> places;
    for (const VarTreeCtrlNode* child : order)
        places.insert(reinterpret_cast<quintptr>(child->mhItem), place++);
    QModelIndexList after;
    for (const QModelIndex& index : before) {
        const auto found = places.constFind(index.internalId());
        after << (found == places.constEnd() ? index : createIndex(*found, 0, index.internalId()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged();
}

void ConditionModel::updateTypeName(VarTreeCtrlNode& node) const
{
    if (const TextRef* label = typeLabel(node.mlCode))
        node.mName = label->from(m_strings);
}

void ConditionModel::expand(HTREEITEM item)
{
    const QModelIndex index = indexOf(item);
    if (index.isValid())
        Q_EMIT expandRequested(index);
}

QModelIndex ConditionModel::index(int row, int column, const QModelIndex& parent) const
{
    const VarTreeCtrlNode* node = nodeOf(parent);
    if (node == nullptr || column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    const VarTreeCtrlNode* child = node->mChildren[static_cast<std::size_t>(row)];
    return createIndex(row, 0, reinterpret_cast<quintptr>(child->mhItem));
}

QModelIndex ConditionModel::parent(const QModelIndex& child) const
{
    const VarTreeCtrlNode* node = child.isValid() ? nodeOf(child) : nullptr;
    return node == nullptr || node->mpParent == nullptr ? QModelIndex()
                                                        : indexOfNode(*node->mpParent);
}

int ConditionModel::rowCount(const QModelIndex& parent) const
{
    const VarTreeCtrlNode* node = nodeOf(parent);
    return node == nullptr ? 0 : static_cast<int>(node->mChildren.size());
}

int ConditionModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant ConditionModel::data(const QModelIndex& index, int role) const
{
    const VarTreeCtrlNode* node = index.isValid() ? nodeOf(index) : nullptr;
    if (node == nullptr)
        return {};
    if (role == Qt::DecorationRole && m_images.rows() != nullptr)
        return m_images.rows()->image(m_items.image(node->mhItem));
    if (role == Qt::AccessibleTextRole)
        return spokenText(*node);
    return {};
}

CString ConditionModel::spokenText(const VarTreeCtrlNode& node) const
{
    if (node.mlCode < Category)
        return node.mName;
    QStringList parts{node.mName.isEmpty() ? anyVariableText().from(m_strings) : node.mName,
                      operatorName(node.mlOperator, u"?", m_strings), node.mValue, node.mExtra};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace condtree
