#pragma once

#include <condtree/editing/EditedTree.h>
#include <condtree/editing/FocusEdit.h>
#include <condtree/editing/PickDateDlg.h>
#include <condtree/platform/Services.h>

#include <QPointer>
#include <QTreeView>

#include <functional>
#include <vector>

class QKeyEvent;

namespace condtree {

class ControlSettings;

/// The in-place editor and the date picker over a cell, of which at most one is open. It remembers
/// the row that is edited and tells when the user has changed it. A node that is no row of the tree
/// must outlive its editor.
///
/// Whatever lets the host in may delete the view and the row: who calls keeps this alive.
class InPlaceEditing final : private FocusEditListener {
public:
    /// All must outlive this, but for the view.
    InPlaceEditing(QTreeView& view, const Services& services, const ControlSettings& settings,
                   EditedTree& tree);

    /// What is called, last of all, when the user has changed a row; it may delete everything.
    void setHook(std::function<void()> changed);
    /// Finishes what is open; the view goes.
    void shutDown();

    /// Opens the in-place editor for a node with a text, over a cell of its edited column.
    void edit(VarTreeCtrlNode& node, const RECT& cell, const CString& text);
    /// Gives the open editor the focus and a key.
    void type(const QKeyEvent& key);
    /// Opens the date picker below a cell of a node and waits until it is closed.
    void pick(VarTreeCtrlNode& node, const RECT& cell);
    /// Finishes the in-place editor, if one is open.
    void finish();
    /// The same while the tree or the view is changing: a change is told later, if the row is there
    /// then.
    void finishMeanwhile();
    /// Finishes the in-place editor, and tells of all that was changed before it returns.
    void settle();
    [[nodiscard]] bool isEditing() const { return !m_editor.isNull(); }
    [[nodiscard]] bool isPicking() const { return !m_picker.isNull(); }
    /// Closes the picker, if it is open.
    void closePicker();
    /// Closes the picker when its row is gone.
    void forgetDeadRows();

private:
    /// The node that is edited; the row is null for a node outside the tree.
    struct Edited {
        VarTreeCtrlNode* node;
        HTREEITEM row;
    };

    [[nodiscard]] Edited editedOf(VarTreeCtrlNode& node) const;
    [[nodiscard]] VarTreeCtrlNode* nodeOf(const Edited& edited) const;
    void editFinished(FocusEdit* editor, const CString& text) override;
    void beforeLiveUpdate(FocusEdit*, const CString&) override {}
    void afterLiveUpdate(FocusEdit*, const CString&) override {}
    void finished();
    void tellNext();
    void tellChanged();

    QPointer<QTreeView> m_view;
    const Services& m_services;
    const ControlSettings& m_settings;
    EditedTree& m_tree;
    std::function<void()> m_changed;
    QPointer<FocusEdit> m_editor;
    QPointer<PickDateDlg> m_picker;
    Edited m_edited{};
    Edited m_picked{};
    QRect m_cell;
    CString m_valueBefore;
    CString m_extraBefore;
    bool m_isTreeChanging = false;
    bool m_hadFocus = false;
    /// Changes of which the host was not told yet.
    std::vector<Edited> m_untold;
};

} // namespace condtree
