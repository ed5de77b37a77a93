#include <condtree/values/DefaultValue.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace condtree {
namespace {

// Milliseconds and the day of the week do not matter.
constexpr SYSTEMTIME kNow{2024, 3, 6, 5, 14, 7, 9, 999};

std::string valueAt(const SYSTEMTIME& now, std::uint32_t style, LONG op = 130)
{
    const auto value = defaultSearchValue(op, now, style);
    return value ? value->toStdString() : "none";
}

TEST(DefaultValue, OnlyOperatorsOnDatesHaveOne)
{
    for (LONG op = -2; op <= 3200; ++op)
        EXPECT_EQ(valueAt(kNow, 120, op), op >= 130 && op <= 135 ? "2024-03-05" : "none") << op;
}

TEST(DefaultValue, IsWrittenInTheStyle)
{
    const std::vector<std::pair<std::uint32_t, const char*>> table{
        {0, "Mar 05 2024 02:07 PM"},
        {100, "Mar 05 2024 02:07 PM"},
        {109, "Mar 05 2024 02:07:09:000 PM"},
        {113, "05 Mars 2024 14:07:09:000"},
        {121, "2024-03-05 14:07:09.000"},
        {999, "05 Mars 2024 14:07:09:000"},
        {0xFFFFFFF9, "05 Mars 2024 14:07:09:000"},
        {120, "2024-03-05"},
        {1, "03/05/24"},
        {103, "05/03/2024"},
    };
    for (const auto& [style, text] : table)
        EXPECT_EQ(valueAt(kNow, style), text) << style;
}

TEST(DefaultValue, TheHoursAroundNoonAndMidnight)
{
    EXPECT_EQ(valueAt({2024, 3, 0, 5, 0, 30, 0, 0}, 0), "Mar 05 2024 00:30 AM");
    EXPECT_EQ(valueAt({2024, 3, 0, 5, 12, 30, 0, 0}, 0), "Mar 05 2024 12:30 AM");
    EXPECT_EQ(valueAt({2024, 3, 0, 5, 13, 0, 0, 0}, 0), "Mar 05 2024 01:00 PM");
}

TEST(DefaultValue, ALeapSecondRunsOn)
{
    EXPECT_EQ(valueAt({2016, 12, 0, 31, 23, 59, 60, 0}, 121), "2017-01-01 00:00:00.000");
}

TEST(DefaultValue, AClockWithoutADateGivesNone)
{
    EXPECT_EQ(valueAt({}, 120), "none");
    EXPECT_EQ(valueAt({2024, 0, 0, 5, 14, 7, 9, 0}, 120), "none");
    EXPECT_EQ(valueAt({2024, 13, 0, 5, 14, 7, 9, 0}, 120), "none");
    EXPECT_EQ(valueAt({2024, 3, 0, 32, 14, 7, 9, 0}, 120), "none");
    EXPECT_EQ(valueAt({10000, 3, 0, 5, 14, 7, 9, 0}, 120), "none");
    EXPECT_EQ(valueAt({9999, 12, 0, 31, 24, 0, 0, 0}, 120), "none");
}

TEST(DefaultValue, AClockAtTheZeroDateGivesNone)
{
    EXPECT_EQ(valueAt({1899, 12, 0, 30, 0, 0, 0, 0}, 120), "none");
    EXPECT_EQ(valueAt({1899, 12, 0, 30, 0, 0, 1, 0}, 120), "1899-12-30");
}

} // namespace
} // namespace condtree
