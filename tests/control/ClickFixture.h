#pragma once

#include "ControlFixture.h"
#include "EditedRows.h"

#include <condtree/editing/ChoiceListView.h>
#include <condtree/editing/CommandCombo.h>
#include <condtree/editing/FocusEdit.h>
#include <condtree/editing/PickDateDlg.h>

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace condtree::test {

/// The control in a window of a host, between two fields of the host's own, and a user who clicks
/// on it: through the window system, so that popups get what is theirs.
class ClickFixture : public ControlFixture {
protected:
    ClickFixture();
    ~ClickFixture() override;

    /// Sets up, leaves the placeholder alone in the tree, and shows the window.
    void start(KiroVaultType vaultType = KiroVaultType{0}, TreeType treeType = TreeType{0});
    /// Empties the tree and puts one row before the placeholder.
    VarTreeCtrlNode& only(const RowBefore& row);
    /// Puts a row first in the tree, or in a group.
    VarTreeCtrlNode& add(const RowBefore& row, VarTreeCtrlNode* group = nullptr);
    [[nodiscard]] VarTreeCtrlNode& placeholder() const;

    /// The middle of a row's column, in the viewport.
    [[nodiscard]] QPoint placeOf(const VarTreeCtrlNode& row, int column) const;
    [[nodiscard]] QRect itemRect(const VarTreeCtrlNode& row) const;
    void press(QPoint inViewport, Qt::MouseButton button = Qt::LeftButton);
    void move(QPoint inViewport);
    void release(QPoint inViewport, Qt::MouseButton button = Qt::LeftButton);
    void click(QPoint inViewport, Qt::MouseButton button = Qt::LeftButton);
    void click(const VarTreeCtrlNode& row, int column) { click(placeOf(row, column)); }

    /// The visible list, null for none.
    [[nodiscard]] CommandCombo* combo() const;
    /// How many lists there are, visible or not.
    [[nodiscard]] int combos() const;
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] ChoiceListView& list() const;
    [[nodiscard]] QWindow* popup() const { return list().window()->windowHandle(); }
    /// The editor, null for none.
    [[nodiscard]] FocusEdit* editor() const;
    /// What is selected in the list, "" for nothing.
    [[nodiscard]] std::string selected() const;
    /// The entries of the list by code and picture: "5 FilePath img5, ...".
    [[nodiscard]] std::string entries() const;
    /// The index of an entry; a text that is not there fails the test and gives -1.
    [[nodiscard]] int indexOf(const char* text) const;

    /// What a click opens: the entries of a list, "editor: TEXT", "picker", or "nothing". All of it
    /// is closed again without changing anything.
    std::string opens(QPoint inViewport);
    std::string opens(const VarTreeCtrlNode& row, int column)
    {
        return opens(placeOf(row, column));
    }
    void closeAll();

    /// Chooses from the open list by a click on an entry.
    void choose(const char* text);
    void clickEntry(int index);
    void key(Qt::Key pressed) { QTest::keyClick(popup(), pressed); }
    /// Types letters into whatever the window system gives them to.
    void typeText(QWindow* into, const char* text);
    static void letEventsPass();

    QWidget window;
    QLineEdit* hostField = new QLineEdit;
    QPointer<QWidget> viewport;
    int changes = 0; ///< how often conditionChanged was emitted
    std::function<void()> duringChange;
};

} // namespace condtree::test
