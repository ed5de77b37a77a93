#include "ConditionKind.h"

#include "ControlText.h"

#include <array>

namespace condtree {

namespace {

constexpr std::array<ConditionKind, 10> kKinds{{
    {1, FilePath, textRef(ControlText::FilePath), ValueKind::Text},
    {2, NodeVariable, std::nullopt, ValueKind::Text},
    {3, Revision, textRef(ControlText::Revision), ValueKind::Text},
    {4, Category, textRef(ControlText::Category), ValueKind::Text},
    {5, ObjectType, textRef(ControlText::ObjectType), ValueKind::ObjectType},
    {6, NodeOtherName, std::nullopt, ValueKind::Text},
    {7, ChildRefState, textRef(ControlText::ChildRefState), ValueKind::ChildRefState},
    {8, User, textRef(ControlText::User), ValueKind::User},
    {9, Group, textRef(ControlText::Group), ValueKind::Group},
    {10, NodeHistoricState, textRef(ControlText::ChildRefHistoricState), ValueKind::ChildRefState},
}};

constexpr bool isBetween(LONG value, LONG first, LONG last)
{
    return value >= first && value <= last;
}

} // namespace

std::span<const ConditionKind> conditionKinds()
{
    return kKinds;
}

const ConditionKind* kindOfRecord(LONG condType)
{
    return isBetween(condType, 1, static_cast<LONG>(kKinds.size()))
               ? &kKinds[static_cast<std::size_t>(condType - 1)]
               : nullptr;
}

std::optional<LONG> recordTypeOfNode(LONG nodeCode)
{
    // A row that carries an operator's number as its code is a condition on a card variable.
    if (isBetween(nodeCode, 100, 107) || isBetween(nodeCode, 120, 125)
        || isBetween(nodeCode, 130, 135))
        return 2;
    if (nodeCode == DocTypeChoice)
        return 4;
    for (const ConditionKind& kind : kKinds) {
        if (kind.nodeCode == nodeCode)
            return kind.condType;
    }
    return std::nullopt;
}

} // namespace condtree
