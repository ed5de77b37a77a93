#include <condtree/platform/WinTypes.h>

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <limits>

namespace condtree {

namespace {

constexpr int kMax = std::numeric_limits<int>::max();
constexpr int kMin = std::numeric_limits<int>::min();

} // namespace

TEST(MulDiv, AgreesWithTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "muldiv.tsv");
    ASSERT_GT(table.size(), 500U);
    for (const auto& row : table) {
        const int number = row[u"number"_qs].toInt();
        const int numerator = row[u"numerator"_qs].toInt();
        const int denominator = row[u"denominator"_qs].toInt();
        EXPECT_EQ(MulDiv(number, numerator, denominator), row[u"result"_qs].toInt())
            << number << " * " << numerator << " / " << denominator;
    }
}

TEST(MulDiv, RoundsHalfAwayFromZero)
{
    EXPECT_EQ(MulDiv(1, 1, 2), 1);
    EXPECT_EQ(MulDiv(-1, 1, 2), -1);
    EXPECT_EQ(MulDiv(3, 1, -2), -2);
    EXPECT_EQ(MulDiv(1, 1, 3), 0);
    EXPECT_EQ(MulDiv(2, 1, 3), 1);
    EXPECT_EQ(MulDiv(-2, 1, 3), -1);
}

TEST(MulDiv, MultipliesIn64Bits)
{
    EXPECT_EQ(MulDiv(kMax, kMax, kMax), kMax);
    EXPECT_EQ(MulDiv(2000000000, 1000, 2000), 1000000000);
}

TEST(MulDiv, IsMinusOneForADenominatorOfZero)
{
    EXPECT_EQ(MulDiv(5, 5, 0), -1);
    EXPECT_EQ(MulDiv(0, 0, 0), -1);
}

TEST(MulDiv, IsMinusOneOnOverflow)
{
    EXPECT_EQ(MulDiv(kMax, 2, 1), -1);
    EXPECT_EQ(MulDiv(kMax, -2, 1), -1);
    EXPECT_EQ(MulDiv(kMin, kMin, 1), -1);
}

} // namespace condtree
