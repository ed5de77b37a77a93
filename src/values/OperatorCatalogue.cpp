#include "OperatorCatalogue.h"

#include <algorithm>
#include <array>

namespace condtree {

namespace {

constexpr std::array<OperatorEntry, 22> kOperators{{
    {StringEqualTo, u"String Equal To", 0, u"", u""},
    {StringNotEqualTo, u"String Not Equal To", 1, u"!=", u""},
    {StringLessThan, u"String Less Than", 2, u"<", u""},
    {StringBiggerThan, u"String Bigger Than", 3, u">", u""},
    {StringLessOrEqual, u"String Less Than or Equal", 4, u"<=", u""},
    {StringBiggerOrEqual, u"String Bigger Than or Equal", 5, u">=", u""},
    {StringContains, u"String Contains", 6, u"%", u"%"},
    {StringNotContains, u"String Does Not Contain", 7, u"!=%", u"%"},
    {TextCompare, u"Text Compare", 8, u"", u""},
    {NumberEqualTo, u"Number Equal To", 9, u"", u""},
    {NumberNotEqualTo, u"Number Not Equal To", 10, u"!=", u""},
    {NumberLessThan, u"Number Less Than", 11, u"<", u""},
    {NumberBiggerThan, u"Number Bigger Than", 12, u">", u""},
    {NumberLessOrEqual, u"Number Less Than or Equal", 13, u"<=", u""},
    {NumberBiggerOrEqual, u"Number Bigger Than or Equal", 14, u">=", u""},
    {DateEqualTo, u"Date Equal To", 18, u"", u""},
    {DateNotEqualTo, u"Date Not Equal To", 19, u"!=", u""},
    {DateLessThan, u"Date Less Than", 20, u"<", u""},
    {DateBiggerThan, u"Date Bigger Than", 21, u">", u""},
    {DateLessOrEqual, u"Date Less Than or Equal", 22, u"<=", u""},
    {DateBiggerOrEqual, u"Date Bigger Than or Equal", 23, u">=", u""},
    {BinaryEqualTo, u"Binary Equal To", 27, u"", u""},
}};

static_assert(std::ranges::is_sorted(kOperators, {}, &OperatorEntry::command));

/// What to subtract from an operator's number for its picture's index.
unsigned imageOffset(LONG command)
{
    if (command < NumberEqualTo)
        return 100;
    return command < DateEqualTo ? 111 : 112;
}

} // namespace

std::span<const OperatorEntry> operatorCatalogue()
{
    return kOperators;
}

const OperatorEntry* findOperator(LONG command)
{
    const auto* found = std::ranges::lower_bound(kOperators, command, {}, &OperatorEntry::command);
    return found != kOperators.end() && found->command == command ? found : nullptr;
}

int operatorImageIndex(LONG command)
{
    // Unsigned, because a record may hold any number, the smallest included.
    return static_cast<int>(static_cast<unsigned>(command) - imageOffset(command));
}

CString operatorName(LONG command, const char16_t* defaultText, const StringSource& strings)
{
    return strings(command, u"OpName", u"Search", defaultText);
}

} // namespace condtree
