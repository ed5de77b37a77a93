#pragma once

#include <QAbstractItemDelegate>
#include <QPointer>

namespace condtree {

/// Gives the rows of a view a height, and leaves all else to the delegate that the view had.
class RowHeightDelegate final : public QAbstractItemDelegate {
    Q_OBJECT
public:
    /// inner stays its owner's; once it is gone, rows have their height and nothing is drawn.
    RowHeightDelegate(QAbstractItemDelegate* inner, QObject* parent);

    void setHeight(int height);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPointer<QAbstractItemDelegate> m_inner;
    int m_height = 0;
};

} // namespace condtree
