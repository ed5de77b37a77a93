#include "ViewState.h"

#include <condtree/control/ConditionModel.h>

namespace condtree {

ViewState::ViewState(QTreeView& view, const ConditionModel& model)
    : m_view(&view)
    , m_model(model)
    , m_current(model.itemOf(view.currentIndex()))
    , m_atTop(model.itemOf(view.indexAt({0, 0})))
{
    if (model.top() != nullptr)
        collectOpen(*model.top());
}

void ViewState::collectOpen(const VarTreeCtrlNode& level)
{
    for (const VarTreeCtrlNode* row : level.mChildren) {
        if (row->mChildren.empty())
            continue;
        if (m_view->isExpanded(m_model.indexOf(row->mhItem)))
            m_open.push_back(row->mhItem);
        collectOpen(*row);
    }
}

void ViewState::restore() const
{
    if (m_view.isNull())
        return;
    for (const HTREEITEM item : m_open) {
        const QModelIndex index = m_model.indexOf(item);
        if (index.isValid())
            m_view->setExpanded(index, true);
    }
    const QModelIndex current = m_model.indexOf(m_current);
    if (current.isValid())
        m_view->setCurrentIndex(current);
    const QModelIndex atTop = m_model.indexOf(m_atTop);
    if (atTop.isValid())
        m_view->scrollTo(atTop, QAbstractItemView::PositionAtTop);
}

} // namespace condtree
