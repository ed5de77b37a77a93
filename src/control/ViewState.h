#pragma once

#include <condtree/platform/TreeVocabulary.h>

#include <QPointer>
#include <QTreeView>

#include <vector>

namespace condtree {

class ConditionModel;
class VarTreeCtrlNode;

/// Which rows of a view are open, which one is current, and how far it is scrolled: kept through a
/// reset of the model, by the rows that are still there.
class ViewState {
public:
    /// model must be the view's and outlive the state; the view may die before it.
    ViewState(QTreeView& view, const ConditionModel& model);
    /// Opens the rows again, makes the row current and scrolls to where the view was.
    void restore() const;

private:
    void collectOpen(const VarTreeCtrlNode& level);

    QPointer<QTreeView> m_view;
    const ConditionModel& m_model;
    std::vector<HTREEITEM> m_open;
    HTREEITEM m_current;
    HTREEITEM m_atTop;
};

} // namespace condtree
