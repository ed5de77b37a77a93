#include "RowDrawing.h"

#include <condtree/control/ConditionModel.h>
#include <condtree/presentation/CDPIHelper.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/presentation/CustomDraw.h>
#include <condtree/presentation/RowLayout.h>
#include <condtree/presentation/RowPainter.h>

#include <QPainter>
#include <QStyle>
#include <QTreeView>

#include <algorithm>

namespace condtree {

namespace {

// What the font needs above and below, so that neighbouring frames keep clear of the letters.
constexpr int kFontMargin = 6;

} // namespace

std::optional<RowPlace> placeOfRow(const QTreeView& view, const QModelIndex& index)
{
    const QRect item = view.visualRect(index);
    if (item.isEmpty())
        return std::nullopt;
    // The item's rectangle leaves out the indentation and includes the picture.
    const bool hasPicture = !index.data(Qt::DecorationRole).isNull();
    const QStyle& style = *view.style();
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    const int picture = hasPicture ? view.iconSize().width() + 2 * margin : 0;
    const RECT row{0, item.top(), view.viewport()->width(), item.top() + item.height()};
    return RowPlace{row, item.left() + picture};
}

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

LRESULT RowDrawing::handle(const NMTVCUSTOMDRAW& draw, const std::optional<RowPlace>& place) const
{
    const LRESULT answer = customDrawAnswer(draw.dwDrawStage);
    const VarTreeCtrlNode* node = m_model.node(draw.dwItemSpec);
    if (draw.dwDrawStage != CDDS_ITEMPOSTPAINT || draw.hdc == nullptr || node == nullptr)
        return answer;
    const ImgLst noImages{QSize()};
    const ImgLst& images = m_images.operators() == nullptr ? noImages : *m_images.operators();
    const RowPlace where = place.value_or(RowPlace{draw.rc, draw.rc.left});
    const RowLayout layout(where.row, where.textLeft, m_columns,
                           m_services.systemMetric(SM_CXSMICON));
    const RowContent content = contentOfRow(*node, m_model.top());
    paintRow(*draw.hdc, describeRow(content, layout, m_services.string), images);
    return answer;
}

void RowDrawing::begin(NMTVCUSTOMDRAW draw, const Stage& stage)
{
    draw.dwDrawStage = CDDS_PREPAINT;
    m_tellsRows = (stage(draw) & CDRF_NOTIFYITEMDRAW) != 0;
}

void RowDrawing::drawRow(NMTVCUSTOMDRAW draw, const Stage& stage,
                         const std::function<void()>& baseRow) const
{
    draw.dwDrawStage = CDDS_ITEMPREPAINT;
    const LRESULT answer = m_tellsRows ? stage(draw) : CDRF_DODEFAULT;
    baseRow();
    draw.dwDrawStage = CDDS_ITEMPOSTPAINT;
    if ((answer & CDRF_NOTIFYPOSTPAINT) != 0)
        stage(draw);
}

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const
{
    const int fontHeight = option.fontMetrics.height() + kFontMargin;
    return {0, std::max(CDPIHelper::get()->getTreeItemHeight(), fontHeight)};
}

} // namespace condtree
