#include <condtree/model/TransCond.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>
#include <vector>

namespace condtree {

// Hosts compile against the layout: nine fields in this order, of these widths.
static_assert(std::is_standard_layout_v<TransCond>);
static_assert(offsetof(TransCond, lHostTag) == 0);
static_assert(offsetof(TransCond, lIndex) == 4);
static_assert(offsetof(TransCond, lRowKind) == 8);
static_assert(offsetof(TransCond, lCondType) == 12);
static_assert(offsetof(TransCond, oName) == 16);
static_assert(offsetof(TransCond, oExtra) == 16 + sizeof(SpStr));
static_assert(offsetof(TransCond, oValue) == 16 + 2 * sizeof(SpStr));
static_assert(offsetof(TransCond, lArgType) == 16 + 3 * sizeof(SpStr));
static_assert(offsetof(TransCond, lOperator) == 20 + 3 * sizeof(SpStr));
static_assert(sizeof(TransCond) == 24 + 3 * sizeof(SpStr));

static_assert(std::is_same_v<decltype(TransCond::lHostTag), std::int32_t>);
static_assert(std::is_same_v<decltype(TransCond::lIndex), std::int32_t>);
static_assert(std::is_same_v<decltype(TransCond::lRowKind), std::int32_t>);
static_assert(std::is_same_v<decltype(TransCond::lCondType), std::int32_t>);
static_assert(std::is_same_v<decltype(TransCond::oName), SpStr>);
static_assert(std::is_same_v<decltype(TransCond::oExtra), SpStr>);
static_assert(std::is_same_v<decltype(TransCond::oValue), SpStr>);
static_assert(std::is_same_v<decltype(TransCond::lArgType), std::int32_t>);
static_assert(std::is_same_v<decltype(TransCond::lOperator), std::int32_t>);

static_assert(std::is_copy_constructible_v<TransCond> && std::is_copy_assignable_v<TransCond>);

namespace {

TransCond sample()
{
    return {7, 3, RowKindInGroup, 2, u"Author", u"note", u"Smith", 1, 106};
}

} // namespace

TEST(TransCond, IsZeroAndEmptyAtFirst)
{
    const TransCond record;
    EXPECT_EQ(record.lHostTag, 0);
    EXPECT_EQ(record.lIndex, 0);
    EXPECT_EQ(record.lRowKind, 0);
    EXPECT_EQ(record.lCondType, 0);
    EXPECT_EQ(record.oName.length(), 0);
    EXPECT_EQ(record.oExtra.length(), 0);
    EXPECT_EQ(record.oValue.length(), 0);
    EXPECT_EQ(record.lArgType, 0);
    EXPECT_EQ(record.lOperator, 0);
}

TEST(TransCond, IsInitialisedInTheOrderOfItsFields)
{
    const auto [hostTag, index, rowKind, condType, name, extra, value, argType, command] = sample();
    EXPECT_EQ(hostTag, 7);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(rowKind, 4);
    EXPECT_EQ(condType, 2);
    EXPECT_TRUE(name == u"Author");
    EXPECT_TRUE(extra == u"note");
    EXPECT_TRUE(value == u"Smith");
    EXPECT_EQ(argType, 1);
    EXPECT_EQ(command, 106);
}

TEST(TransCond, IsCopiedFieldByField)
{
    const TransCond original = sample();
    TransCond copy = original;
    const auto& [hostTag, index, rowKind, condType, name, extra, value, argType, command] = copy;
    EXPECT_EQ(hostTag, 7);
    EXPECT_EQ(index, 3);
    EXPECT_EQ(rowKind, 4);
    EXPECT_EQ(condType, 2);
    EXPECT_TRUE(name == original.oName);
    EXPECT_TRUE(extra == original.oExtra);
    EXPECT_TRUE(value == original.oValue);
    EXPECT_EQ(argType, 1);
    EXPECT_EQ(command, 106);
}

TEST(TransCond, OwnsItsTextsAfterACopy)
{
    const TransCond original = sample();
    TransCond copy;
    copy = original;
    copy.oName = u"Title";
    copy.oExtra = u"";
    copy.oValue = copy.oValue + u"son";
    EXPECT_TRUE(original.oName == u"Author");
    EXPECT_TRUE(original.oExtra == u"note");
    EXPECT_TRUE(original.oValue == u"Smith");
    EXPECT_TRUE(copy.oValue == u"Smithson");
}

TEST(TransCond, OutlivesTheRecordItWasCopiedFrom)
{
    std::vector<TransCond> records;
    {
        const TransCond original = sample();
        records.push_back(original);
    }
    EXPECT_TRUE(records.front().oValue == u"Smith");
}

} // namespace condtree
