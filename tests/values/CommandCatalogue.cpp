#include <condtree/values/CommandCatalogue.h>

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>

namespace condtree {

namespace {

constexpr int kNoImage = -1;

struct CommandRow {
    LONG command;
    LONG textId;
    const char* section;
    const char* text;
    int image;
};

// Without a section the text is the name of what is offered.
constexpr CommandRow kRows[] = {
    {0, 38, "Search", "And", kNoImage},
    {1, 39, "Search", "Or", 2},
    {2, 55, "Search", "Remove", 4},
    {3, 87, "Workflow", "Category", 5},
    {4, 0, nullptr, nullptr, kNoImage},
    {5, 20, "Workflow", "FilePath", 5},
    {6, 732, "Workflow", "Object Type", 5},
    {7, 21, "Workflow", "Revision", 5},
    {8, 756, "Workflow", "Child Reference State", 5},
    {9, 40, "Workflow", "User", 6},
    {10, 180, "Workflow", "Group", 7},
    {136, 733, "Workflow", "File", kNoImage},
    {137, 734, "Workflow", "BOM", kNoImage},
    {138, 15, "ItemMgr", "Item", kNoImage},
    {140, 58, "Workflow", "Yes", kNoImage},
    {141, 59, "Workflow", "No", kNoImage},
    {142, 0, nullptr, nullptr, kNoImage},
    {1000, 0, nullptr, nullptr, 3},
    {2001, 0, nullptr, nullptr, kNoImage},
    {3000, 0, nullptr, nullptr, 0},
};

std::string text(const char16_t* units)
{
    return QString::fromUtf16(units).toStdString();
}

void expectText(const TextRef& found, LONG id, const char* section, const char* defaultText)
{
    EXPECT_EQ(found.id, id);
    EXPECT_EQ(text(found.key), "TS");
    EXPECT_EQ(text(found.section), section);
    EXPECT_EQ(text(found.defaultText), defaultText);
}

void expectRow(const CommandEntry& entry, const CommandRow& row)
{
    SCOPED_TRACE(row.command);
    EXPECT_EQ(entry.command, row.command);
    ASSERT_EQ(entry.text.has_value(), row.section != nullptr);
    if (entry.text)
        expectText(*entry.text, row.textId, row.section, row.text);
    EXPECT_EQ(entry.image.value_or(kNoImage), row.image);
}

} // namespace

TEST(CommandCatalogue, HasEveryCommandInOrder)
{
    const auto entries = commandCatalogue();
    ASSERT_EQ(entries.size(), std::size(kRows));
    for (std::size_t i = 0; i < entries.size(); ++i)
        expectRow(entries[i], kRows[i]);
}

TEST(CommandCatalogue, FindsExactlyItsCommands)
{
    std::map<LONG, CommandRow> expected;
    for (const CommandRow& row : kRows)
        expected.emplace(row.command, row);
    for (LONG command = -10; command <= 3100; ++command) {
        const CommandEntry* entry = findCommand(command);
        ASSERT_EQ(entry != nullptr, expected.contains(command)) << command;
        if (entry != nullptr)
            expectRow(*entry, expected.at(command));
    }
}

TEST(TypeLabel, IsGivenToThePlaceholderAndTheGroups)
{
    ASSERT_NE(typeLabel(-1), nullptr);
    expectText(*typeLabel(-1), 70, "Search", "<Click here to add a condition>");
    ASSERT_NE(typeLabel(0), nullptr);
    expectText(*typeLabel(0), 38, "Search", "And");
    ASSERT_NE(typeLabel(1), nullptr);
    expectText(*typeLabel(1), 39, "Search", "Or");
}

TEST(TypeLabel, IsNoneForEveryOtherCode)
{
    for (LONG code = -10; code <= 3100; ++code) {
        const bool isLabelled = code >= -1 && code <= 1;
        EXPECT_EQ(typeLabel(code) != nullptr, isLabelled) << code;
    }
}

TEST(RowImage, FollowsTheTableOfKinds)
{
    const std::map<LONG, int> table{
        {-5, -4}, {-2, -1}, {-1, 0},  {0, 1},    {1, 2},    {2, 3},    {3, 5},
        {4, 5},   {5, 5},   {6, 5},   {7, 5},    {8, 5},    {9, 6},    {10, 7},
        {11, 3},  {12, 5},  {13, 14}, {50, 51},  {99, 100}, {100, 3},  {108, 3},
        {139, 3}, {160, 3}, {999, 3}, {1000, 3}, {1106, 3}, {3000, 3},
    };
    for (const auto& [code, image] : table)
        EXPECT_EQ(rowImageIndex(code), image) << code;
}

TEST(RowImage, IsTheNextNumberForEveryOtherCodeBelow100)
{
    for (LONG code = 13; code < 100; ++code)
        EXPECT_EQ(rowImageIndex(code), code + 1);
    for (LONG code = 100; code <= 3100; ++code)
        EXPECT_EQ(rowImageIndex(code), 3) << code;
    EXPECT_EQ(rowImageIndex(std::numeric_limits<LONG>::min()), -2147483647);
    EXPECT_EQ(rowImageIndex(std::numeric_limits<LONG>::max()), 3);
}

} // namespace condtree
