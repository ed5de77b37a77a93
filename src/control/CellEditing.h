#pragma once

#include <condtree/control/InPlaceEditing.h>
#include <condtree/control/ListEditing.h>
#include <condtree/editing/ClickDecision.h>
#include <condtree/editing/ValueEditorChoice.h>
#include <condtree/presentation/RowLayout.h>

#include <optional>

class QKeyEvent;

namespace condtree {

class ColumnShares;
class ConditionModel;
class ManagerRef;

/// What the editors of cells need; all must outlive them, but for the view.
struct CellEditingNeeds {
    QTreeView& view;
    const Services& services;
    const ManagerRef& manager;
    ControlSettings& settings;
    ReferenceData& reference;
    const ConditionImages& images;
    const ColumnShares& columns;
    const ConditionModel& model;
    EditedTree& tree;
    /// Shows the message of a result code, in a box of a type.
    std::function<void(HRESULT code, unsigned type)> report;
};

/// Opens the editor that a click on a cell asks for: a list, the in-place editor or the date
/// picker.
class CellEditing {
public:
    explicit CellEditing(const CellEditingNeeds& needs);

    [[nodiscard]] ListEditing& lists() { return m_lists; }
    [[nodiscard]] InPlaceEditing& inPlace() { return m_inPlace; }

    /// The column, 0 to 3, of a row in which a point of the viewport lies, and its cell; -1, and
    /// the row, when it lies outside. A handle that names no row gives -1 and an empty cell.
    int columnAt(POINT point, HTREEITEM item, RECT& cell) const;
    /// A click on a point of the screen.
    void click(POINT onScreen);
    /// Opens the editor of a node's value over a cell. The node may be outside the tree.
    void clickValue(VarTreeCtrlNode& node, const RECT& cell);
    /// A key that the view got. An in-place editor that is open has it; else a character on a row
    /// whose value is picked from a calendar begins to replace the value, in the in-place editor.
    /// False for other keys and rows.
    bool typeDate(const QKeyEvent& key);

    /// The rows move: what is open over them finishes, or closes.
    void rowsMove();
    /// Rows are about to come or go.
    void rowsAboutToShift();
    /// Rows came, went, opened or closed: what is open over others than its own now closes, and
    /// chooses nothing.
    void rowsShift();
    /// The view goes.
    void shutDown();

private:
    void perform(const IgnoreClick&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const OpenNothing&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const OpenKindList&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const OpenOperatorList&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const OpenValueEditor&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const OpenExtraEditor&, VarTreeCtrlNode& node, const RECT& cell);
    void perform(const CloseExtraEditor&, VarTreeCtrlNode& node, const RECT& cell);
    [[nodiscard]] std::optional<RowLayout> layoutOf(HTREEITEM item) const;
    [[nodiscard]] ValueEditorChoice valueEditorOf(const VarTreeCtrlNode& node) const;
    [[nodiscard]] RECT comboCellOf(const RECT& cell, int column) const;
    void editValue(VarTreeCtrlNode& node, const RECT& cell);
    void openValueList(const OpenValueList& list, RECT cell);
    [[nodiscard]] SharedChoices valuesOf(ValueList list);
    [[nodiscard]] SharedChoices stateValues();
    void openDocumentTypes(const RECT& cell);
    [[nodiscard]] HRESULT fetchDocumentTypes(ChoiceEntries& entries) const;

    [[nodiscard]] std::optional<LONG> topOf(HTREEITEM item) const;
    void rememberPlace(HTREEITEM item);

    QPointer<QTreeView> m_view;
    /// The row that something was opened for last, and where it was then.
    HTREEITEM m_openFor = nullptr;
    std::optional<LONG> m_openAt;
    CellEditingNeeds m_needs;
    ListEditing m_lists;
    InPlaceEditing m_inPlace;
};

} // namespace condtree
