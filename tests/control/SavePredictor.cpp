#include "SavePredictor.h"

#include <QStringList>

#include <algorithm>
#include <limits>
#include <optional>

namespace condtree::test {

namespace {

const QString kYes = QStringLiteral("Yes");
const QString kNo = QStringLiteral("No");

LONG numberAtStart(const QString& text)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    const bool isNegative = i < text.size() && text[i] == u'-';
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        ++i;
    qint64 number = 0;
    for (; i < text.size() && text[i] >= u'0' && text[i] <= u'9'; ++i)
        number = std::min<qint64>(number * 10 + (text[i].unicode() - u'0'), qint64{1} << 40);
    number = isNegative ? -number : number;
    return static_cast<LONG>(std::clamp<qint64>(number, std::numeric_limits<LONG>::min(),
                                                std::numeric_limits<LONG>::max()));
}

bool hasWildcard(const QString& text)
{
    return text.contains(u'%') || text.contains(u'[') || text.contains(u'_');
}

/// A text's operator and what is left of the text.
std::pair<LONG, QString> readString(const QString& text)
{
    const QString rest = text.mid(1);
    if (text.startsWith(u'='))
        return {hasWildcard(rest) ? 108 : 100, rest};
    if (text.startsWith(u'!')) {
        if (!rest.startsWith(u'='))
            return {-1, rest};
        const QString value = rest.mid(1).trimmed();
        if (value == QStringLiteral("%"))
            return {107, QString()};
        if (value.startsWith(u'%') && value.endsWith(u'%'))
            return {107, value.mid(1, value.size() - 2)};
        return {101, value};
    }
    if (text == QStringLiteral("%"))
        return {106, QString()};
    if (text.startsWith(u'%'))
        return text.endsWith(u'%') ? std::pair<LONG, QString>{106, text.mid(1, text.size() - 2)}
                                   : std::pair<LONG, QString>{100, text};
    if (text.startsWith(u'>') || text.startsWith(u'<')) {
        const bool isMore = text.startsWith(u'>');
        if (rest.startsWith(u'='))
            return {isMore ? 105 : 104, rest.mid(1)};
        return {isMore ? 103 : 102, rest};
    }
    return {hasWildcard(text) ? 108 : 100, text};
}

std::pair<LONG, QString> readOrdered(const QString& text, LONG base)
{
    const QString rest = text.mid(1);
    const bool hasEquals = rest.startsWith(u'=');
    const QString shorter = hasEquals ? rest.mid(1) : rest;
    if (text.startsWith(u'='))
        return {base, rest};
    if (text.startsWith(u'!'))
        return {base + 1, shorter};
    if (text.startsWith(u'>'))
        return {hasEquals ? base + 5 : base + 3, shorter};
    if (text.startsWith(u'<'))
        return {hasEquals ? base + 4 : base + 2, shorter};
    return {base, text};
}

/// The operator that fits, and what is left of the value.
std::pair<LONG, QString> readTyped(const QString& value, LONG argType, LONG op)
{
    if (op == 100 || op == 108)
        return {op, value};
    const QString text = value.trimmed();
    const bool isStringOperator = op >= 100 && op <= 108;
    switch (argType) {
    case 1:
        return readString(text);
    case 2:
    case 3:
    case 5:
        if (isStringOperator)
            return {op, readString(text).second};
        return readOrdered(text, argType == 5 ? 130 : 120);
    case 4:
        return {139, text};
    default:
        return {100, text};
    }
}

struct Row {
    QString name, value;
    LONG op = -1;
    std::optional<LONG> id; ///< of a state, a user or a group
};

const std::map<LONG, QString>& labels()
{
    static const std::map<LONG, QString> table{
        {1, QStringLiteral("FilePath")},
        {3, QStringLiteral("Revision")},
        {4, QStringLiteral("Category")},
        {5, QStringLiteral("Object Type")},
        {7, QStringLiteral("Child Reference State")},
        {8, QStringLiteral("User")},
        {9, QStringLiteral("Group")},
        {10, QStringLiteral("Child Reference historic State")}};
    return table;
}

bool isState(LONG type)
{
    return type == 7 || type == 10;
}

QString nameOf(const std::map<LONG, QString>& names, LONG id)
{
    const auto found = names.find(id);
    return found == names.end() ? QString() : found->second;
}

QString shownText(const TransCond& record)
{
    const QString value = record.oValue.str();
    if (record.lArgType == 4)
        return value.compare(kYes, Qt::CaseInsensitive) == 0 ? kYes : kNo;
    if (record.lCondType != 5)
        return value;
    const LONG type = numberAtStart(value);
    return type == 3   ? QStringLiteral("BOM")
           : type == 4 ? QStringLiteral("Item")
                       : QStringLiteral("File");
}

Row load(const TransCond& record, const PredictedWorld& world)
{
    Row row;
    const LONG type = record.lCondType;
    const auto label = labels().find(type);
    row.name = label == labels().end() ? record.oName.str() : label->second;
    QString shown;
    if (isState(type) && record.lOperator != 108) {
        LONG id = numberAtStart(record.oValue.str());
        shown = nameOf(world.states, id);
        if (shown.isEmpty() && id < 0 && id != std::numeric_limits<LONG>::min()) {
            id = -id;
            shown = nameOf(world.states, id);
        }
        row.id = id;
    } else if (type == 8 || type == 9) {
        row.id = numberAtStart(record.oValue.str());
        shown = nameOf(type == 8 ? world.users : world.groups, *row.id);
    } else {
        shown = shownText(record);
    }
    const auto [fitting, value] = readTyped(shown, record.lArgType, record.lOperator);
    row.value = value;
    row.op = record.lOperator == 160 ? fitting : record.lOperator;
    return row;
}

LONG variableType(const QString& name, const PredictedWorld& world)
{
    if (world.variables.empty())
        return 0;
    LONG type = world.variables.back().second;
    for (const auto& [variable, variableType] : world.variables) {
        if (variable.compare(name, Qt::CaseInsensitive) == 0) {
            type = variableType;
            break;
        }
    }
    return type >= 1 && type <= 5 ? type : 0;
}

TransCond save(const TransCond& loaded, const Row& row, const PredictedWorld& world)
{
    TransCond record;
    const LONG type = loaded.lCondType;
    const bool isKnown = type >= 1 && type <= 10;
    const bool isOfVariable = type == 2 || type == 6 || !isKnown;
    record.lCondType = isKnown ? type : 0;
    record.oName = isKnown ? row.name : QStringLiteral("n/a");
    record.oExtra = loaded.oExtra;
    record.lOperator = row.op;
    // A row of an unknown type is labelled as a placeholder, and its label is what is looked up.
    const QString variable = isKnown ? row.name : QStringLiteral("<Click here to add a condition>");
    record.lArgType = isOfVariable ? variableType(variable, world) : 1;
    if (isState(type) && row.op != 108)
        record.oValue = QString::number(row.id.value_or(-1));
    else if (type == 8 || type == 9)
        record.oValue = QString::number(*row.id);
    else if (record.lArgType == 4)
        record.oValue = row.value == kYes ? kYes : kNo;
    else if (type == 5)
        record.oValue = row.value == QStringLiteral("BOM")    ? QStringLiteral("3")
                        : row.value == QStringLiteral("Item") ? QStringLiteral("4")
                                                              : QStringLiteral("1");
    else
        record.oValue = row.value;
    return record;
}

std::vector<std::string> rulesOf(const TransCond& loaded, const TransCond& saved)
{
    std::vector<std::string> rules;
    const auto note = [&rules](bool differs, const char* rule) {
        if (differs)
            rules.emplace_back(rule);
    };
    const LONG type = loaded.lCondType;
    if (loaded.lRowKind == 2) {
        note(true, "a group's record keeps nothing but its kind");
        return rules;
    }
    note(loaded.lRowKind != saved.lRowKind, "a row stands in the group before it, or at the top");
    note(type != saved.lCondType, "an unknown type is saved as 0");
    note(!(loaded.oName == saved.oName), type >= 1 && type <= 10
                                             ? "a fixed kind is saved with its label"
                                             : "an unknown type is saved without its name");
    note(loaded.lArgType != saved.lArgType, "the type is that of the kind or of the variable");
    note(loaded.lOperator != saved.lOperator, "the operator is taken from the text");
    const bool hasId = isState(type) || type == 8 || type == 9;
    note(!(loaded.oValue == saved.oValue),
         hasId       ? "an id is saved as a number, a state's by its absolute value"
         : type == 5 ? "an object type is saved as 1, 3 or 4"
                     : "a value is trimmed, loses its operator, or becomes Yes or No");
    return rules;
}

} // namespace

QString predictStripped(const QString& value, LONG argType, LONG op)
{
    return readTyped(value, argType, op).second;
}

Prediction predictSave(const std::vector<TransCond>& records, const PredictedWorld& world)
{
    Prediction prediction;
    bool isInGroup = false;
    bool groupHasEnded = false;
    bool topHasEnded = false;
    for (const TransCond& loaded : records) {
        const LONG type = loaded.lCondType;
        if (world.isReducedVault && (type == 4 || isState(type))) {
            prediction.dropped.emplace_back("a reduced vault does not load it");
            continue;
        }
        TransCond saved;
        if (loaded.lRowKind == 2) {
            isInGroup = true;
            groupHasEnded = false;
            saved.lRowKind = 2;
        } else {
            isInGroup = isInGroup && loaded.lRowKind == 4;
            const Row row = load(loaded, world);
            if (world.isReducedVault && (type == 8 || type == 9)) {
                prediction.dropped.emplace_back("a reduced vault does not save it");
                continue;
            }
            if ((type < 1 || type > 10) && row.op == -1)
                (isInGroup ? groupHasEnded : topHasEnded) = true;
            saved = save(loaded, row, world);
            saved.lRowKind = isInGroup ? 4 : 3;
        }
        if (topHasEnded || (isInGroup && loaded.lRowKind != 2 && groupHasEnded)) {
            prediction.dropped.emplace_back("an untouched placeholder ends its level");
            continue;
        }
        saved.lIndex = static_cast<LONG>(prediction.saved.size());
        prediction.saved.push_back({saved, loaded, rulesOf(loaded, saved)});
    }
    return prediction;
}

} // namespace condtree::test
