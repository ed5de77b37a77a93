#include <condtree/model/ComboCmd.h>
#include <condtree/model/TransCond.h>
#include <condtree/model/TreeType.h>
#include <condtree/model/VarTreeCtrlNode.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace condtree {

static_assert(std::is_same_v<std::underlying_type_t<ComboCmd>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<ArgType>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<VariableType>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<RowKind>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<TreeType>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<KiroVaultType>, std::int32_t>);
static_assert(std::is_same_v<std::underlying_type_t<NodeCode>, std::int32_t>);

TEST(RowKind, HasThePersistedNumbers)
{
    EXPECT_EQ(RowKindGroup, 2);
    EXPECT_EQ(RowKindTop, 3);
    EXPECT_EQ(RowKindInGroup, 4);
}

TEST(ComboCmd, HasThePersistedNumbersOfCommands)
{
    EXPECT_EQ(And, 0);
    EXPECT_EQ(Or, 1);
    EXPECT_EQ(Remove, 2);
    EXPECT_EQ(Category, 3);
    EXPECT_EQ(DocTypeChoice, 4);
    EXPECT_EQ(FilePath, 5);
    EXPECT_EQ(ObjectType, 6);
    EXPECT_EQ(Revision, 7);
    EXPECT_EQ(ChildRefState, 8);
    EXPECT_EQ(User, 9);
    EXPECT_EQ(Group, 10);
}

TEST(ComboCmd, HasThePersistedNumbersOfTextOperators)
{
    EXPECT_EQ(StringEqualTo, 100);
    EXPECT_EQ(StringNotEqualTo, 101);
    EXPECT_EQ(StringLessThan, 102);
    EXPECT_EQ(StringBiggerThan, 103);
    EXPECT_EQ(StringLessOrEqual, 104);
    EXPECT_EQ(StringBiggerOrEqual, 105);
    EXPECT_EQ(StringContains, 106);
    EXPECT_EQ(StringNotContains, 107);
    EXPECT_EQ(TextCompare, 108);
}

TEST(ComboCmd, HasThePersistedNumbersOfNumberOperators)
{
    EXPECT_EQ(NumberEqualTo, 120);
    EXPECT_EQ(NumberNotEqualTo, 121);
    EXPECT_EQ(NumberLessThan, 122);
    EXPECT_EQ(NumberBiggerThan, 123);
    EXPECT_EQ(NumberLessOrEqual, 124);
    EXPECT_EQ(NumberBiggerOrEqual, 125);
}

TEST(ComboCmd, HasThePersistedNumbersOfDateOperators)
{
    EXPECT_EQ(DateEqualTo, 130);
    EXPECT_EQ(DateNotEqualTo, 131);
    EXPECT_EQ(DateLessThan, 132);
    EXPECT_EQ(DateBiggerThan, 133);
    EXPECT_EQ(DateLessOrEqual, 134);
    EXPECT_EQ(DateBiggerOrEqual, 135);
}

TEST(ComboCmd, HasThePersistedNumbersOfFixedValues)
{
    EXPECT_EQ(ObjectTypeFile, 136);
    EXPECT_EQ(ObjectTypeBom, 137);
    EXPECT_EQ(ObjectTypeItem, 138);
    EXPECT_EQ(BinaryEqualTo, 139);
    EXPECT_EQ(BinaryYes, 140);
    EXPECT_EQ(BinaryNo, 141);
    EXPECT_EQ(StateChoice, 142);
    EXPECT_EQ(OperatorFromText, 160);
    EXPECT_EQ(VariableBase, 1000);
    EXPECT_EQ(UserChoice, 2001);
    EXPECT_EQ(GroupChoice, 3000);
}

TEST(ComboCmd, OffersVariablesByTheirDefaultOperator)
{
    EXPECT_EQ(VariableBase + StringContains, 1106);
    EXPECT_EQ(VariableBase + NumberEqualTo, 1120);
    EXPECT_EQ(VariableBase + DateEqualTo, 1130);
    EXPECT_EQ(VariableBase + BinaryEqualTo, 1139);
}

TEST(ArgType, HasThePersistedNumbers)
{
    EXPECT_EQ(ArgText, 1);
    EXPECT_EQ(ArgNumberA, 2);
    EXPECT_EQ(ArgNumberB, 3);
    EXPECT_EQ(ArgBinary, 4);
    EXPECT_EQ(ArgDate, 5);
}

TEST(VariableType, HasTheNumbersOfArgType)
{
    EXPECT_EQ(VarText, 1);
    EXPECT_EQ(VarNumberA, 2);
    EXPECT_EQ(VarNumberB, 3);
    EXPECT_EQ(VarBinary, 4);
    EXPECT_EQ(VarDate, 5);
}

TEST(NodeCode, HasTheNumbersOfTheTree)
{
    EXPECT_EQ(NodePlaceholder, -1);
    EXPECT_EQ(NodeAnd, 0);
    EXPECT_EQ(NodeOr, 1);
    EXPECT_EQ(NodeOtherName, 11);
    EXPECT_EQ(NodeHistoricState, 12);
    EXPECT_EQ(NodeVariable, 1000);
}

TEST(NodeCode, IsTheCommandThatPicksTheKind)
{
    EXPECT_EQ(static_cast<LONG>(NodeAnd), static_cast<LONG>(And));
    EXPECT_EQ(static_cast<LONG>(NodeOr), static_cast<LONG>(Or));
}

TEST(EditColumn, HasTheNumbersOfTheColumns)
{
    EXPECT_EQ(EditColumnValue, 2);
    EXPECT_EQ(EditColumnExtra, 3);
}

TEST(TreeType, NamesTheOneThatChangesBehaviour)
{
    EXPECT_EQ(TreeTypeUsersAndGroups, 1);
    EXPECT_EQ(VaultTypeReduced, 1);
}

} // namespace condtree
