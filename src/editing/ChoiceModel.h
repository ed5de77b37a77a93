#pragma once

#include <condtree/editing/ChoiceEntry.h>

#include <QAbstractListModel>

#include <memory>

namespace condtree {

class ImgLst;

/// The entries of a list: its own, and a shared tail behind them that is not copied.
/// Text, picture and, as Qt::UserRole, the command code.
class ChoiceModel final : public QAbstractListModel {
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// The list that pictures come from; null for none. It must outlive the model.
    void setImages(const ImgLst* images);

    /// Inserts an entry; a position that is negative or beyond the end appends. Its index.
    int insert(ChoiceEntry entry, int position);
    /// The same for several, which stay together.
    void insert(const ChoiceEntries& entries, int position);
    /// Puts entries behind those that are there, which become the list's own.
    void setTail(SharedChoices tail);

    [[nodiscard]] int count() const;
    /// index must be below count().
    [[nodiscard]] const ChoiceEntry& entry(int index) const;
    [[nodiscard]] const ChoiceEntries& own() const { return m_own; }
    /// Never null.
    [[nodiscard]] const SharedChoices& tail() const { return m_tail; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    void ownTail();

    ChoiceEntries m_own;
    SharedChoices m_tail = std::make_shared<const ChoiceEntries>();
    std::shared_ptr<const ImgLst> m_images;
};

} // namespace condtree
