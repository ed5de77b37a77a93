#include "TransitionProcs.h"

#include "Answer.h"
#include "SpConnect.h"
#include "TextFault.h"
#include "Transaction.h"

#include <limits>
#include <utility>

namespace condtree {

SpTransitions::~SpTransitions() = default;

namespace {

struct TextField {
    SpSaveReport::Field field;
    SpStr SpConditionRecord::*text;
    const char16_t* name;
};

constexpr TextField kTextFields[] = {
    {SpSaveReport::Field::Name, &SpConditionRecord::name, u"name"},
    {SpSaveReport::Field::Extra, &SpConditionRecord::extra, u"extra text"},
    {SpSaveReport::Field::Value, &SpConditionRecord::value, u"value"},
};

struct FaultText {
    TextFault fault;
    HRESULT result;
    const char16_t* why;
};

constexpr FaultText kFaultTexts[] = {
    {TextFault::Null, SP_E_BAD_TEXT, u"holds the character U+0000"},
    {TextFault::Unpaired, SP_E_BAD_TEXT, u"holds half of a surrogate pair"},
    {TextFault::TooLong, SP_E_TOO_LONG, u"is larger than 16 MiB"},
};

/// S_OK when the database can carry a text; else the result and the report that refuse it.
HRESULT checkText(const SpConditionRecord& record, std::size_t row, const TextField& field,
                  SpSaveReport& report)
{
    const TextFault fault = textFault((record.*field.text).str(), kSpLargestText);
    for (const FaultText& known : kFaultTexts) {
        if (known.fault != fault)
            continue;
        report.row = static_cast<LONG>(row);
        report.field = field.field;
        report.message =
            QStringLiteral("Row %1: the %2 %3, which the database cannot hold.")
                .arg(QString::number(row + 1), QStringView(field.name), QStringView(known.why));
        return known.result;
    }
    return S_OK;
}

HRESULT checkTexts(const std::vector<SpConditionRecord>& records, SpSaveReport& report)
{
    if (records.size() > static_cast<std::size_t>(std::numeric_limits<LONG>::max()))
        return E_INVALIDARG;
    for (std::size_t row = 0; row < records.size(); ++row) {
        for (const TextField& field : kTextFields) {
            if (const HRESULT hr = checkText(records[row], row, field, report); FAILED(hr))
                return hr;
        }
    }
    return S_OK;
}

QDateTime timeOf(const CString& stored)
{
    return QDateTime::fromString(stored, Qt::ISODateWithMs).toUTC();
}

CString changedMessage(const SpSaveReport& report)
{
    const CString who = report.changedBy.length() > 0 ? report.changedBy.str().simplified()
                                                      : QStringLiteral("somebody else");
    const CString when =
        report.changedAt.isValid()
            ? report.changedAt.toString(QStringLiteral(" 'on' yyyy-MM-dd 'at' HH:mm:ss 'UTC',"))
            : QString();
    // In one go: a login may hold a placeholder of its own.
    return QStringLiteral(
               "The condition was saved by %1%2 after it was loaded; your changes were not saved.")
        .arg(who, when);
}

/// Fails the transaction unless the condition still has the version that the caller loaded.
void checkVersion(Transaction& transaction, LONG transitionId, std::int64_t loadedVersion,
                  SpSaveReport& report)
{
    Statement row(transaction,
                  u"SELECT version, changed_by, changed_at FROM transitions WHERE id = ?");
    row.exec({transitionId});
    if (!row.next()) {
        transaction.fail(SP_E_NO_ACCESS_TO_ITEM);
        return;
    }
    const std::int64_t version = row.bigNumber(0);
    const CString changedBy = row.text(1);
    const CString changedAt = row.text(2);
    if (version == loadedVersion || !transaction.isGood())
        return;
    report.version = version;
    report.changedBy = changedBy;
    report.changedAt = timeOf(changedAt);
    report.message = changedMessage(report);
    transaction.fail(SP_E_CHANGED);
}

struct CauseText {
    DatabaseFault::Kind fault;
    SpSaveReport::Cause cause;
    const char16_t* message;
};

constexpr CauseText kCauseTexts[] = {
    {DatabaseFault::Kind::DiskFull, SpSaveReport::Cause::DiskFull,
     u"The disk is full; your changes were not saved."},
    {DatabaseFault::Kind::NotWritten, SpSaveReport::Cause::NotWritten,
     u"The database could not be written; your changes were not saved."},
};

/// Tells what a failure of the database leaves to the user; nothing when its result code says all
/// there is to say.
void reportCause(DatabaseFault::Kind fault, SpSaveReport& report)
{
    for (const CauseText& known : kCauseTexts) {
        if (known.fault != fault)
            continue;
        report.cause = known.cause;
        report.message = QStringView(known.message).toString();
    }
}

void replaceRecords(Transaction& transaction, LONG transitionId,
                    const std::vector<SpConditionRecord>& records)
{
    Statement(transaction, u"DELETE FROM condition_records WHERE transition_id = ?")
        .exec({transitionId});
    const QStringView text(transaction.database().dialect().writeExactly);
    Statement insert(transaction,
                     QStringLiteral("INSERT INTO condition_records (transition_id, position, "
                                    "row_kind, cond_type, name, extra, value, arg_type, operator) "
                                    "VALUES (?, ?, ?, ?, %1, %1, %1, ?, ?)")
                         .arg(text));
    LONG position = 0;
    for (const SpConditionRecord& record : records) {
        const bool isGood = insert.exec({transitionId, position++, record.rowKind, record.condType,
                                         exactTextValue(record.name), exactTextValue(record.extra),
                                         exactTextValue(record.value), record.argType, record.op});
        if (!isGood)
            return;
    }
}

void readRecords(Transaction& transaction, LONG transitionId,
                 std::vector<SpConditionRecord>& records)
{
    const CString text = QStringView(transaction.database().dialect().readExactly).toString();
    Statement row(transaction,
                  QStringLiteral("SELECT row_kind, cond_type, %1, %2, %3, arg_type, operator "
                                 "FROM condition_records WHERE transition_id = ? ORDER BY position")
                      .arg(text.arg(QLatin1String("name")), text.arg(QLatin1String("extra")),
                           text.arg(QLatin1String("value"))));
    row.exec({transitionId});
    while (row.next()) {
        records.push_back({row.number(0), row.number(1), row.exactText(2), row.exactText(3),
                           row.exactText(4), row.number(5), row.number(6)});
    }
}

} // namespace

TransitionProcs::TransitionProcs(Database& database, const CString& login)
    : m_database(database)
    , m_login(login)
{
}

HRESULT TransitionProcs::mhGetTransitions(std::vector<SpTransition>& transitions)
{
    return answer(m_database, [&] {
        std::vector<SpTransition> found;
        Transaction transaction(m_database, Transaction::Access::Read);
        Statement row(transaction,
                      u"SELECT t.id, w.name, t.name, a.name, b.name, "
                      u"(SELECT count(*) FROM condition_records r WHERE r.transition_id = t.id), "
                      u"t.changed_by, t.changed_at, t.version FROM transitions t "
                      u"JOIN workflows w ON w.id = t.workflow_id "
                      u"JOIN states a ON a.id = t.from_state_id "
                      u"JOIN states b ON b.id = t.to_state_id ORDER BY w.id, t.id");
        row.exec();
        while (row.next()) {
            found.push_back({row.number(0), row.text(1), row.text(2), row.text(3), row.text(4),
                             row.number(5), row.text(6), timeOf(row.text(7)), row.bigNumber(8)});
        }
        const HRESULT hr = transaction.commit();
        if (SUCCEEDED(hr))
            transitions = std::move(found);
        return hr;
    });
}

HRESULT TransitionProcs::mhLoadCondition(LONG transitionId, SpCondition& condition)
{
    return answer(m_database, [&] {
        SpCondition found;
        Transaction transaction(m_database, Transaction::Access::Read);
        Statement version(transaction, u"SELECT version FROM transitions WHERE id = ?");
        version.exec({transitionId});
        if (version.next())
            found.version = version.bigNumber(0);
        else
            transaction.fail(SP_E_NO_ACCESS_TO_ITEM);
        version.finish();
        readRecords(transaction, transitionId, found.records);
        const HRESULT hr = transaction.commit();
        if (SUCCEEDED(hr))
            condition = std::move(found);
        return hr;
    });
}

HRESULT TransitionProcs::mhSaveCondition(LONG transitionId,
                                         const std::vector<SpConditionRecord>& records,
                                         std::int64_t loadedVersion, SpSaveReport& report)
{
    return answer(m_database, [&] {
        report = {};
        const HRESULT hr = checkTexts(records, report);
        return FAILED(hr) ? hr : save(transitionId, records, loadedVersion, report);
    });
}

HRESULT TransitionProcs::save(LONG transitionId, const std::vector<SpConditionRecord>& records,
                              std::int64_t loadedVersion, SpSaveReport& report)
{
    Transaction transaction(m_database, Transaction::Access::Write);
    checkVersion(transaction, transitionId, loadedVersion, report);
    replaceRecords(transaction, transitionId, records);
    Statement update(transaction, u"UPDATE transitions SET version = version + 1, changed_by = ?, "
                                  u"changed_at = ? WHERE id = ?");
    const CString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    update.exec({textValue(m_login), now, transitionId});
    const HRESULT hr = transaction.commit();
    if (SUCCEEDED(hr))
        report.version = loadedVersion + 1;
    else
        reportCause(transaction.faultKind(), report);
    return hr;
}

} // namespace condtree
