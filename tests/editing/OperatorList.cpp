#include <condtree/editing/OperatorList.h>

#include "ChoiceTables.h"

#include <gtest/gtest.h>

namespace condtree {
namespace {

using test::kAsked;
using test::kEnglish;
using test::Lines;
using test::toLines;

const Lines kEqualities{
    "100|OpName Search 100 (String Equal To)|0",
    "101|OpName Search 101 (String Not Equal To)|1",
};

const Lines kTextCompare{"108|OpName Search 108 (Text Compare)|8"};

const Lines kStrings{
    "100|OpName Search 100 (String Equal To)|0",
    "101|OpName Search 101 (String Not Equal To)|1",
    "102|OpName Search 102 (String Less Than)|2",
    "103|OpName Search 103 (String Bigger Than)|3",
    "104|OpName Search 104 (String Less Than or Equal)|4",
    "105|OpName Search 105 (String Bigger Than or Equal)|5",
    "106|OpName Search 106 (String Contains)|6",
    "107|OpName Search 107 (String Does Not Contain)|7",
    "108|OpName Search 108 (Text Compare)|8",
};

const Lines kNumbers{
    "120|OpName Search 120 (Number Equal To)|9",
    "121|OpName Search 121 (Number Not Equal To)|10",
    "122|OpName Search 122 (Number Less Than)|11",
    "123|OpName Search 123 (Number Bigger Than)|12",
    "124|OpName Search 124 (Number Less Than or Equal)|13",
    "125|OpName Search 125 (Number Bigger Than or Equal)|14",
};

const Lines kDates{
    "130|OpName Search 130 (Date Equal To)|18",
    "131|OpName Search 131 (Date Not Equal To)|19",
    "132|OpName Search 132 (Date Less Than)|20",
    "133|OpName Search 133 (Date Bigger Than)|21",
    "134|OpName Search 134 (Date Less Than or Equal)|22",
    "135|OpName Search 135 (Date Bigger Than or Equal)|23",
};

const Lines kBinary{"139|OpName Search 139 (Binary Equal To)|27"};

Lines operator+(Lines first, const Lines& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

const Lines kAll = kStrings + kNumbers + kDates;

/// By argument type, from -1.
const Lines kByType[] = {
    {}, {}, kAll, kNumbers + kStrings, kNumbers + kStrings, kBinary, kDates + kStrings, {}, {}};
constexpr LONG kFirstType = -1;
constexpr LONG kLastType = 7;

const Lines& expected(LONG nodeCode, LONG argType)
{
    static const Lines states = kEqualities + kTextCompare;
    switch (nodeCode) {
    case 3:
    case 6:
    case 9:
    case 10:
        return kEqualities;
    case 5:
        return kStrings;
    case 8:
    case 12:
        return states;
    case 7:
        return kAll;
    default:
        return kByType[argType - kFirstType];
    }
}

} // namespace

TEST(OperatorChoices, FollowTheKindOfTheRowAndElseItsType)
{
    for (LONG nodeCode = -2; nodeCode <= 145; ++nodeCode) {
        for (LONG argType = kFirstType; argType <= kLastType; ++argType)
            EXPECT_EQ(toLines(operatorChoices(nodeCode, argType, kAsked)),
                      expected(nodeCode, argType))
                << nodeCode << ", " << argType;
    }
}

TEST(OperatorChoices, OfAVariableFollowItsType)
{
    for (const LONG nodeCode : {999, 1000, 1106, 3000}) {
        for (LONG argType = kFirstType; argType <= kLastType; ++argType)
            EXPECT_EQ(toLines(operatorChoices(nodeCode, argType, kAsked)),
                      kByType[argType - kFirstType])
                << nodeCode << ", " << argType;
    }
}

TEST(OperatorChoices, OfARevisionAreTwentyOneWhateverItsType)
{
    EXPECT_EQ(operatorChoices(7, 4, kEnglish).size(), 21U);
}

TEST(OperatorChoices, AreShownByTheNamesOfTheStringLibrary)
{
    EXPECT_EQ(toLines(operatorChoices(1000, 4, kEnglish)), (Lines{"139|Binary Equal To|27"}));
}

} // namespace condtree
