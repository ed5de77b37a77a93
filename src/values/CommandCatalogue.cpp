#include "CommandCatalogue.h"

#include <condtree/model/VarTreeCtrlNode.h>

#include <algorithm>
#include <array>
#include <functional>

namespace condtree {

namespace {

constexpr TextRef searchText(LONG id, const char16_t* text)
{
    return {id, kTextKey, u"Search", text};
}

constexpr TextRef workflowText(LONG id, const char16_t* text)
{
    return {id, kTextKey, u"Workflow", text};
}

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
    {And, searchText(38, u"And"), std::nullopt},
    {Or, searchText(39, u"Or"), kImageOr},
    {Remove, searchText(55, u"Remove"), kImageRemove},
    {Category, workflowText(87, u"Category"), kImageFixedKind},
    {DocTypeChoice, std::nullopt, std::nullopt},
    {FilePath, workflowText(20, u"FilePath"), kImageFixedKind},
    {ObjectType, workflowText(732, u"Object Type"), kImageFixedKind},
    {Revision, workflowText(21, u"Revision"), kImageFixedKind},
    {ChildRefState, workflowText(756, u"Child Reference State"), kImageFixedKind},
    {User, workflowText(40, u"User"), kImageUser},
    {Group, workflowText(180, u"Group"), kImageGroup},
    {ObjectTypeFile, workflowText(733, u"File"), std::nullopt},
    {ObjectTypeBom, workflowText(734, u"BOM"), std::nullopt},
    {ObjectTypeItem, TextRef{15, kTextKey, u"ItemMgr", u"Item"}, std::nullopt},
    {BinaryYes, workflowText(58, u"Yes"), std::nullopt},
    {BinaryNo, workflowText(59, u"No"), std::nullopt},
    {StateChoice, std::nullopt, std::nullopt},
    {VariableBase, std::nullopt, kImageVariable},
    {UserChoice, std::nullopt, std::nullopt},
    {GroupChoice, std::nullopt, kImageOfGroupChoice},
}};

static_assert(std::ranges::is_sorted(kCommands, {}, &CommandEntry::command));

constexpr TextRef kPlaceholder = searchText(70, u"<Click here to add a condition>");
constexpr TextRef kAnyVariable = searchText(44, u"<Any Variable>");

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

const TextRef& placeholderText()
{
    return kPlaceholder;
}

const TextRef& anyVariableText()
{
    return kAnyVariable;
}

const TextRef* typeLabel(LONG nodeCode)
{
    if (nodeCode == NodePlaceholder)
        return &kPlaceholder;
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
