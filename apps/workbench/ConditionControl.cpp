#include "ConditionControl.h"

#include <condtree/storedprocs/SpConnect.h>

#include <algorithm>
#include <array>

namespace condtree::workbench {

namespace {

// The style that databases and files share: year, month, day; no two users read it differently.
constexpr LONG kDateStyle = 120;

// In a window of the first size, the longest kind of condition and the longest operator of any
// language are to be seen whole.
constexpr std::array kColumnShares{0.33, 0.24, 0.24};
// Every kind of condition is offered that a full vault has, but for users and groups, which belong
// to the one tree type that leaves child reference states out.
constexpr KiroVaultType kVaultType{0};
constexpr TreeType kTreeType{0};

// The kinds of condition whose values are ids, which are shown by names.
constexpr LONG kChildState = 7;
constexpr LONG kUser = 8;
constexpr LONG kGroup = 9;
constexpr LONG kHistoricState = 10;

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
};

/// Collects messages while it lives; whatever ends it, later ones are shown again.
class ConditionControl::Collecting {
public:
    explicit Collecting(Messages& messages)
        : m_messages(messages)
    {
        m_messages.collected.clear();
        m_messages.isCollecting = true;
    }
    Collecting(const Collecting&) = delete;
    Collecting& operator=(const Collecting&) = delete;
    ~Collecting() { m_messages.isCollecting = false; }

    [[nodiscard]] QStringList takeAll() { return std::exchange(m_messages.collected, {}); }

private:
    Messages& m_messages;
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
                       if (services.resultTexts == nullptr)
                           services.resultTexts = std::make_shared<ResultTexts>();
                       SpAddResultTexts(*services.resultTexts);
                       return std::move(services);
                   }())
    , m_messages(std::move(messages))
{
    mvInitialize(manager, kDateStyle, kVaultType, kTreeType);
    setColumnShares(kColumnShares);
}

MaybeFailure ConditionControl::prepare(const ConditionRecords& records)
{
    struct Need {
        LONG condType;
        bool (CondTreeCtrl::*load)();
    };
    const std::array needs{Need{kChildState, &ConditionControl::mbInitWorkflowStates},
                           Need{kHistoricState, &ConditionControl::mbInitWorkflowStates},
                           Need{kUser, &ConditionControl::mbInitUsers},
                           Need{kGroup, &ConditionControl::mbInitGroups}};
    Collecting messages(*m_messages);
    for (const Need& need : needs) {
        const bool isNeeded =
            std::any_of(records.begin(), records.end(), [&](const SpConditionRecord& record) {
                return record.condType == need.condType;
            });
        if (!isNeeded || (this->*need.load)())
            continue;
        const QStringList failures = messages.takeAll();
        if (!failures.isEmpty())
            return Failure{failures.first()};
    }
    return std::nullopt;
}

QStringList ConditionControl::setRecords(const ConditionRecords& records)
{
    std::vector<TransCond> conds;
    conds.reserve(records.size());
    for (const SpConditionRecord& record : records)
        conds.push_back(toTransCond(record));
    Collecting messages(*m_messages);
    mvLoad(conds);
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (model()->hasChildren(index))
            expand(index);
    }
    return messages.takeAll();
}

Outcome<ConditionRecords> ConditionControl::records()
{
    std::vector<TransCond> conds;
    Collecting messages(*m_messages);
    // Once, instead of once a row.
    if (!mbInitVars()) {
        const QStringList failures = messages.takeAll();
        if (!failures.isEmpty())
            return Failure{failures.first()};
    }
    // Writing the operators into the values would change the rows that are shown.
    mvSave(conds, nullptr, false);
    const QStringList failures = messages.takeAll();
    if (!failures.isEmpty())
        return Failure{failures.first()};
    ConditionRecords records;
    records.reserve(conds.size());
    for (const TransCond& cond : conds)
        records.push_back(toRecord(cond));
    return records;
}

} // namespace condtree::workbench
