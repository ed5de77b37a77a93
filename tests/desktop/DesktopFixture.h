#pragma once

#include "Hand.h"
#include "control/TreeText.h"

#include <condtree/control/CondTreeCtrl.h>
#include <condtree/platform/StoredProcs.h>

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>

namespace condtree::test {

/// The control on the sample database, in a window of the desktop, below a field of the host's.
class DesktopFixture : public testing::Test {
protected:
    DesktopFixture();
    ~DesktopFixture() override;

    /// Sets up and shows the window; user and group rows with the tree type for them.
    void start(TreeType treeType = TreeType{0});
    /// Puts a row first in the tree, or in a group.
    VarTreeCtrlNode& add(LONG code, const char* name, const char* value, LONG op, LONG arg = 0,
                         VarTreeCtrlNode* group = nullptr);
    [[nodiscard]] VarTreeCtrlNode& placeholder() const;
    /// The rows as text.
    [[nodiscard]] std::string rows() const;

    /// The middle of a row's column, in the viewport.
    [[nodiscard]] QPoint placeOf(const VarTreeCtrlNode& row, int column) const;
    void click(const VarTreeCtrlNode& row, int column, int button = 1);

    /// The visible list over a cell, null for none.
    [[nodiscard]] QComboBox* combo() const;
    [[nodiscard]] bool isOpen() const;
    /// Clicks on a cell and waits until its list is open.
    void open(const VarTreeCtrlNode& row, int column);
    /// Waits until the in-place editor has the keyboard.
    void waitForEditor();
    /// Waits until no list is visible.
    void expectClosed();
    /// Clicks on an entry of the open list.
    void choose(const char* text);

    Hand hand;
    QTemporaryDir folder;
    SpMgr* manager = nullptr;
    QWidget window;
    QLineEdit* hostField = new QLineEdit;
    CondTreeCtrl* control = new CondTreeCtrl;
    int changes = 0;

private:
    int m_aside = 10;
};

} // namespace condtree::test
