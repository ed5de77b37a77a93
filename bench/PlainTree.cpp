#include "PlainTree.h"

namespace condtree::bench {

void PlainTree::load(const std::vector<TransCond>& records)
{
    beginResetModel();
    m_rows.clear();
    for (const TransCond& record : records) {
        const bool isGroup = record.lRowKind == RowKindGroup;
        auto& level = record.lRowKind == RowKindInGroup ? m_rows.back().children : m_rows;
        Row& row = level.emplace_back();
        row.place = int(level.size()) - 1;
        row.texts = {isGroup ? QStringLiteral("Or") : QString(record.oName),
                     isGroup ? QString() : QStringLiteral("String Contains"), record.oValue,
                     record.oExtra};
    }
    // Rows no longer move: their addresses may be taken.
    for (Row& row : m_rows) {
        for (Row& child : row.children)
            child.parent = &row;
    }
    endResetModel();
}

const PlainTree::Row* PlainTree::rowOf(const QModelIndex& index)
{
    return static_cast<const Row*>(index.constInternalPointer());
}

const std::vector<PlainTree::Row>& PlainTree::childrenOf(const QModelIndex& parent) const
{
    return parent.isValid() ? rowOf(parent)->children : m_rows;
}

QModelIndex PlainTree::index(int row, int column, const QModelIndex& parent) const
{
    return createIndex(row, column, &childrenOf(parent)[std::size_t(row)]);
}

QModelIndex PlainTree::parent(const QModelIndex& child) const
{
    const Row* const parent = rowOf(child)->parent;
    return parent != nullptr ? createIndex(parent->place, 0, parent) : QModelIndex();
}

int PlainTree::rowCount(const QModelIndex& parent) const
{
    return int(childrenOf(parent).size());
}

QVariant PlainTree::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? rowOf(index)->texts[std::size_t(index.column())] : QVariant();
}

} // namespace condtree::bench
