#include "ConditionModel.h"

#include <condtree/model/ControlText.h>
#include <condtree/platform/Lst.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/values/CommandCatalogue.h>
#include <condtree/values/OperatorCatalogue.h>

#include <QIcon>
#include <QStringList>

#include <algorithm>
#include <utility>

namespace condtree {

namespace {
// Groups are small: the first block of a level's list.
constexpr std::size_t kFirstChildren = 10;

// The labels that nodes take from their codes are kept in the order of the codes.
static_assert(NodePlaceholder + 1 == NodeAnd && NodeAnd + 1 == NodeOr);
} // namespace

// Resetting costs the same however many rows come or go, where telling of each would cost a step
// for every open group each time.
ConditionModel::Bulk::Bulk(ConditionModel& model)
    : m_model(model)
{
    if (m_model.m_bulks++ == 0)
        m_model.beginResetModel();
}

ConditionModel::Bulk::~Bulk()
{
    if (--m_model.m_bulks == 0)
        m_model.endResetModel();
}

ConditionModel::ConditionModel(const StringSource& strings, const ConditionImages& images,
                               std::size_t roomOfLevel)
    : m_strings(strings)
    , m_images(images)
    , m_roomOfLevel(roomOfLevel)
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

bool ConditionModel::isShown(const VarTreeCtrlNode& node) const
{
    return m_bulks == 0 && holds(node);
}

void ConditionModel::enter(VarTreeCtrlNode& node, VarTreeCtrlNode& parent, int place,
                           const std::vector<CString>& labels)
{
    if (typeLabel(node.mlCode) != nullptr)
        node.mName = labels[static_cast<std::size_t>(node.mlCode - NodePlaceholder)];
    node.mpParent = &parent;
    node.mhItem = m_items.add(node, rowImageIndex(node.mlCode), place);
    enterChildren(node, labels);
}

void ConditionModel::enterChildren(VarTreeCtrlNode& node, const std::vector<CString>& labels)
{
    int place = 0;
    for (VarTreeCtrlNode* child : node.mChildren)
        enter(*child, node, place++, labels);
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
    const std::vector<CString> labels = node ? typeLabels() : std::vector<CString>();
    if (node)
        updateTypeName(*node);
    const Bulk bulk(*this); // the texts are the host's, who may ask for changes of his own
    ++m_revision;
    if (m_top)
        leave(*m_top);
    std::swap(m_top, node);
    if (m_top) {
        m_top->mpParent = nullptr;
        m_top->mhItem = TVI_ROOT;
        enterChildren(*m_top, labels);
    }
    return node;
}

HTREEITEM ConditionModel::add(VarTreeCtrlNode& parent, NodePtr node, bool first)
{
    const HTREEITEM parentItem = parent.mhItem;
    const bool isInTree = holds(parent);
    const bool needsLabels = typeLabel(node->mlCode) != nullptr || !node->mChildren.empty();
    const std::vector<CString> labels =
        isInTree && needsLabels ? typeLabels() : std::vector<CString>();
    if (!isInTree)
        updateTypeName(*node);
    else if (this->node(parentItem) != &parent)
        return nullptr; // the texts are the host's, who deleted the parent meanwhile

    requireRoomInList(parent.mChildren.size(), m_roomOfLevel);
    if (parent.mChildren.capacity() == 0)
        parent.mChildren.reserve(kFirstChildren);
    const bool isTold = isShown(parent);
    const int row = first ? 0 : static_cast<int>(parent.mChildren.size());
    ++m_revision;
    if (isTold)
        beginInsertRows(indexOfNode(parent), row, row);
    VarTreeCtrlNode* added = node.release();
    parent.mChildren.insert(parent.mChildren.begin() + row, added);
    added->mpParent = &parent;
    if (isInTree)
        enter(*added, parent, row, labels);
    const HTREEITEM item = added->mhItem; // who is told of the row may delete it
    if (isTold)
        endInsertRows();
    return item;
}

HTREEITEM ConditionModel::attach(VarTreeCtrlNode* parent, VarTreeCtrlNode* node, bool first)
{
    if (node == nullptr)
        return nullptr;
    if (holds(*node))
        return node->mhItem; // it has its place and its owner already
    if (parent != nullptr)
        return add(*parent, NodePtr(node), first);
    static_cast<void>(setTop(NodePtr(node)).release()); // the caller's again
    return TVI_ROOT;
}

void ConditionModel::append(VarTreeCtrlNode& parent, std::vector<NodePtr> nodes)
{
    if (nodes.empty())
        return;
    const HTREEITEM parentItem = parent.mhItem;
    const std::vector<CString> labels = typeLabels();
    if (node(parentItem) != &parent)
        return; // the texts are the host's, who deleted the parent meanwhile
    requireRoomInList(parent.mChildren.size() + nodes.size() - 1, m_roomOfLevel);
    const bool isTold = isShown(parent);
    int row = static_cast<int>(parent.mChildren.size());
    parent.mChildren.reserve(parent.mChildren.size() + nodes.size());
    ++m_revision;
    if (isTold)
        beginInsertRows(indexOfNode(parent), row, row + static_cast<int>(nodes.size()) - 1);
    for (NodePtr& node : nodes) {
        parent.mChildren.push_back(node.release());
        enter(*parent.mChildren.back(), parent, row++, labels);
    }
    if (isTold)
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
    const bool isTold = row >= 0 && isShown(parent);
    ++m_revision;
    if (isTold)
        beginRemoveRows(indexOfNode(parent), row, row);
    if (row >= 0)
        parent.mChildren.erase(parent.mChildren.begin() + row);
    leave(*removed);
    if (isTold)
        endRemoveRows();
}

void ConditionModel::removeChildren(VarTreeCtrlNode& parent,
                                    const std::function<bool(const VarTreeCtrlNode&)>& picked)
{
    const Bulk bulk(*this);
    ++m_revision;
    std::vector<VarTreeCtrlNode*>& children = parent.mChildren;
    const auto firstPicked =
        std::stable_partition(children.begin(), children.end(),
                              [&](const VarTreeCtrlNode* child) { return !picked(*child); });
    for (auto child = firstPicked; child != children.end(); ++child) {
        leave(**child);
        delete *child;
    }
    children.erase(firstPicked, children.end());
}

void ConditionModel::moveLast(VarTreeCtrlNode& level,
                              const std::function<bool(const VarTreeCtrlNode&)>& picked)
{
    const auto stays = [&](const VarTreeCtrlNode* child) { return !picked(*child); };
    std::vector<VarTreeCtrlNode*>& children = level.mChildren;
    if (std::is_partitioned(children.begin(), children.end(), stays))
        return;
    const bool isTold = isShown(level);
    const QList<QPersistentModelIndex> changed{QPersistentModelIndex(indexOfNode(level))};
    if (isTold)
        Q_EMIT layoutAboutToBeChanged(changed, VerticalSortHint);
    std::stable_partition(children.begin(), children.end(), stays);
    ++m_revision;
    int place = 0;
    for (const VarTreeCtrlNode* child : children)
        m_items.setPlace(child->mhItem, place++);
    for (const QModelIndex& index : persistentIndexList())
        changePersistentIndex(index, indexOf(itemOf(index)));
    if (isTold)
        Q_EMIT layoutChanged(changed, VerticalSortHint);
}

void ConditionModel::clearChildren(VarTreeCtrlNode& parent)
{
    if (parent.mChildren.empty())
        return;
    const bool isTold = isShown(parent);
    ++m_revision;
    if (isTold)
        beginRemoveRows(indexOfNode(parent), 0, static_cast<int>(parent.mChildren.size()) - 1);
    const std::vector<VarTreeCtrlNode*> children = std::exchange(parent.mChildren, {});
    for (VarTreeCtrlNode* child : children) {
        leave(*child);
        delete child;
    }
    if (isTold)
        endRemoveRows();
}

void ConditionModel::setImage(HTREEITEM item, int image)
{
    if (m_items.image(item) == image || m_items.node(item) == nullptr)
        return;
    m_items.setImage(item, image);
    const QModelIndex index = indexOf(item);
    if (m_bulks == 0 && index.isValid())
        Q_EMIT dataChanged(index, index, {Qt::DecorationRole});
}

void ConditionModel::updateTypeName(VarTreeCtrlNode& node) const
{
    const TextRef* label = typeLabel(node.mlCode);
    if (label == nullptr)
        return;
    const HTREEITEM item = node.mhItem;
    const bool isRow = this->node(item) == &node;
    const CString text = label->from(m_strings);
    // The text is the host's, who may have deleted the row meanwhile.
    if (!isRow || this->node(item) == &node)
        node.mName = text;
}

void ConditionModel::expand(HTREEITEM item)
{
    const QModelIndex index = indexOf(item);
    if (index.isValid())
        Q_EMIT expandRequested(index);
}

void ConditionModel::tellTextsChanged()
{
    Q_EMIT textsChanged();
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
    if (role == Qt::DecorationRole)
        return picture(m_items.image(node->mhItem));
    if (role == Qt::AccessibleTextRole)
        return spokenText(*node);
    return {};
}

/// A picture as the view draws it, made once: the list only grows.
QVariant ConditionModel::picture(int image) const
{
    const ImgLst* rows = m_images.rows();
    if (rows == nullptr || image < 0 || image >= rows->count())
        return {};
    while (static_cast<int>(m_pictures.size()) <= image)
        m_pictures.push_back(m_images.rowIcon(static_cast<int>(m_pictures.size())));
    return m_pictures[static_cast<std::size_t>(image)];
}

CString ConditionModel::spokenText(const VarTreeCtrlNode& node) const
{
    if (node.mlCode < Category)
        return node.mName;
    QStringList parts{node.mName.isEmpty() ? textRef(ControlText::AnyVariable).from(m_strings)
                                           : node.mName,
                      operatorName(node.mlOperator, u"?", m_strings), node.mValue, node.mExtra};
    parts.removeAll(QString());
    return parts.join(QLatin1String(", "));
}

} // namespace condtree
