#include "workbench/RecordChanges.h"

#include <gtest/gtest.h>

using namespace condtree;
using namespace condtree::workbench;

namespace {

SpConditionRecord record(LONG rowKind, LONG condType, const char16_t* name, const char16_t* value,
                         LONG argType, LONG op)
{
    return {rowKind, condType, name, {}, value, argType, op};
}

struct Row {
    const char* name;
    SpConditionRecord read;
    SpConditionRecord stored;
};

TEST(RecordChanges, WhatEveryLoadingAndSavingDoesIsNoChange)
{
    const Row rows[] = {
        {"nothing", record(3, 2, u"a", u"v", 1, 101), record(3, 2, u"a", u"v", 1, 101)},
        {"odd, but the same", record(77, 99, u"a", u"v", -5, -1),
         record(77, 99, u"a", u"v", -5, -1)},
        {"the operator of the text", record(3, 2, u"a", u"<=3", 2, 160),
         record(3, 2, u"a", u"3", 2, 124)},
        {"a bare text under 160", record(3, 2, u"a", u"3", 2, 160),
         record(3, 2, u"a", u"3", 2, 120)},
        {"an operator in front", record(3, 2, u"a", u"!=me", 1, 101),
         record(3, 2, u"a", u"me", 1, 101)},
        {"wildcards", record(3, 2, u"a", u"%me%", 1, 106), record(3, 2, u"a", u"me", 1, 106)},
        {"not, blanks and wildcards", record(3, 2, u"a", u"!= %me%", 1, 107),
         record(3, 2, u"a", u"me", 1, 107)},
        {"a lone wildcard", record(3, 2, u"a", u"%", 1, 106), record(3, 2, u"a", u"", 1, 106)},
        {"blanks", record(3, 2, u"a", u"  me ", 1, 101), record(3, 2, u"a", u"me", 1, 101)},
        {"a label", record(3, 1, u"", u"x", 1, 106), record(3, 1, u"FilePath", u"x", 1, 106)},
        {"a negative state", record(3, 7, u"s", u"-12", 1, 100), record(3, 7, u"s", u"12", 1, 100)},
        {"a negative past state", record(3, 10, u"s", u"-12", 1, 100),
         record(3, 10, u"s", u"12", 1, 100)},
        {"an empty group", record(2, 0, u"", u"", 0, 0), record(2, 0, u"", u"", 0, 0)},
    };
    for (const Row& row : rows)
        EXPECT_TRUE(rowsChangedBySaving({row.read}, {row.stored}).empty()) << row.name;
}

TEST(RecordChanges, EverythingElseIsAChange)
{
    const Row rows[] = {
        {"yes or no", record(3, 2, u"a", u"important", 4, 127), record(3, 2, u"a", u"No", 4, 127)},
        {"the type of the last variable", record(3, 2, u"a", u"v", 1, 100),
         record(3, 2, u"a", u"v", 4, 100)},
        {"an unknown kind", record(3, 11, u"a", u"v", 1, 100), record(3, 0, u"n/a", u"v", 1, 100)},
        {"a name", record(3, 2, u"a", u"v", 1, 100), record(3, 2, u"A", u"v", 1, 100)},
        {"another own name", record(3, 6, u"a", u"v", 1, 100), record(3, 6, u"b", u"v", 1, 100)},
        {"a group's text", record(2, 0, u"mine", u"", 0, 0), record(2, 0, u"", u"", 0, 0)},
        {"a group's operator", record(2, 0, u"", u"", 0, 160), record(2, 0, u"", u"", 0, 0)},
        {"a user", record(3, 8, u"User", u"abc", 1, 100), record(3, 8, u"User", u"0", 1, 100)},
        {"a negative user", record(3, 8, u"User", u"-7", 1, 100),
         record(3, 8, u"User", u"7", 1, 100)},
        {"a state", record(3, 7, u"s", u"abc", 1, 100), record(3, 7, u"s", u"0", 1, 100)},
        {"a row kind", record(77, 2, u"a", u"v", 1, 100), record(3, 2, u"a", u"v", 1, 100)},
        {"a row without its group", record(4, 2, u"a", u"v", 1, 100),
         record(3, 2, u"a", u"v", 1, 100)},
        {"an operator", record(3, 2, u"a", u"v", 1, 101), record(3, 2, u"a", u"v", 1, 100)},
        {"no operator in the text", record(3, 2, u"a", u"!v", 1, 160),
         record(3, 2, u"a", u"v", 1, -1)},
        {"two operators in front", record(3, 2, u"a", u"<<v", 1, 102),
         record(3, 2, u"a", u"v", 1, 102)},
        {"an object type", record(3, 5, u"", u"9", 1, 100), record(3, 5, u"", u"1", 1, 100)},
        {"extra", {3, 2, u"a", u"x", u"v", 1, 100}, {3, 2, u"a", u"", u"v", 1, 100}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(rowsChangedBySaving({row.read}, {row.stored}), std::vector<std::size_t>{0})
            << row.name;
}

TEST(RecordChanges, RecordsThatAreMissingAreNamedAndTheOthersStillFit)
{
    const auto a = record(3, 2, u"a", u"v", 1, 100);
    const auto b = record(3, 2, u"b", u"v", 1, 100);
    const auto c = record(3, 2, u"c", u"v", 1, 100);
    using Rows = std::vector<std::size_t>;
    EXPECT_EQ(rowsChangedBySaving({a, b, c}, {a, c}), Rows{1});
    EXPECT_EQ(rowsChangedBySaving({a, b, c}, {a}), (Rows{1, 2}));
    EXPECT_EQ(rowsChangedBySaving({a, b, c}, {}), (Rows{0, 1, 2}));
    EXPECT_EQ(rowsChangedBySaving({a, b, c}, {c, b, c}), Rows{0});
    EXPECT_EQ(rowsChangedBySaving({}, {}), Rows{});
}

TEST(RecordChanges, TheFirstFewRowsAreNamedFromOne)
{
    EXPECT_EQ(rowNumbers({2}), QStringLiteral("3"));
    EXPECT_EQ(rowNumbers({0, 1}), QStringLiteral("1 and 2"));
    EXPECT_EQ(rowNumbers({0, 1, 8}), QStringLiteral("1, 2 and 9"));
    EXPECT_EQ(rowNumbers({0, 1, 2, 3, 4}), QStringLiteral("1, 2, 3, 4 and 5"));
    EXPECT_EQ(rowNumbers({0, 1, 2, 3, 4, 9, 11}), QStringLiteral("1, 2, 3, 4, 5 and 2 more"));
}

} // namespace
