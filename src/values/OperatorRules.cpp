#include "OperatorRules.h"

#include <condtree/model/VarTreeCtrlNode.h>

#include <array>

namespace condtree {

namespace {

constexpr std::array kEqualities{StringEqualTo, StringNotEqualTo};

constexpr std::array kStates{StringEqualTo, StringNotEqualTo, TextCompare};

constexpr std::array kStrings{StringEqualTo,    StringNotEqualTo,  StringLessThan,
                              StringBiggerThan, StringLessOrEqual, StringBiggerOrEqual,
                              StringContains,   StringNotContains, TextCompare};

constexpr std::array kNumbers{NumberEqualTo,    NumberNotEqualTo,  NumberLessThan,
                              NumberBiggerThan, NumberLessOrEqual, NumberBiggerOrEqual};

constexpr std::array kDates{DateEqualTo,    DateNotEqualTo,  DateLessThan,
                            DateBiggerThan, DateLessOrEqual, DateBiggerOrEqual};

constexpr std::array kBinaries{BinaryEqualTo};

/// Lists one behind the other.
template <std::size_t... Sizes>
constexpr auto joined(const std::array<ComboCmd, Sizes>&... lists)
{
    std::array<ComboCmd, (Sizes + ...)> result{};
    std::size_t at = 0;
    const auto append = [&](const auto& list) {
        for (const ComboCmd command : list)
            result[at++] = command;
    };
    (append(lists), ...);
    return result;
}

constexpr auto kTexts = joined(kStrings, kNumbers, kDates);
constexpr auto kNumbersFirst = joined(kNumbers, kStrings);
constexpr auto kDatesFirst = joined(kDates, kStrings);

constexpr bool isBetween(LONG value, LONG first, LONG last)
{
    return value >= first && value <= last;
}

std::span<const ComboCmd> offeredForType(LONG argType)
{
    switch (argType) {
    case ArgText:
        return kTexts;
    case ArgNumberA:
    case ArgNumberB:
        return kNumbersFirst;
    case ArgDate:
        return kDatesFirst;
    case ArgBinary:
        return kBinaries;
    default:
        return {};
    }
}

} // namespace

ComboCmd defaultOperator(LONG variableType)
{
    switch (variableType) {
    case VarNumberA:
    case VarNumberB:
        return NumberEqualTo;
    case VarBinary:
        return BinaryEqualTo;
    case VarDate:
        return DateEqualTo;
    default:
        return StringContains;
    }
}

bool mustResetOperator(LONG argType, LONG command)
{
    const bool isString = isBetween(command, StringEqualTo, TextCompare);
    switch (argType) {
    case ArgText:
        // The whole band, also its numbers that name no operator.
        return !isBetween(command, StringEqualTo, DateBiggerOrEqual);
    case ArgNumberB:
        return !isString && !isBetween(command, NumberEqualTo, NumberBiggerOrEqual);
    case ArgDate:
        return !isString && !isBetween(command, DateEqualTo, DateBiggerOrEqual);
    default:
        return true;
    }
}

std::span<const ComboCmd> offeredOperators(LONG nodeCode, LONG argType)
{
    switch (nodeCode) {
    case Category:
    case ObjectType:
    case User:
    case Group:
        return kEqualities;
    case FilePath:
        return kStrings;
    case ChildRefState:
    case NodeHistoricState:
        return kStates;
    case Revision:
        return kTexts;
    default:
        return offeredForType(argType);
    }
}

} // namespace condtree
