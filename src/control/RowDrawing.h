#pragma once

#include <condtree/control/TreeGeometry.h>
#include <condtree/platform/Services.h>
#include <condtree/platform/TreeVocabulary.h>
#include <condtree/presentation/FittedTexts.h>
#include <condtree/presentation/RowPicture.h>

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

#include <functional>

class QTreeView;

namespace condtree {

class ColumnShares;
class ConditionImages;
class ConditionModel;
class VarTreeCtrlNode;

/// What a row shows, from its node.
[[nodiscard]] RowContent contentOfRow(const VarTreeCtrlNode& node, const VarTreeCtrlNode* top);

/// Draws the columns of rows, as the last stage of drawing asks.
class RowDrawing {
public:
    using Stage = std::function<LRESULT(NMTVCUSTOMDRAW&)>;

    /// All must outlive the drawing.
    RowDrawing(const Services& services, const ConditionModel& model, const ColumnShares& columns,
               const ConditionImages& images);

    /// Answers a stage, and paints the row's columns when the stage is its last one: at its place
    /// in view, else, where it has none, in the notification's rectangle. A row without a node, and
    /// a notification without a painter, paint nothing.
    LRESULT handle(const NMTVCUSTOMDRAW& draw, const QTreeView& view) const;

    /// Begins a repaint of view; stage answers whether the rows are told.
    void begin(NMTVCUSTOMDRAW draw, const Stage& stage, const QTreeView& view);
    /// Tells of a row before the view draws it. Whether its last stage is told too.
    [[nodiscard]] bool beginRow(NMTVCUSTOMDRAW& draw, const Stage& stage) const;
    /// How the view itself is to draw a row: without its highlight, which the columns would cover
    /// but for a rest at the left.
    [[nodiscard]] static QStyleOptionViewItem plain(QStyleOptionViewItem option);
    /// Tells of a row's last stage, if isTold, and marks it as selected, hovered or focused.
    void endRow(NMTVCUSTOMDRAW& draw, const Stage& stage, bool isTold, const QTreeView& view) const;

    /// Marks a row as the one under a drag; null is none. The view is drawn anew by who calls.
    void setDropHighlight(HTREEITEM item) { m_dropHighlight = item; }
    [[nodiscard]] HTREEITEM dropHighlight() const { return m_dropHighlight; }

private:
    void mark(const NMTVCUSTOMDRAW& draw, const QTreeView& view) const;
    void paint(QPainter& painter, const VarTreeCtrlNode& node, const RowPlace& place) const;

    const Services& m_services;
    const ConditionModel& m_model;
    const ColumnShares& m_columns;
    const ConditionImages& m_images;
    // Remembering how a text was cut is no change that anyone can see.
    mutable FittedTexts m_texts;
    bool m_tellsRows = false;
    /// The row under the pointer during a repaint.
    QPersistentModelIndex m_hovered;
    HTREEITEM m_dropHighlight = nullptr;
};

/// Gives rows their height: that of the resolution, or of the font where that is larger.
class RowDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
};

} // namespace condtree
