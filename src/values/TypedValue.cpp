#include "TypedValue.h"

#include "OperatorCatalogue.h"

#include <algorithm>
#include <utility>

namespace condtree {

namespace {

constexpr QChar kWildcard = u'%';

// The order of the operators within each of the three bands of comparisons.
enum : LONG { EqualTo, NotEqualTo, LessThan, BiggerThan, LessOrEqual, BiggerOrEqual };

/// The comparison that a text begins with.
struct Comparison {
    LONG offset;
    /// How many code units name it.
    qsizetype length;
};

Comparison comparisonOf(QStringView text)
{
    const bool isLonger = text.size() > 1 && text[1] == u'=';
    const qsizetype length = isLonger ? 2 : 1;
    switch (text.isEmpty() ? u'\0' : text.front().unicode()) {
    case u'=':
        return {EqualTo, 1};
    case u'!':
        return {NotEqualTo, length};
    case u'<':
        return {isLonger ? LessOrEqual : LessThan, length};
    case u'>':
        return {isLonger ? BiggerOrEqual : BiggerThan, length};
    default:
        return {EqualTo, 0};
    }
}

ComboCmd inBand(ComboCmd equalTo, LONG offset)
{
    return static_cast<ComboCmd>(equalTo + offset);
}

// These leave a text that needs no change alone, so that it stays shared.

void removeFront(CString& text, qsizetype length)
{
    if (length > 0)
        text.remove(0, length);
}

void trim(CString& text)
{
    text = std::move(text).trimmed();
}

ComboCmd parseComparison(CString& text, ComboCmd equalTo)
{
    const Comparison comparison = comparisonOf(text);
    removeFront(text, comparison.length);
    return inBand(equalTo, comparison.offset);
}

/// Takes off a wildcard at both ends; a lone one is both. False when they are not there.
bool removeWildcardPair(CString& text)
{
    if (!text.startsWith(kWildcard) || !text.endsWith(kWildcard))
        return false;
    text.chop(1);
    text.remove(0, 1);
    return true;
}

bool hasWildcard(QStringView text)
{
    constexpr QStringView kWildcards = u"%[_";
    return std::any_of(text.begin(), text.end(),
                       [&](QChar unit) { return kWildcards.contains(unit); });
}

bool isString(LONG command)
{
    return command >= StringEqualTo && command <= TextCompare;
}

/// For a row of numbers or dates: an operator on texts stays, and only its text form is taken off.
ComboCmd parseUnlessString(CString& text, ComboCmd current, ComboCmd (*parse)(CString&))
{
    if (!isString(current))
        return parse(text);
    parseString(text);
    return current;
}

} // namespace

ComboCmd parseString(CString& text)
{
    if (text.startsWith(kWildcard))
        return removeWildcardPair(text) ? StringContains : StringEqualTo;

    const Comparison comparison = comparisonOf(text);
    removeFront(text, comparison.length);
    switch (comparison.offset) {
    case EqualTo:
        return hasWildcard(text) ? TextCompare : StringEqualTo;
    case NotEqualTo:
        if (comparison.length == 1)
            return kNoOperator;
        trim(text);
        return removeWildcardPair(text) ? StringNotContains : StringNotEqualTo;
    default:
        return inBand(StringEqualTo, comparison.offset);
    }
}

ComboCmd parseNumber(CString& text)
{
    return parseComparison(text, NumberEqualTo);
}

ComboCmd parseDate(CString& text)
{
    return parseComparison(text, DateEqualTo);
}

ComboCmd compareType(CString& text, LONG argType, ComboCmd current)
{
    // A value under these operators may itself begin with what looks like one.
    if (current == StringEqualTo || current == TextCompare)
        return current;
    trim(text);
    switch (argType) {
    case ArgText:
        return parseString(text);
    case ArgNumberA:
    case ArgNumberB:
        return parseUnlessString(text, current, parseNumber);
    case ArgDate:
        return parseUnlessString(text, current, parseDate);
    case ArgBinary:
        return BinaryEqualTo;
    default:
        return StringEqualTo;
    }
}

void alterArgument(CString& text, LONG command)
{
    const OperatorEntry* entry = findOperator(command);
    if (entry == nullptr)
        return;
    const QStringView prefix(entry->prefix);
    const QStringView suffix(entry->suffix);
    if (prefix.isEmpty())
        return;
    CString altered;
    altered.reserve(prefix.size() + text.size() + suffix.size());
    altered += prefix;
    altered += text;
    altered += suffix;
    text = std::move(altered);
}

} // namespace condtree
