// The sample's numbers against those of the control, which the library does not link.
#include <condtree/model/ComboCmd.h>
#include <condtree/model/ConditionKind.h>
#include <condtree/model/TransCond.h>
#include <condtree/model/VarTreeCtrlNode.h>
#include <condtree/storedprocs/SampleNumbers.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

struct Pair {
    const char* name;
    LONG sample;
    LONG control;
};

void expectEqual(std::span<const Pair> pairs)
{
    for (const Pair& pair : pairs)
        EXPECT_EQ(pair.sample, pair.control) << pair.name;
}

TEST(SampleNumbers, OfTypesAreTheControls)
{
    const Pair pairs[] = {
        {"text", sample::Text, ArgText},          {"text", sample::Text, VarText},
        {"whole", sample::Whole, ArgNumberA},     {"whole", sample::Whole, VarNumberA},
        {"decimal", sample::Decimal, ArgNumberB}, {"decimal", sample::Decimal, VarNumberB},
        {"yes or no", sample::YesNo, ArgBinary},  {"yes or no", sample::YesNo, VarBinary},
        {"date", sample::Date, ArgDate},          {"date", sample::Date, VarDate},
    };
    expectEqual(pairs);
}

TEST(SampleNumbers, OfRowsAreTheControls)
{
    const Pair pairs[] = {
        {"group", sample::OrGroup, RowKindGroup},
        {"top", sample::Top, RowKindTop},
        {"in a group", sample::InOr, RowKindInGroup},
    };
    expectEqual(pairs);
}

TEST(SampleNumbers, OfKindsAreTheControls)
{
    const Pair pairs[] = {
        {"file path", sample::FilePath, FilePath},
        {"card variable", sample::CardVariable, NodeVariable},
        {"revision", sample::Revision, Revision},
        {"category", sample::Category, Category},
        {"object type", sample::ObjectType, ObjectType},
        {"property", sample::Property, NodeOtherName},
        {"child state", sample::ChildState, ChildRefState},
        {"user", sample::ByUser, User},
        {"group", sample::ByGroup, Group},
        {"child history", sample::ChildHistory, NodeHistoricState},
    };
    for (const Pair& pair : pairs) {
        const ConditionKind* kind = kindOfRecord(pair.sample);
        ASSERT_NE(kind, nullptr) << pair.name;
        EXPECT_EQ(kind->nodeCode, pair.control) << pair.name;
    }
}

TEST(SampleNumbers, OfOperatorsAreTheControls)
{
    const Pair pairs[] = {
        {"is", sample::Is, StringEqualTo},
        {"is not", sample::IsNot, StringNotEqualTo},
        {"text at least", sample::TextAtLeast, StringBiggerOrEqual},
        {"contains", sample::Contains, StringContains},
        {"contains not", sample::ContainsNot, StringNotContains},
        {"pattern", sample::Pattern, TextCompare},
        {"number is", sample::NumberIs, NumberEqualTo},
        {"number is not", sample::NumberIsNot, NumberNotEqualTo},
        {"number below", sample::NumberBelow, NumberLessThan},
        {"number above", sample::NumberAbove, NumberBiggerThan},
        {"number at most", sample::NumberAtMost, NumberLessOrEqual},
        {"number at least", sample::NumberAtLeast, NumberBiggerOrEqual},
        {"date is", sample::DateIs, DateEqualTo},
        {"date before", sample::DateBefore, DateLessThan},
        {"date after", sample::DateAfter, DateBiggerThan},
        {"date at most", sample::DateAtMost, DateLessOrEqual},
        {"yes or no is", sample::YesNoIs, BinaryEqualTo},
        {"from the text", sample::FromText, OperatorFromText},
    };
    expectEqual(pairs);
}

TEST(SampleNumbers, OfSettingsAreTheControls)
{
    EXPECT_EQ(sample::kShowsFullNames, 24);
}

} // namespace
} // namespace condtree::test
