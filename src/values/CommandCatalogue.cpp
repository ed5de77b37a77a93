#include "CommandCatalogue.h"

#include <condtree/model/ControlText.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <algorithm>
#include <array>
#include <functional>

namespace condtree {

namespace {

// The pictures of the row image list, by index.
constexpr int kImageOr = 2;
constexpr int kImageVariable = 3;
constexpr int kImageRemove = 4;
constexpr int kImageFixedKind = 5;
constexpr int kImageUser = 6;
constexpr int kImageGroup = 7;
// A group offered as a value has the first picture, unlike a condition on a group.
constexpr int kImageOfGroupChoice = 0;

constexpr std::array<CommandEntry, 20> kCommands{{
    {And, textRef(ControlText::And), std::nullopt},
    {Or, textRef(ControlText::Or), kImageOr},
    {Remove, textRef(ControlText::Remove), kImageRemove},
    {Category, textRef(ControlText::Category), kImageFixedKind},
    {DocTypeChoice, std::nullopt, std::nullopt},
    {FilePath, textRef(ControlText::FilePath), kImageFixedKind},
    {ObjectType, textRef(ControlText::ObjectType), kImageFixedKind},
    {Revision, textRef(ControlText::Revision), kImageFixedKind},
    {ChildRefState, textRef(ControlText::ChildRefState), kImageFixedKind},
    {User, textRef(ControlText::User), kImageUser},
    {Group, textRef(ControlText::Group), kImageGroup},
    {ObjectTypeFile, textRef(ControlText::File), std::nullopt},
    {ObjectTypeBom, textRef(ControlText::BillOfMaterials), std::nullopt},
    {ObjectTypeItem, textRef(ControlText::Item), std::nullopt},
    {BinaryYes, textRef(ControlText::Yes), std::nullopt},
    {BinaryNo, textRef(ControlText::No), std::nullopt},
    {StateChoice, std::nullopt, std::nullopt},
    {VariableBase, std::nullopt, kImageVariable},
    {UserChoice, std::nullopt, std::nullopt},
    {GroupChoice, std::nullopt, kImageOfGroupChoice},
}};

static_assert(std::ranges::is_sorted(kCommands, {}, &CommandEntry::command));

struct RowImage {
    LONG nodeCode;
    int image;
};

// The rows whose picture does not follow from their code; ascending.
constexpr std::array<RowImage, 10> kRowImages{{
    {Category, kImageFixedKind},
    {DocTypeChoice, kImageFixedKind},
    {FilePath, kImageFixedKind},
    {ObjectType, kImageFixedKind},
    {Revision, kImageFixedKind},
    {ChildRefState, kImageFixedKind},
    {User, kImageUser},
    {Group, kImageGroup},
    {NodeOtherName, kImageVariable},
    {NodeHistoricState, kImageFixedKind},
}};

static_assert(std::ranges::is_sorted(kRowImages, {}, &RowImage::nodeCode));

/// The entry of an ascending table whose key is value; null when there is none.
template <class Table, class Key>
constexpr const typename Table::value_type* findEntry(const Table& table, LONG value, Key key)
{
    const auto found = std::ranges::lower_bound(table, value, {}, key);
    return found != table.end() && std::invoke(key, *found) == value ? &*found : nullptr;
}

} // namespace

std::span<const CommandEntry> commandCatalogue()
{
    return kCommands;
}

const CommandEntry* findCommand(LONG command)
{
    return findEntry(kCommands, command, &CommandEntry::command);
}

const TextRef* typeLabel(LONG nodeCode)
{
    if (nodeCode == NodePlaceholder)
        return &textRef(ControlText::Placeholder);
    return nodeCode == NodeAnd || nodeCode == NodeOr ? &*findCommand(nodeCode)->text : nullptr;
}

int rowImageIndex(LONG nodeCode)
{
    if (const RowImage* row = findEntry(kRowImages, nodeCode, &RowImage::nodeCode))
        return row->image;
    // The placeholder, the groups and the commands have their pictures in the order of their codes.
    return nodeCode < StringEqualTo ? nodeCode + 1 : kImageVariable;
}

} // namespace condtree
