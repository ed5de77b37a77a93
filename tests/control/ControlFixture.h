#pragma once

#include "TreeText.h"
#include "support/FakeLibrary.h"

#include <condtree/control/CondTreeCtrl.h>

#include <gtest/gtest.h>

#include <QColor>
#include <QPointer>
#include <QSize>
#include <QTemporaryDir>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace condtree::test {

/// The control with its protected operations in the open.
class OpenCtrl final : public CondTreeCtrl {
public:
    using CondTreeCtrl::CondTreeCtrl;
    using CondTreeCtrl::mbChildRefStateEnabled;
    using CondTreeCtrl::mbInitGroups;
    using CondTreeCtrl::mbInitSettings;
    using CondTreeCtrl::mbInitUsers;
    using CondTreeCtrl::mbInitVars;
    using CondTreeCtrl::mbInitWorkflowStates;
    using CondTreeCtrl::mbResetComparisonOperator;
    using CondTreeCtrl::meGetArgumentType;
    using CondTreeCtrl::meGetCompareType;
    using CondTreeCtrl::meGetDefaultOp;
    using CondTreeCtrl::meParseDate;
    using CondTreeCtrl::meParseNumber;
    using CondTreeCtrl::meParseString;
    using CondTreeCtrl::meVerifyDefaultOp;
    using CondTreeCtrl::miGetColorResolution;
    using CondTreeCtrl::miGetColumn;
    using CondTreeCtrl::miGetImage;
    using CondTreeCtrl::mlGetIDForGroupName;
    using CondTreeCtrl::mlGetIDForUserName;
    using CondTreeCtrl::moGetWorkflowAndStateName;
    using CondTreeCtrl::mvAddComboCmd;
    using CondTreeCtrl::mvAlterArgument;
    using CondTreeCtrl::mvChangeNodeType;
    using CondTreeCtrl::mvClearCombo;
    using CondTreeCtrl::mvOnClickValue;
    using CondTreeCtrl::mvUpdateTypeName;
    using CondTreeCtrl::OnNMCustomdraw;
    using CondTreeCtrl::PreTranslateMessage;

    int closeUps = 0;            ///< how often a list was told to have closed
    bool appliesCloseUps = true; ///< whether the control then does what it does
    int clicks = 0;              ///< how often a click was told
    LRESULT clickResult = -1;    ///< what the last click came to
    bool looksAtClicks = true;   ///< whether the control then does what it does

    void OnComboCloseup() override
    {
        ++closeUps;
        if (appliesCloseUps)
            CondTreeCtrl::OnComboCloseup();
    }
    void OnNMClick(NMHDR* header, LRESULT* result) override
    {
        ++clicks;
        if (!looksAtClicks)
            return;
        const QPointer<OpenCtrl> self(this);
        CondTreeCtrl::OnNMClick(header, result);
        if (!self.isNull())
            clickResult = *result;
    }
};

/// A record, with the fields that matter in the order in which they are told apart.
inline TransCond record(LONG rowKind, LONG condType, const char* name, const char* value,
                        LONG argType, LONG op, const char* extra = "")
{
    TransCond result;
    result.lRowKind = rowKind;
    result.lCondType = condType;
    result.oName = QString::fromUtf8(name);
    result.oValue = QString::fromUtf8(value);
    result.lArgType = argType;
    result.lOperator = op;
    result.oExtra = QString::fromUtf8(extra);
    return result;
}

/// The record of an OR group.
inline TransCond groupRecord()
{
    return record(RowKindGroup, 0, "", "", 0, 0);
}

/// An icon library of plain colours, a different one for each request, that remembers what it was
/// asked.
class ColouredIcons final : public IconLibrary {
public:
    IconResult result = IconResult::Loaded;
    std::vector<QString> requests;
    std::vector<int> uses;

    IconResult loadIcon(const CString& name, int use, IconPixels& icon) override;
    IconResult loadImage(const CString& name, int use, IconPixels& strip) override;
    /// The colour of the n-th icon, counted from 0.
    [[nodiscard]] static QColor colour(int n);

private:
    IconResult answer(const CString& name, int use, int images, IconPixels& pixels);
};

/// A control on a library of the test's own, with recorded messages and nothing of the machine.
class ControlFixture : public testing::Test {
protected:
    ControlFixture();

    /// Sets the control up with the library, as most tests want it.
    void initialize(KiroVaultType vaultType = KiroVaultType{0}, TreeType treeType = TreeType{0});
    /// Loads records over what the tree holds; the tree as text.
    std::string loaded(const std::vector<TransCond>& records);
    /// What saving gives, as text.
    std::string saved(bool alterArguments = false);
    [[nodiscard]] std::vector<TransCond> savedRecords(bool alterArguments = false);
    /// The rows below the top, as text.
    [[nodiscard]] std::string rows() const;
    /// The node of the n-th row of the top level.
    [[nodiscard]] VarTreeCtrlNode& topRow(std::size_t n) const;

    FakeLibraryHolder library;
    std::vector<QString> messages;
    std::vector<QWidget*> messageOwners;
    std::vector<unsigned> messageTypes;
    std::function<void()> duringMessage;   ///< what the host does while a message is open
    std::function<void(LONG)> duringText;  ///< what it does when a text is asked for, by its id
    std::function<void()> duringClock;     ///< what it does when the clock is read
    std::function<void(int)> duringMetric; ///< what it does when a metric is asked for
    /// What it does when it is asked for the time, by the port's name.
    std::function<void(const std::string& port)> duringTime;
    std::map<LONG, QString> translations; ///< by text id; the default where there is none
    std::optional<SYSTEMTIME> now;        ///< what the clock says; the real time when empty
    int bitsPerPixel = 32;
    QSize iconSize{20, 24};
    POINT pointer{-1000, -1000}; ///< where the pointer is on the screen; nowhere
    std::shared_ptr<ColouredIcons> icons = std::make_shared<ColouredIcons>();
    QTemporaryDir folder;
    std::shared_ptr<RegistryStore> registry; ///< on two files in folder
    std::unique_ptr<OpenCtrl> control;

    [[nodiscard]] Services services();
};

} // namespace condtree::test
