#include <condtree/values/TypedValue.h>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

namespace condtree {

namespace {

rc::Gen<QString> values()
{
    const auto unit = rc::gen::weightedOneOf<char16_t>(
        {{3, rc::gen::element<char16_t>(u'=', u'!', u'%', u'<', u'>', u'[', u'_')},
         {2, rc::gen::element<char16_t>(u' ', u'\t', u'\n', u'\u00A0')},
         {3, rc::gen::element<char16_t>(u'a', u'5', u'-', u'\xD800')}});
    return rc::gen::map(rc::gen::container<std::u16string>(unit),
                        [](const std::u16string& text) { return QString::fromStdU16String(text); });
}

/// The operators that rows of a type write in front of their values.
std::vector<int> operatorsOf(int argType)
{
    switch (argType) {
    case 1:
        return {100, 101, 102, 103, 104, 105, 106, 107, 108};
    case 5:
        return {130, 131, 132, 133, 134, 135};
    default:
        return {120, 121, 122, 123, 124, 125};
    }
}

bool isEquality(int command)
{
    return command == 100 || command == 108 || command == 120 || command == 130;
}

/// Whether a value, stored bare because its operator has no text form, begins with one by itself.
bool beginsWithAnOperator(const QString& value, int argType)
{
    const QString trimmed = value.trimmed();
    const QString signs = argType == 1 ? u"=!<>%"_qs : u"=!<>"_qs;
    return !trimmed.isEmpty() && signs.contains(trimmed.front());
}

/// A wildcard in front alone, which is taken as it stands.
bool isUnclosed(const QString& value)
{
    const QString trimmed = value.trimmed();
    return trimmed.startsWith(u'%') && !trimmed.endsWith(u'%');
}

bool hasWildcard(const QString& value)
{
    return value.contains(u'%') || value.contains(u'[') || value.contains(u'_');
}

/// Whether the text form of a value under an operator reads as another operator, too: "<" and
/// "=5" make "<=5".
bool isAmbiguous(const QString& value, int command, int argType)
{
    switch (command) {
    case 102:
    case 103:
    case 122:
    case 123:
    case 132:
    case 133:
        return value.startsWith(u'=');
    case 101: {
        // What not equal leaves is trimmed before its wildcards are looked for.
        const QString trimmed = value.trimmed();
        return trimmed.startsWith(u'%') && trimmed.endsWith(u'%');
    }
    case 100:
        return !isUnclosed(value) && (beginsWithAnOperator(value, argType) || hasWildcard(value));
    case 108:
        return beginsWithAnOperator(value, argType) || !hasWildcard(value);
    default:
        return isEquality(command) && beginsWithAnOperator(value, argType);
    }
}

/// What trimming the whole text form leaves of the value in it.
QString trimmedWithin(const QString& value, int command)
{
    if (command == 106 || command == 107)
        return value; // it stands between wildcards
    if (isEquality(command) || command == 101)
        return value.trimmed();
    QString result = value;
    while (!result.isEmpty() && result.back().isSpace())
        result.chop(1);
    return result;
}

struct Case {
    QString value;
    int argType;
    int command;
};

Case anyCase()
{
    const int argType = *rc::gen::element(1, 2, 3, 5);
    const int command = *rc::gen::elementOf(operatorsOf(argType));
    Case result{*values(), argType, command};
    RC_LOG() << result.value.toStdString() << ", " << argType << ", " << command;
    return result;
}

} // namespace

RC_GTEST_PROP(TypedValue, ComesBackExactlyWhereItsTextFormIsNotAmbiguous, ())
{
    const Case row = anyCase();
    CString text = row.value;
    alterArgument(text, row.command);
    const bool isBack = compareType(text, row.argType, OperatorFromText) == row.command
                        && text == trimmedWithin(row.value, row.command);
    RC_ASSERT(isBack == !isAmbiguous(row.value, row.command, row.argType));
}

RC_GTEST_PROP(TypedValue, KeepsAnOperatorOnTextsInNumericAndDateRows, ())
{
    const QString value = *values();
    const int argType = *rc::gen::element(2, 3, 5);
    const int command = *rc::gen::inRange(100, 109);
    CString text = value;
    RC_ASSERT(compareType(text, argType, static_cast<ComboCmd>(command)) == command);
    if (command == 100 || command == 108)
        RC_ASSERT(text == value);
}

RC_GTEST_PROP(TypedValue, IsNeverMadeLongerByReading, ())
{
    const QString value = *values();
    const int argType = *rc::gen::inRange(-1, 8);
    CString text = value;
    compareType(text, argType, static_cast<ComboCmd>(*rc::gen::inRange(95, 165)));
    RC_ASSERT(value.contains(text));
}

} // namespace condtree
