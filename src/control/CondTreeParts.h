#pragma once

#include <condtree/control/ConditionLoader.h>
#include <condtree/control/ConditionModel.h>
#include <condtree/control/ConditionSaver.h>
#include <condtree/control/DesktopPalette.h>
#include <condtree/control/RowDrawing.h>
#include <condtree/platform/Services.h>
#include <condtree/presentation/ColumnShares.h>
#include <condtree/presentation/ConditionImages.h>
#include <condtree/refdata/ControlSettings.h>
#include <condtree/refdata/ManagerRef.h>
#include <condtree/refdata/ReferenceData.h>

#include <QPointer>
#include <QWidget>

namespace condtree {

/// The collaborators behind the control, each the owner of its data. None of them knows the
/// control; members are in the order of what builds on what.
struct CondTreeParts {
    /// owner is the window over which messages are shown.
    CondTreeParts(QWidget* owner, Services ports);

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

    /// Takes over a manager and the codes, and reads the settings.
    void setUp(SpMgr* newManager, LONG dateStyle, KiroVaultType vaultType, TreeType treeType);
    /// Appends the pictures to the image lists. The size of one picture, which the first call
    /// decides.
    QSize appendImages();
    /// Shows the message of a result code and waits until it is closed. Nothing once the owner is
    /// gone.
    void report(HRESULT code) const;
};

} // namespace condtree
