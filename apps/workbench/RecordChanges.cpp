#include "RecordChanges.h"

#include <condtree/model/ComboCmd.h>
#include <condtree/model/TransCond.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace condtree::workbench {

namespace {

// The kinds of condition whose first column is a name of the record's own; all others have a label.
constexpr LONG kVariable = 2;
constexpr LONG kOtherName = 6;
constexpr LONG kLastKind = 10;
// Those whose value is the id of a workflow state.
constexpr LONG kChildState = 7;
constexpr LONG kHistoricState = 10;

bool hasLabel(LONG condType)
{
    return condType >= 1 && condType <= kLastKind && condType != kVariable
           && condType != kOtherName;
}

QString withoutWildcards(const QString& text)
{
    const QLatin1Char wildcard('%');
    const bool isPair = text.startsWith(wildcard) && text.endsWith(wildcard);
    return isPair ? text.mid(1, std::max<qsizetype>(text.size() - 2, 0)) : text;
}

/// Whether a value is another one without the operator in front of it and the blanks around it.
bool isBareValue(const QString& bare, const QString& value)
{
    if (bare == value)
        return true;
    constexpr std::array kPrefixes{"", "=", "!=", "!", "<=", "<", ">=", ">"};
    const QString text = value.trimmed();
    return std::any_of(kPrefixes.begin(), kPrefixes.end(), [&](const char* prefix) {
        if (!text.startsWith(QLatin1String(prefix)))
            return false;
        const QString rest = text.mid(QLatin1String(prefix).size());
        const QString trimmed = rest.trimmed();
        return bare == rest || bare == trimmed || bare == withoutWildcards(rest)
               || bare == withoutWildcards(trimmed);
    });
}

bool isSameValue(const SpConditionRecord& read, const SpConditionRecord& stored)
{
    const QString before = read.value.str();
    const QString after = stored.value.str();
    const bool isState = read.condType == kChildState || read.condType == kHistoricState;
    return isBareValue(after, before) || (isState && before == QLatin1Char('-') + after);
}

bool isSameOperator(LONG read, LONG stored)
{
    constexpr LONG kNone = -1;
    return read == stored || (read == OperatorFromText && stored != kNone);
}

bool isUnchanged(const SpConditionRecord& read, const SpConditionRecord& stored)
{
    if (read == stored)
        return true;
    return read.rowKind != RowKindGroup && read.rowKind == stored.rowKind
           && read.condType == stored.condType && read.argType == stored.argType
           && read.extra == stored.extra && (hasLabel(read.condType) || read.name == stored.name)
           && isSameOperator(read.op, stored.op) && isSameValue(read, stored);
}

} // namespace

std::vector<std::size_t> rowsChangedBySaving(const ConditionRecords& read,
                                             const ConditionRecords& stored)
{
    std::vector<std::size_t> changed;
    std::size_t next = 0;
    for (std::size_t row = 0; row < read.size(); ++row) {
        if (next < stored.size() && isUnchanged(read[row], stored[next])) {
            ++next;
            continue;
        }
        changed.push_back(row);
        // While records are missing, the one that does not fit counts as one of them.
        if (read.size() - row <= stored.size() - next)
            ++next;
    }
    return changed;
}

QString rowNumbers(const std::vector<std::size_t>& rows)
{
    constexpr std::size_t kFew = 5;
    const std::size_t named = std::min(rows.size(), kFew);
    QString text = QString::number(rows.front() + 1);
    for (std::size_t i = 1; i < named; ++i) {
        const QString number = QString::number(rows[i] + 1);
        if (i + 1 < rows.size())
            //: The beginning of a list of row numbers, "1, 2 and 9"
            text = QCoreApplication::translate("RecordChanges", "%1, %2").arg(text, number);
        else
            //: The end of a list of row numbers, "1, 2 and 9": %2 is the last one
            text = QCoreApplication::translate("RecordChanges", "%1 and %2").arg(text, number);
    }
    if (rows.size() == named)
        return text;
    const int others = static_cast<int>(rows.size() - named);
    //: A list of row numbers that is cut: "1, 2, 3, 4, 5 and 7 more"
    return QCoreApplication::translate("RecordChanges", "%1 and %n more", nullptr, others)
        .arg(text);
}

} // namespace condtree::workbench
