#include <condtree/values/OperatorRules.h>

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace condtree {

namespace {

using Numbers = std::vector<int>;

const Numbers kEqualities{100, 101};
const Numbers kStates{100, 101, 108};
const Numbers kStrings{100, 101, 102, 103, 104, 105, 106, 107, 108};
const Numbers kTexts{100, 101, 102, 103, 104, 105, 106, 107, 108, 120, 121,
                     122, 123, 124, 125, 130, 131, 132, 133, 134, 135};
const Numbers kNumbersFirst{120, 121, 122, 123, 124, 125, 100, 101,
                            102, 103, 104, 105, 106, 107, 108};
const Numbers kDatesFirst{130, 131, 132, 133, 134, 135, 100, 101,
                          102, 103, 104, 105, 106, 107, 108};
const Numbers kBinaries{139};

Numbers offered(LONG nodeCode, LONG argType)
{
    const auto commands = offeredOperators(nodeCode, argType);
    return {commands.begin(), commands.end()};
}

/// The list of a row whose kind has none of its own.
const Numbers& listOfType(LONG argType)
{
    static const Numbers none;
    switch (argType) {
    case 1:
        return kTexts;
    case 2:
    case 3:
        return kNumbersFirst;
    case 4:
        return kBinaries;
    case 5:
        return kDatesFirst;
    default:
        return none;
    }
}

const std::vector<LONG> kArgTypes{-1, 0, 1, 2, 3, 4, 5, 6, 7};

std::set<int> range(int first, int last)
{
    std::set<int> result;
    for (int value = first; value <= last; ++value)
        result.insert(value);
    return result;
}

std::set<int> merged(std::set<int> a, const std::set<int>& b)
{
    a.insert(b.begin(), b.end());
    return a;
}

/// The operators that a row of a type keeps.
std::set<int> kept(LONG argType)
{
    switch (argType) {
    case 1:
        return range(100, 135);
    case 3:
        return merged(range(100, 108), range(120, 125));
    case 5:
        return merged(range(100, 108), range(130, 135));
    default:
        return {};
    }
}

} // namespace

TEST(DefaultOperator, FollowsTheVariablesType)
{
    const std::pair<LONG, int> rows[] = {{1, 106}, {2, 120}, {3, 120}, {4, 139}, {5, 130}};
    for (const auto& [type, command] : rows)
        EXPECT_EQ(defaultOperator(type), command) << type;
}

TEST(DefaultOperator, IsContainsForAnyOtherType)
{
    for (const LONG type : {-1, 0, 6, 7, 100})
        EXPECT_EQ(defaultOperator(type), 106) << type;
}

TEST(MustResetOperator, IsFalseExactlyForTheOperatorsThatATypeKeeps)
{
    for (const LONG argType : kArgTypes) {
        const std::set<int> keeps = kept(argType);
        for (LONG command = 95; command <= 165; ++command)
            EXPECT_EQ(mustResetOperator(argType, command), !keeps.contains(command))
                << argType << ", " << command;
    }
}

TEST(MustResetOperator, TreatsTheTwoNumericKindsDifferently)
{
    EXPECT_TRUE(mustResetOperator(2, 120));
    EXPECT_FALSE(mustResetOperator(3, 120));
}

TEST(MustResetOperator, KeepsNumbersThatNameNoOperatorOnATextRow)
{
    EXPECT_FALSE(mustResetOperator(1, 115));
    EXPECT_FALSE(mustResetOperator(1, 129));
    EXPECT_TRUE(mustResetOperator(3, 115));
    EXPECT_TRUE(mustResetOperator(5, 129));
}

TEST(MustResetOperator, ResetsABinaryOperatorOnADateAndOnAYesNoRow)
{
    EXPECT_TRUE(mustResetOperator(5, 139));
    EXPECT_TRUE(mustResetOperator(4, 139));
}

TEST(MustResetOperator, ResetsNumbersFarOutside)
{
    for (const LONG argType : kArgTypes) {
        for (const LONG command : {-2147483647 - 1, -1, 0, 1106, 2147483647})
            EXPECT_TRUE(mustResetOperator(argType, command)) << argType << ", " << command;
    }
}

TEST(OfferedOperators, AreTheEqualitiesForCategoriesObjectTypesUsersAndGroups)
{
    for (const LONG code : {3, 6, 9, 10}) {
        for (const LONG argType : kArgTypes)
            EXPECT_EQ(offered(code, argType), kEqualities) << code << ", " << argType;
    }
}

TEST(OfferedOperators, AreTheOperatorsOnTextsForAFilePath)
{
    for (const LONG argType : kArgTypes)
        EXPECT_EQ(offered(5, argType), kStrings) << argType;
}

TEST(OfferedOperators, AreEqualitiesAndTextCompareForChildReferenceStates)
{
    for (const LONG code : {8, 12}) {
        for (const LONG argType : kArgTypes)
            EXPECT_EQ(offered(code, argType), kStates) << code << ", " << argType;
    }
}

TEST(OfferedOperators, AreAllTwentyOneForARevision)
{
    for (const LONG argType : kArgTypes)
        EXPECT_EQ(offered(7, argType), kTexts) << argType;
    EXPECT_EQ(offered(7, 1).size(), 21U);
}

TEST(OfferedOperators, FollowTheTypeForEveryOtherRow)
{
    for (const LONG code : {-1, 0, 1, 2, 4, 11, 13, 100, 107, 120, 125, 130, 135, 1000, 1106}) {
        for (const LONG argType : kArgTypes)
            EXPECT_EQ(offered(code, argType), listOfType(argType)) << code << ", " << argType;
    }
}

} // namespace condtree
