#pragma once

#include <condtree/model/TransCond.h>

#include <QAbstractItemModel>

#include <array>
#include <vector>

namespace condtree::bench {

/// What there would be without the control: the four texts of every record in a plain model of four
/// columns, for a stock QTreeView. No reference data, no placeholders, nothing to edit.
class PlainTree final : public QAbstractItemModel {
    Q_OBJECT
public:
    /// Replaces the rows.
    void load(const std::vector<TransCond>& records);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex&) const override { return 4; }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Row {
        std::array<QString, 4> texts;
        const Row* parent = nullptr;
        int place = 0;
        std::vector<Row> children{};
    };
    [[nodiscard]] static const Row* rowOf(const QModelIndex& index);
    [[nodiscard]] const std::vector<Row>& childrenOf(const QModelIndex& parent) const;

    std::vector<Row> m_rows;
};

} // namespace condtree::bench
