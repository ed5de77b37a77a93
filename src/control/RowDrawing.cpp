#include "RowDrawing.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/presentation/CustomDraw.h>
#include <condtree/presentation/RowLayout.h>
#include <condtree/presentation/RowMarks.h>
#include <condtree/presentation/RowPainter.h>
#include <condtree/presentation/RowStyle.h>

#include <QPainter>
#include <QTreeView>

#include <algorithm>
#include <optional>

namespace condtree {

namespace {

// What the font needs above and below, so that neighbouring frames keep clear of the letters.
constexpr int kFontMargin = 6;

} // namespace

RowContent contentOfRow(const VarTreeCtrlNode& node, const VarTreeCtrlNode* top)
{
    RowContent content{node.mlCode, node.mName,      node.mValue,
                       node.mExtra, node.mlOperator, std::nullopt};
    if (node.mpParent != nullptr && node.mpParent != top)
        content.parentCode = node.mpParent->mlCode;
    return content;
}

RowDrawing::RowDrawing(const Services& services, const ConditionModel& model,
                       const ColumnShares& columns, const ConditionImages& images)
    : m_services(services)
    , m_model(model)
    , m_columns(columns)
    , m_images(images)
{
}

LRESULT RowDrawing::handle(const NMTVCUSTOMDRAW& draw, const QTreeView& view) const
{
    if (draw.dwDrawStage != CDDS_ITEMPOSTPAINT || draw.hdc == nullptr)
        return customDrawAnswer(draw.dwDrawStage);
    if (const VarTreeCtrlNode* node = m_model.node(draw.dwItemSpec)) {
        const std::optional<RowPlace> place = placeOfRow(view, m_model.indexOf(draw.dwItemSpec));
        paint(*draw.hdc, *node, place.value_or(RowPlace{draw.rc, draw.rc.left}));
    }
    return customDrawAnswer(draw.dwDrawStage);
}

void RowDrawing::paint(QPainter& painter, const VarTreeCtrlNode& node, const RowPlace& place) const
{
    const RowLayout layout(place.row, place.textLeft, m_columns,
                           m_services.systemMetric(SM_CXSMICON));
    const RowContent content = contentOfRow(node, m_model.top());
    paintRow(painter, describeRow(content, layout, m_services.string), m_images.operators(),
             m_texts);
}

void RowDrawing::begin(NMTVCUSTOMDRAW draw, const Stage& stage, const QTreeView& view)
{
    const POINT pointer = m_services.cursorPos();
    const QWidget& viewport = *view.viewport();
    m_hovered = viewport.underMouse()
                    ? view.indexAt(viewport.mapFromGlobal(QPoint(pointer.x, pointer.y)))
                    : QModelIndex();
    draw.dwDrawStage = CDDS_PREPAINT;
    m_tellsRows = (stage(draw) & CDRF_NOTIFYITEMDRAW) != 0;
}

bool RowDrawing::beginRow(NMTVCUSTOMDRAW& draw, const Stage& stage) const
{
    draw.dwDrawStage = CDDS_ITEMPREPAINT;
    return m_tellsRows && (stage(draw) & CDRF_NOTIFYPOSTPAINT) != 0;
}

QStyleOptionViewItem RowDrawing::plain(QStyleOptionViewItem option)
{
    option.palette.setBrush(QPalette::Highlight, Qt::transparent);
    return option;
}

void RowDrawing::endRow(NMTVCUSTOMDRAW& draw, const Stage& stage, bool isTold,
                        const QTreeView& view) const
{
    draw.dwDrawStage = CDDS_ITEMPOSTPAINT;
    if (isTold)
        stage(draw);
    mark(draw, view);
}

void RowDrawing::mark(const NMTVCUSTOMDRAW& draw, const QTreeView& view) const
{
    const QModelIndex index = m_model.indexOf(draw.dwItemSpec);
    if (!index.isValid()) // a subclass's handler may have deleted the row
        return;
    const RowMarks marks{view.selectionModel()->isSelected(index), index == m_hovered,
                         view.hasFocus() && index == view.currentIndex(),
                         draw.dwItemSpec == m_dropHighlight};
    const RECT row{0, draw.rc.top, view.viewport()->width(), draw.rc.bottom};
    const QPalette& palette = view.palette();
    const COLORREF colour = markColour(palette, palette.currentColorGroup());
    if (const RowPicture picture = describeMarks(row, marks, colour); !picture.isEmpty())
        paintRow(*draw.hdc, picture, nullptr, m_texts);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const int fontHeight = option.fontMetrics.height() + kFontMargin;
    return {0, std::max(CDPIHelper::get()->getTreeItemHeight(), fontHeight)};
}

} // namespace condtree
