#include <condtree/model/ConditionKind.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace condtree {

namespace {

struct KindRow {
    LONG condType;
    LONG nodeCode;
    /// 0 where the record's name is shown.
    LONG labelId;
    const char* label;
    ValueKind value;
};

constexpr KindRow kRows[] = {
    {1, 5, 20, "FilePath", ValueKind::Text},
    {2, 1000, 0, "", ValueKind::Text},
    {3, 7, 21, "Revision", ValueKind::Text},
    {4, 3, 87, "Category", ValueKind::Text},
    {5, 6, 732, "Object Type", ValueKind::ObjectType},
    {6, 11, 0, "", ValueKind::Text},
    {7, 8, 756, "Child Reference State", ValueKind::ChildRefState},
    {8, 9, 40, "User", ValueKind::User},
    {9, 10, 180, "Group", ValueKind::Group},
    {10, 12, 757, "Child Reference historic State", ValueKind::ChildRefState},
};

std::string text(const char16_t* units)
{
    return QString::fromUtf16(units).toStdString();
}

void expectRow(const ConditionKind& kind, const KindRow& row)
{
    SCOPED_TRACE(row.condType);
    EXPECT_EQ(kind.condType, row.condType);
    EXPECT_EQ(kind.nodeCode, row.nodeCode);
    EXPECT_EQ(kind.value, row.value);
    ASSERT_EQ(kind.label.has_value(), row.labelId != 0);
    if (!kind.label)
        return;
    EXPECT_EQ(kind.label->id, row.labelId);
    EXPECT_EQ(text(kind.label->key), "TS");
    EXPECT_EQ(text(kind.label->section), "Workflow");
    EXPECT_EQ(text(kind.label->defaultText), row.label);
}

/// What a node code is saved as; 0 for none.
LONG savedType(LONG nodeCode)
{
    if ((nodeCode >= 100 && nodeCode <= 107) || (nodeCode >= 120 && nodeCode <= 125)
        || (nodeCode >= 130 && nodeCode <= 135))
        return 2;
    switch (nodeCode) {
    case 3:
    case 4:
        return 4;
    case 5:
        return 1;
    case 6:
        return 5;
    case 7:
        return 3;
    case 8:
        return 7;
    case 9:
        return 8;
    case 10:
        return 9;
    case 11:
        return 6;
    case 12:
        return 10;
    case 1000:
        return 2;
    default:
        return 0;
    }
}

} // namespace

TEST(ConditionKind, HasTheTenKindsInTheOrderOfTheirRecords)
{
    const auto kinds = conditionKinds();
    ASSERT_EQ(kinds.size(), std::size(kRows));
    for (std::size_t i = 0; i < kinds.size(); ++i)
        expectRow(kinds[i], kRows[i]);
}

TEST(ConditionKind, IsFoundByTheNumberOfItsRecord)
{
    for (const KindRow& row : kRows) {
        const ConditionKind* kind = kindOfRecord(row.condType);
        ASSERT_NE(kind, nullptr) << row.condType;
        expectRow(*kind, row);
    }
}

TEST(ConditionKind, IsNoneOutsideOneToTen)
{
    for (const LONG condType : {-2147483647 - 1, -1, 0, 11, 12, 1000, 2147483647})
        EXPECT_EQ(kindOfRecord(condType), nullptr) << condType;
}

TEST(ConditionKind, IsSavedByItsNodeCode)
{
    for (LONG code = -5; code <= 3100; ++code)
        EXPECT_EQ(recordTypeOfNode(code).value_or(0), savedType(code)) << code;
}

TEST(ConditionKind, IsSavedAsTheTypeItWasLoadedFrom)
{
    for (const KindRow& row : kRows)
        EXPECT_EQ(recordTypeOfNode(row.nodeCode), row.condType);
}

TEST(ReducedVault, DropsCategoriesAndChildReferenceStatesOnLoading)
{
    const std::set<LONG> dropped{4, 7, 10};
    for (LONG condType = -2; condType <= 20; ++condType)
        EXPECT_EQ(isDroppedOnReducedLoad(condType), dropped.contains(condType)) << condType;
}

TEST(ReducedVault, DropsUsersAndGroupsToo_OnlyOnSaving)
{
    const std::set<LONG> dropped{3, 8, 9, 10, 12};
    for (LONG code = -5; code <= 3100; ++code)
        EXPECT_EQ(isDroppedOnReducedSave(code), dropped.contains(code)) << code;
}

TEST(ConditionKind, TellsChildReferenceStates)
{
    for (LONG code = -5; code <= 3100; ++code)
        EXPECT_EQ(isChildRefState(code), code == 8 || code == 12) << code;
}

} // namespace condtree
