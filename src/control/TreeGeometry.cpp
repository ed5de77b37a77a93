#include "TreeGeometry.h"

#include <condtree/control/ConditionModel.h>

#include <QStyle>
#include <QStyleOption>
#include <QTreeView>

namespace condtree {

namespace {

// What a row without text still has of it.
constexpr LONG kEmptyTextWidth = 4;

// The picture's place and the text behind it, or only the text.
LONG pictureWidth(const QTreeView& view, const QModelIndex& index)
{
    if (index.data(Qt::DecorationRole).isNull())
        return 0;
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    return view.iconSize().width() + 2 * margin;
}

bool hasButton(const QTreeView& view, const QModelIndex& index)
{
    const bool isDecorated = view.rootIsDecorated() || index.parent() != view.rootIndex();
    return isDecorated && view.model()->hasChildren(index);
}

// The style chooses within the last indentation before the item, as it does for the view's clicks.
QRect buttonRect(const QTreeView& view, const QRect& item)
{
    QStyleOption option;
    option.initFrom(&view);
    option.rect =
        QRect(item.left() - view.indentation(), item.top(), view.indentation(), item.height());
    return view.style()->subElementRect(QStyle::SE_TreeViewDisclosureItem, &option, &view);
}

} // namespace

std::optional<RowPlace> placeOfRow(const QTreeView& view, const QModelIndex& index)
{
    // The item's rectangle leaves out the indentation and includes the picture. In a narrow view
    // its width may be negative.
    const QRect item = view.visualRect(index);
    if (item.height() <= 0)
        return std::nullopt;
    const RECT row{0, item.top(), view.viewport()->width(), item.top() + item.height()};
    return RowPlace{row, item.left() + pictureWidth(view, index)};
}

std::optional<RowAreas> rowAreas(const QTreeView& view, const QModelIndex& index)
{
    const std::optional<RowPlace> place = placeOfRow(view, index);
    if (!place)
        return std::nullopt;
    const QRect item = view.visualRect(index);
    RowAreas areas{
        place->row, 0, 0, item.left(), place->textLeft, place->textLeft + kEmptyTextWidth};
    if (hasButton(view, index)) {
        const QRect button = buttonRect(view, item);
        areas.buttonLeft = button.left();
        areas.buttonRight = button.left() + button.width();
    }
    return areas;
}

TreeHit hitTest(const QTreeView& view, const ConditionModel& model, POINT point)
{
    const QRect viewport = view.viewport()->rect();
    const RECT client{0, 0, viewport.width(), viewport.height()};
    const QPoint position(point.x, point.y);
    const QModelIndex index = viewport.contains(position) ? view.indexAt(position) : QModelIndex();
    const std::optional<RowAreas> areas = rowAreas(view, index);
    return {areas ? model.itemOf(index) : nullptr, hitFlags(point, client, areas)};
}

} // namespace condtree
