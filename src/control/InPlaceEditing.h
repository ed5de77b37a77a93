#pragma once

#include <condtree/editing/EditedTree.h>
#include <condtree/editing/FocusEdit.h>
#include <condtree/editing/PickDateDlg.h>
#include <condtree/platform/Services.h>

#include <QPointer>
#include <QTreeView>

#include <functional>

namespace condtree {

class ControlSettings;

/// The in-place editor and the date picker over a cell, of which at most one is open. It remembers
/// the row that is edited and tells when the user has changed it.
///
/// Whatever lets the host in may delete the view and the row: who calls keeps this alive.
class InPlaceEditing {
public:
    /// All must outlive this, but for the view.
    InPlaceEditing(QTreeView& view, const Services& services, const ControlSettings& settings,
                   EditedTree& tree);

    /// What is called, last of all, when the user has changed a row; it may delete everything.
    void setHook(std::function<void()> changed);
    /// Finishes what is open; the view goes.
    void shutDown();

    /// Opens the in-place editor for a row, over a cell of its edited column.
    void edit(VarTreeCtrlNode& node, const RECT& cell);
    /// Opens the date picker below a cell of a row and waits until it is closed.
    void pick(VarTreeCtrlNode& node, const RECT& cell);
    /// Finishes the in-place editor, if one is open.
    void finish();
    /// The same while the tree is changing: a change is told later, if the row is there then.
    void finishMeanwhile();
    /// Closes the picker when its row is gone.
    void forgetDeadRows();

private:
    void finished();
    void tellChanged();
    void tellLater();

    QPointer<QTreeView> m_view;
    const Services& m_services;
    const ControlSettings& m_settings;
    EditedTree& m_tree;
    std::function<void()> m_changed;
    QPointer<FocusEdit> m_editor;
    QPointer<PickDateDlg> m_picker;
    HTREEITEM m_item = nullptr;
    HTREEITEM m_pickedItem = nullptr;
    QRect m_cell;
    CString m_valueBefore;
    CString m_extraBefore;
    bool m_isTreeChanging = false;
};

} // namespace condtree
