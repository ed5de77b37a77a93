#pragma once

#include <condtree/control/CellEditing.h>
#include <condtree/control/ConditionLoader.h>
#include <condtree/control/ConditionModel.h>
#include <condtree/control/ConditionSaver.h>
#include <condtree/control/DesktopPalette.h>
#include <condtree/control/ModelTree.h>
#include <condtree/control/RowDragging.h>
#include <condtree/control/RowDrawing.h>
#include <condtree/editing/ClickTracker.h>
#include <condtree/platform/Services.h>
#include <condtree/presentation/ColumnShares.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ManagerRef.h>
#include <condtree/refdata/ReferenceData.h>

#include <QPointer>
#include <QWidget>

#include <optional>

class QMouseEvent;

namespace condtree {

/// The collaborators behind the control, each the owner of its data. None of them knows the
/// control; members are in the order of what builds on what.
struct CondTreeParts {
    /// Messages are shown over view.
    CondTreeParts(QTreeView& view, Services ports);

    Services services;
    QPointer<QWidget> messageOwner;
    ManagerRef manager;
    ControlSettings settings;
    ReferenceData reference;
    ConditionImages images;
    ColumnShares columns;
    ConditionModel model;
    ConditionLoader loader;
    ConditionSaver saver;
    RowDrawing drawing;
    RowDelegate delegate;
    DesktopPalette palette;
    ModelTree tree;
    CellEditing cells;
    RowDragging dragging;
    ClickTracker clicks;
    /// The mouse event that is being handled and that the view has not seen yet; null for none.
    QMouseEvent* mouse = nullptr;
    /// Where on the screen the click is that is being handled; none between clicks.
    std::optional<POINT> clickedAt;

    /// Takes over a manager and the codes, and reads the settings.
    void setUp(SpMgr* newManager, LONG dateStyle, KiroVaultType vaultType, TreeType treeType);
    /// Appends the pictures to the image lists. The size of one picture, which the first call
    /// decides.
    QSize appendImages();
    /// Where on the screen a click is that is told now: the one being handled, else the pointer.
    [[nodiscard]] POINT takeClick();
    /// Shows the message of a result code and waits until it is closed. Nothing once the owner is
    /// gone.
    void report(HRESULT code, unsigned type = MB_OK) const;
};

} // namespace condtree
