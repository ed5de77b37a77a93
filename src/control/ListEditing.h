#pragma once

#include <condtree/editing/ChoiceCache.h>
#include <condtree/editing/ChoiceEntry.h>
#include <condtree/editing/CloseUp.h>
#include <condtree/editing/ComboSession.h>
#include <condtree/editing/EditedTree.h>
#include <condtree/editing/InputRelay.h>
#include <condtree/editing/KindList.h>
#include <condtree/platform/Services.h>

#include <QPointer>
#include <QTreeView>

#include <functional>

namespace condtree {

class ConditionImages;
class ControlSettings;
class ImgLst;
struct ReferenceData;

/// The list over a cell: fills it, opens it, and applies what is chosen when it closes. It owns the
/// combo's session and remembers the row that it is for.
///
/// Whatever lets the host in may delete the view, the row and the list: who calls keeps this alive.
class ListEditing {
public:
    /// All must outlive this, but for the view.
    ListEditing(QTreeView& view, const Services& services, ControlSettings& settings,
                ReferenceData& reference, const ConditionImages& images, EditedTree& tree);

    /// What is called when a list has closed, and with keys and turns of the wheel that another
    /// widget gets while it is open.
    void setHooks(std::function<void()> closedUp, std::function<void(QEvent*)> input);
    /// Whether the lists opened from now on filter by what is typed.
    void setQuickFilter(bool on) { m_filters = on; }
    /// Destroys the list; the view goes.
    void shutDown();

    /// The row that was clicked last; null when it is gone.
    [[nodiscard]] HTREEITEM clicked() const { return m_clicked; }
    /// Begins the edit of a row: the next list measures its texts anew.
    void begin() { m_session.resetLongest(); }
    void setClicked(HTREEITEM item) { m_clicked = item; }
    [[nodiscard]] ComboSession& session() { return m_session; }
    /// Takes the list away without applying anything.
    void clear();

    /// Opens the list of what the clicked row may be, and of its operators.
    void openKinds(const RECT& cell);
    void openOperators(const RECT& cell);
    /// Opens a list of values over a cell, nothing selected.
    void openValues(const RECT& cell, const SharedChoices& values);
    /// The entries of long lists, made once.
    [[nodiscard]] ChoiceCache& cache() { return m_cache; }

    /// Applies what is selected in the list to the clicked row, and hides the list unless the
    /// choice could not be applied. Whether that changed anything.
    [[nodiscard]] bool closeUp();
    /// Whether a list is dropped down.
    [[nodiscard]] bool isOpen() const;
    /// Applies what was chosen from a list that has closed, if that is still to come.
    void settle();
    /// Closes the list, if it is open, as clicking elsewhere does.
    void close();
    /// Takes the list away without applying anything, if it is open: another editor opens.
    void dismiss();
    /// Gives the open list a typed character or a turn of the wheel.
    void forward(QEvent& event);
    /// Forgets what is gone: to be called when rows are.
    void forgetDeadRows();

private:
    [[nodiscard]] Services knowingMetrics() const;
    CommandCombo* make(const RECT& cell, const ImgLst* images);
    [[nodiscard]] KindListFor kindListFor() const;
    void preselectKind(const KindListFor& list);
    void selectText(const CString& text, int start);
    void drop();
    [[nodiscard]] bool isStill(const QPointer<CommandCombo>& combo, HTREEITEM row) const;
    [[nodiscard]] CloseUpResult apply(const QPointer<CommandCombo>& combo, int selected);

    QPointer<QTreeView> m_view;
    const Services& m_services;
    ControlSettings& m_settings;
    ReferenceData& m_reference;
    const ConditionImages& m_images;
    EditedTree& m_tree;
    ComboSession m_session;
    ChoiceCache m_cache;
    InputRelay m_input;
    HTREEITEM m_clicked = nullptr;
    bool m_filters = true;
    QPointer<CommandCombo> m_applying; ///< whose choice is being applied
    std::function<void()> m_closedUp;
};

} // namespace condtree
