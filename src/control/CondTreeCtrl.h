#pragma once

#include <condtree/control/RealServices.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/model/TransCond.h>
#include <condtree/model/TreeType.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/platform/Services.h>
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/TreeVocabulary.h>

#include <QTreeView>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace condtree {

class ColumnShares;
struct CondTreeParts;

/// A tree in which an administrator edits a boolean condition: an implicit AND of condition rows
/// and OR groups, loaded from and saved to a flat vector of records.
///
/// Construct it, call mvInitialize once, then mvLoad and mvSave as often as needed. It belongs to
/// the user-interface thread. Failures of the data-access library are shown to the user as they
/// happen; no operation here reports one.
class CONDTREE_EXPORT CondTreeCtrl : public QTreeView {
    Q_OBJECT
public:
    /// Ports of services that are left empty are the real ones.
    explicit CondTreeCtrl(QWidget* parent = nullptr, Services services = realServices());
    /// Frees the tree and the reference data, and releases the manager.
    ~CondTreeCtrl() override;

    /// Sets the control up. Takes a reference on manager (null is none) and releases the one
    /// before; dateStyle is a date style code. Reads the settings and appends the pictures to the
    /// image lists; reference data is loaded on first use.
    void mvInitialize(SpMgr* manager, LONG dateStyle, KiroVaultType vaultType, TreeType treeType);
    /// 1 suppresses the offer of conditions on child reference states; 0 until set.
    void mvSetTransitionType(LONG transitionType);
    /// Replaces the names of the workflow states, by id. Loading the states replaces them again.
    void mvSetStateIdNodeNameMap(const std::map<LONG, CString>& names);
    /// The date style code; 120 before mvInitialize.
    [[nodiscard]] LONG miGetDateFmt() const;
    [[nodiscard]] KiroVaultType meGetVaultType() const;

    /// Shows records. With node null the tree is cleared and rebuilt. With node given the records
    /// are added to the tree and the closing placeholder goes under node.
    void mvLoad(const std::vector<TransCond>& records, VarTreeCtrlNode* node = nullptr);
    /// Appends the rows below node (null is the top node) as records. With alterArguments each
    /// value is first brought into its text form, in the node itself. Validates nothing.
    void mvSave(std::vector<TransCond>& records, VarTreeCtrlNode* node = nullptr,
                bool alterArguments = false);

    /// Whether typing into an open list hides the entries that do not contain what was typed; on
    /// until set. Without it typing goes to entries by how they begin. It holds for lists that are
    /// opened from now on.
    void setQuickFilter(bool on);

    /// Applies what was chosen from a list that has closed, commits what was typed into an editor
    /// that stands open in a cell, closes it, and has told of the changes when it returns. A list
    /// that is still open stays so. For hosts that save at a key, which leaves the focus where it
    /// is.
    void finishEditing();

    /// Adds a node, with whatever lies below it, as the first or the last child of parent, and
    /// takes ownership of it. With parent null it becomes the top node; the top node before it, if
    /// any, goes back to the caller, out of the tree. The node's item.
    HTREEITEM mhAddNode(VarTreeCtrlNode* parent, VarTreeCtrlNode* node, bool insertFirst);
    /// Deletes a row with everything below it; with TVI_ROOT the whole tree. A handle that names no
    /// row does nothing.
    void mvDeleteNode(HTREEITEM item);
    /// The node of a row; the top node for TVI_ROOT. Null for a handle that names no row.
    [[nodiscard]] VarTreeCtrlNode* mpoGetNode(HTREEITEM item) const;
    /// Whether a condition on a child reference's state lies below node (null is the top node).
    bool mbHaveChildRefConditions(VarTreeCtrlNode* node = nullptr);
    /// Deletes every condition on a child reference's state below node (null is the top node).
    void mvRemoveChildRefConditions(VarTreeCtrlNode* node = nullptr);

    /// The width of a column in a row of totalWidth pixels.
    [[nodiscard]] int miGetColumnSize(int column, int totalWidth) const;
    /// Gives a column newWidth pixels of a row of totalWidth, as dragging its right boundary does.
    void mvResizeCol(int column, int newWidth, int totalWidth);
    /// The shares of a row's width that the first three columns take, as a host keeps them.
    [[nodiscard]] std::array<double, 3> columnShares() const;
    /// Gives the columns shares that were kept. False, and nothing changes, unless each is from 0
    /// to 1 and they are at most 1 together; a billionth beyond is put right.
    bool setColumnShares(const std::array<double, 3>& shares);

    /// The shown name of a user; empty when there is none or the users cannot be loaded.
    CString moGetNameForUserId(LONG id);
    /// The name of a group; empty when there is none or the groups cannot be loaded.
    CString moGetNameForGroupId(LONG id);

Q_SIGNALS:
    /// Emitted once for each change that a user makes; not by loading or saving.
    void conditionChanged();
    /// Emitted when the shares of the columns have changed, by whatever way.
    void columnsResized();

protected:
    /// Loads the card variables if they are not loaded; false when they cannot be, after telling
    /// the user of a failure of the library. The same holds for the next three.
    bool mbInitVars();
    bool mbInitWorkflowStates();
    bool mbInitUsers();
    bool mbInitGroups();
    /// Reads the settings of the connected user; false without a manager.
    bool mbInitSettings();
    /// Whether conditions on a child reference's state are offered, by the user's settings.
    bool mbChildRefStateEnabled();

    /// The id of a user by shown name, case ignored; 0 when there is none. Loads nothing.
    LONG mlGetIDForUserName(CString name);
    /// The id of a group by name, case ignored; 0 when there is none. Loads nothing.
    LONG mlGetIDForGroupName(CString name);
    /// The display name of the workflow state that a record's value names by its id; else empty.
    CString moGetWorkflowAndStateName(const TransCond& record);

    /// Take the operator off a text; see values/TypedValue.h.
    static ComboCmd meParseString(CString& text);
    static ComboCmd meParseNumber(CString& text);
    static ComboCmd meParseDate(CString& text);
    static ComboCmd meGetCompareType(CString& text, ArgType type, ComboCmd current);
    /// Puts an operator in front of a bare value.
    static void mvAlterArgument(CString& text, ComboCmd op);

    /// The operator that a card variable of a type starts with.
    static ComboCmd meGetDefaultOp(VariableType type);
    /// The operator that the named card variable starts with; StringContains when it cannot be
    /// found.
    ComboCmd meGetDefaultOp(const CString& variable);
    /// The type of the named card variable; ArgText when it cannot be found.
    ArgType meGetArgumentType(const CString& variable);
    /// op, whatever the variable.
    static ComboCmd meVerifyDefaultOp(ComboCmd op, const CString& variable);
    /// Whether a row of a type must give up an operator for its default one.
    static bool mbResetComparisonOperator(ArgType type, ComboCmd op);

    /// Gives a row whose operator is one on dates the current local time as its value, in the
    /// control's date style. Other rows keep their value.
    void mvSetDefaultSearchVal(VarTreeCtrlNode& node);

    /// Sets the label of a placeholder or group from its code; other nodes keep theirs.
    void mvUpdateTypeName(VarTreeCtrlNode& node);
    /// The index of a row's picture, by its node code.
    static int miGetImage(ComboCmd nodeCode);

    /// The column, 0 to 3, in which a point of the viewport lies within a row, by its share of the
    /// row's width; -1 when it lies outside. cell becomes the column's cell, over which its editor
    /// is placed, or else the row.
    int miGetColumn(POINT point, HTREEITEM item, RECT& cell);
    /// A click on the tree: opens the editor of the cell below the pointer, if it has one. header
    /// is not looked at; result becomes 0.
    virtual void OnNMClick(NMHDR* header, LRESULT* result);
    /// Gives an open list what is typed and the turns of the wheel. False: there is nothing else
    /// that is translated here. While a list is open this is called with what any widget gets of
    /// them, which then is the list's alone.
    virtual bool PreTranslateMessage(QEvent* event);
    /// Adds an entry to the list that is open over a cell, at a position; image is its index in the
    /// list's image list or -1. An operator's text is its name, and text its default. Nothing
    /// without a list.
    void mvAddComboCmd(ComboCmd command, const CString& text, int image, int position);
    /// Takes the list away without applying anything.
    void mvClearCombo();
    /// The list over a cell was closed: applies what is selected in it to the clicked row.
    virtual void OnComboCloseup();
    /// Changes a row's kind or operator, and keeps its children, name and picture in step.
    void mvChangeNodeType(VarTreeCtrlNode& node, ComboCmd command);
    /// Opens the editor that suits a row's value over a cell of the viewport: a list, the date
    /// picker, which is waited for, or the in-place editor. column is not looked at. A node that is
    /// no row must outlive the editor.
    void mvOnClickValue(VarTreeCtrlNode& node, int column, RECT cell);

    /// The left button goes down at a point of the viewport: ends the in-place editor, and allows a
    /// drag after a while where the point lies in the first column. flags are MK_.
    virtual void OnLButtonDown(unsigned flags, POINT point);
    /// The pointer moves over the viewport: begins a drag, or goes on with it.
    virtual void OnMouseMove(unsigned flags, POINT point);
    /// The left button goes up: drops a dragged row, and tells the parent's parent with a
    /// ButtonReleasedMessage.
    virtual void OnLButtonUp(unsigned flags, POINT point);
    /// A timer has run out that Services::startTimer started for the control.
    virtual void OnTimer(std::uintptr_t id);
    /// Begins to drag the row at a point of the viewport, if it is a condition.
    void mvBegindrag(POINT point);
    /// Moves a row without children to the end of newParent's, a group's or TVI_ROOT's; after is
    /// not looked at. The row is made anew, with argument type and object type 0. The new row; null
    /// when it was not moved.
    HTREEITEM mhMoveItem(HTREEITEM item, HTREEITEM newParent, HTREEITEM after);

    /// The control's own drawing, by stages; header is an NMTVCUSTOMDRAW's. result may not be null.
    /// A subclass may draw otherwise: rows are told as the answers ask.
    virtual void OnNMCustomdraw(NMHDR* header, LRESULT* result);
    /// The bits a pixel of the screen; 4 when they are not known.
    int miGetColorResolution();

    void paintEvent(QPaintEvent* event) override;
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    /// A character that is typed on a row with a date begins to replace the date.
    void keyPressEvent(QKeyEvent* event) override;
    void customEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void connectModel();
    void connectEditors();
    [[nodiscard]] std::function<LRESULT(NMTVCUSTOMDRAW&)> stage();
    void followDesktop();
    void setColumns(const ColumnShares& columns);

    std::shared_ptr<CondTreeParts> m_parts;
};

} // namespace condtree
