#pragma once

#include "ConditionJson.h"

#include <condtree/control/CondTreeCtrl.h>

#include <QStringList>

namespace condtree::workbench {

/// The control as the workbench sets it up, in the records of the data-access library. Messages
/// that the control shows while an operation of this class runs are collected; all others are
/// shown.
class ConditionControl final : public CondTreeCtrl {
    Q_OBJECT
public:
    /// services.messageBox shows the messages that are not collected.
    explicit ConditionControl(SpMgr* manager, QWidget* parent = nullptr,
                              Services services = realServices());

    /// Loads the names that the rows of a condition show. Fails at the first that cannot be loaded;
    /// the rows that are shown stay.
    [[nodiscard]] MaybeFailure prepare(const ConditionRecords& records);

    /// Shows a condition with every group open. Returns the failures that the control told of, each
    /// once: names that could not be read are missing in the rows then, their ids are not.
    QStringList setRecords(const ConditionRecords& records);

    /// The condition as the rows stand. Fails when the control told of a failure: the types of the
    /// values are not known then, so that the records must not be stored.
    [[nodiscard]] Outcome<ConditionRecords> records();

private:
    struct Messages;
    class Collecting;
    ConditionControl(SpMgr* manager, QWidget* parent, Services services,
                     std::shared_ptr<Messages> messages);

    std::shared_ptr<Messages> m_messages;
};

} // namespace condtree::workbench
