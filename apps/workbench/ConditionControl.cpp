#include "ConditionControl.h"

#include <QApplication>

namespace condtree::workbench {

namespace {

// The style that databases and files share: year, month, day; no two users read it differently.
constexpr LONG kDateStyle = 120;
// Every kind of condition is offered that a full vault has, but for users and groups, which belong
// to the one tree type that leaves child reference states out.
constexpr KiroVaultType kVaultType{0};
constexpr TreeType kTreeType{0};

TransCond toTransCond(const SpConditionRecord& record)
{
    TransCond cond;
    cond.lRowKind = record.rowKind;
    cond.lCondType = record.condType;
    cond.oName = record.name;
    cond.oExtra = record.extra;
    cond.oValue = record.value;
    cond.lArgType = record.argType;
    cond.lOperator = record.op;
    return cond;
}

SpConditionRecord toRecord(const TransCond& cond)
{
    return {cond.lRowKind, cond.lCondType, cond.oName,    cond.oExtra,
            cond.oValue,   cond.lArgType,  cond.lOperator};
}

} // namespace

struct ConditionControl::Messages {
    bool isCollecting = false;
    QStringList collected;

    QStringList takeAll()
    {
        isCollecting = false;
        return std::exchange(collected, {});
    }
};

ConditionControl::ConditionControl(SpMgr* manager, QWidget* parent, Services services)
    : ConditionControl(manager, parent, std::move(services), std::make_shared<Messages>())
{
}

ConditionControl::ConditionControl(SpMgr* manager, QWidget* parent, Services services,
                                   std::shared_ptr<Messages> messages)
    : CondTreeCtrl(parent,
                   [&] {
                       services.messageBox = [messages, show = services.messageBox](
                                                 QWidget* owner, const CString& text,
                                                 unsigned type) {
                           if (!messages->isCollecting)
                               return show(owner, text, type);
                           if (!messages->collected.contains(text))
                               messages->collected.append(text);
                           return 0;
                       };
                       return std::move(services);
                   }())
    , m_messages(std::move(messages))
{
    mvInitialize(manager, kDateStyle, kVaultType, kTreeType);
}

QStringList ConditionControl::setRecords(const ConditionRecords& records)
{
    std::vector<TransCond> conds;
    conds.reserve(records.size());
    for (const SpConditionRecord& record : records)
        conds.push_back(toTransCond(record));
    m_messages->isCollecting = true;
    mvLoad(conds);
    expandAll();
    return m_messages->takeAll();
}

Outcome<ConditionRecords> ConditionControl::records()
{
    std::vector<TransCond> conds;
    m_messages->isCollecting = true;
    // Writing the operators into the values would change the rows that are shown.
    mvSave(conds, nullptr, false);
    const QStringList failures = m_messages->takeAll();
    if (!failures.isEmpty())
        return Failure{failures.first()};
    ConditionRecords records;
    records.reserve(conds.size());
    for (const TransCond& cond : conds)
        records.push_back(toRecord(cond));
    return records;
}

void ConditionControl::commitEditor()
{
    // Editors commit when they lose the focus.
    const QWidget* focus = QApplication::focusWidget();
    if (focus != nullptr && focus != this && isAncestorOf(focus))
        setFocus();
}

} // namespace condtree::workbench
