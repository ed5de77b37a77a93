#include <condtree/platform/Automation.h>

#include "support/Golden.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <string>

namespace condtree {
namespace {

std::string toString(const SYSTEMTIME& t)
{
    return QString::asprintf("%04d-%02d-%02d (%d) %02d:%02d:%02d.%03d", t.wYear, t.wMonth, t.wDay,
                             t.wDayOfWeek, t.wHour, t.wMinute, t.wSecond, t.wMilliseconds)
        .toStdString();
}

constexpr SYSTEMTIME kUntouched{1, 2, 3, 4, 5, 6, 7, 8};

/// The fields of a date, or "none", in which case they must have been left alone.
std::string fieldsOf(double date)
{
    SYSTEMTIME fields = kUntouched;
    if (VariantTimeToSystemTime(date, fields))
        return toString(fields);
    EXPECT_EQ(toString(fields), toString(kUntouched));
    return "none";
}

/// The date of fields; NaN when there is none.
double dateOf(const SYSTEMTIME& fields)
{
    double date = 4711.25;
    if (SystemTimeToVariantTime(fields, date))
        return date;
    EXPECT_EQ(date, 4711.25);
    return std::numeric_limits<double>::quiet_NaN();
}

double dateOf(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    const auto field = [](int value) { return static_cast<std::uint16_t>(value); };
    return dateOf(
        {field(year), field(month), 0, field(day), field(hour), field(minute), field(second), 0});
}

double fromBits(const QString& bits)
{
    bool isHex = false;
    const std::uint64_t number = bits.toULongLong(&isHex, 16);
    EXPECT_TRUE(isHex) << bits.toStdString();
    return std::bit_cast<double>(number);
}

std::uint16_t numberIn(const QHash<QString, QString>& row, QStringView column)
{
    return row[column.toString()].toUShort();
}

SYSTEMTIME fieldsIn(const QHash<QString, QString>& row)
{
    return {numberIn(row, u"year"),   numberIn(row, u"month"), numberIn(row, u"dow"),
            numberIn(row, u"day"),    numberIn(row, u"hour"),  numberIn(row, u"minute"),
            numberIn(row, u"second"), numberIn(row, u"ms")};
}

TEST(Automation, DatesHaveTheFieldsOfTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "variant_time.tsv");
    ASSERT_GT(table.size(), 1300U);
    for (const auto& row : table) {
        const std::string expected = row[u"ok"_qs] == u"1" ? toString(fieldsIn(row)) : "none";
        EXPECT_EQ(fieldsOf(fromBits(row[u"bits"_qs])), expected) << row[u"vtime"_qs].toStdString();
    }
}

TEST(Automation, FieldsHaveTheDateOfTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "system_time.tsv");
    ASSERT_GT(table.size(), 880U);
    for (const auto& row : table) {
        const SYSTEMTIME fields = fieldsIn(row);
        const double date = dateOf(fields);
        if (row[u"ok"_qs] == u"1")
            EXPECT_NEAR(date, fromBits(row[u"bits"_qs]), 1e-9) << toString(fields);
        else
            EXPECT_TRUE(std::isnan(date)) << toString(fields) << " is " << date;
    }
}

TEST(Automation, TheTimeOfADateBeforeTheFirstIsItsFractionWithoutSign)
{
    EXPECT_EQ(fieldsOf(0), "1899-12-30 (6) 00:00:00.000");
    EXPECT_EQ(fieldsOf(-0.5), "1899-12-30 (6) 12:00:00.000");
    EXPECT_EQ(fieldsOf(-1.25), "1899-12-29 (5) 06:00:00.000");
    EXPECT_EQ(dateOf(1899, 12, 29, 6), -1.25);
    EXPECT_EQ(dateOf(1899, 12, 30, 12), 0.5);
}

TEST(Automation, ATimeIsRoundedToTheSecondAndMayReachTheNextDay)
{
    EXPECT_EQ(fieldsOf(1 + 0.4 / 86400), "1899-12-31 (0) 00:00:00.000");
    EXPECT_EQ(fieldsOf(1 + 0.6 / 86400), "1899-12-31 (0) 00:00:01.000");
    EXPECT_EQ(fieldsOf(1 + 86399.6 / 86400), "1900-01-01 (1) 00:00:00.000");
    EXPECT_EQ(fieldsOf(-1 - 86399.6 / 86400), "1899-12-30 (6) 00:00:00.000");
}

TEST(Automation, TheRangeIsTheYears100To9999)
{
    EXPECT_EQ(fieldsOf(-657434), "0100-01-01 (5) 00:00:00.000");
    EXPECT_EQ(fieldsOf(-657434.75), "0100-01-01 (5) 18:00:00.000");
    EXPECT_EQ(fieldsOf(2958465.75), "9999-12-31 (5) 18:00:00.000");
    // Rounded into the year 10000.
    EXPECT_EQ(fieldsOf(2958465 + 86399.6 / 86400), "none");
    for (const double none :
         {-657435.0, 2958466.0, 1e300, -1e300, std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(fieldsOf(none), "none") << none;
    EXPECT_EQ(dateOf(100, 1, 1), -657434);
    EXPECT_EQ(dateOf(9999, 12, 31), 2958465);
    EXPECT_TRUE(std::isnan(dateOf(100, 1, 0)));
    EXPECT_TRUE(std::isnan(dateOf(9999, 12, 31, 24)));
    EXPECT_TRUE(std::isnan(dateOf(10000, 1, 1)));
}

TEST(Automation, TwoDigitYearsAreThoseFrom1950To2049)
{
    EXPECT_EQ(dateOf(0, 1, 1), dateOf(2000, 1, 1));
    EXPECT_EQ(dateOf(49, 12, 31), dateOf(2049, 12, 31));
    EXPECT_EQ(dateOf(50, 1, 1), dateOf(1950, 1, 1));
    EXPECT_EQ(dateOf(99, 12, 31), dateOf(1999, 12, 31));
    EXPECT_NE(dateOf(100, 1, 1), dateOf(2000, 1, 1));
}

TEST(Automation, DaysAndTimesThatAreTooManyRunOn)
{
    EXPECT_EQ(dateOf(2023, 2, 31), dateOf(2023, 3, 3));
    EXPECT_EQ(dateOf(2024, 2, 31), dateOf(2024, 3, 2));
    EXPECT_EQ(dateOf(2024, 3, 0), dateOf(2024, 2, 29));
    EXPECT_EQ(dateOf(2024, 1, 0), dateOf(2023, 12, 31));
    EXPECT_EQ(dateOf(2024, 12, 31, 23, 60), dateOf(2025, 1, 1));
    EXPECT_EQ(dateOf(2024, 5, 5, 7, 59, 60), dateOf(2024, 5, 5, 8));
    EXPECT_EQ(dateOf(2024, 5, 5, 25), dateOf(2024, 5, 6, 1));
    EXPECT_EQ(dateOf(1899, 12, 29, 24), 0);
}

TEST(Automation, FieldsThatNameNoDayHaveNoDate)
{
    EXPECT_TRUE(std::isnan(dateOf(2024, 0, 15)));
    EXPECT_TRUE(std::isnan(dateOf(2024, 13, 15)));
    EXPECT_TRUE(std::isnan(dateOf(2024, 1, 32)));
    EXPECT_TRUE(std::isnan(dateOf(2024, 65535, 1)));
    EXPECT_TRUE(std::isnan(dateOf(65535, 1, 1)));
}

TEST(Automation, EveryDayComesBackFromItsFields)
{
    for (int days = -657434; days <= 2958465; ++days) {
        SYSTEMTIME fields{};
        double date = 0;
        ASSERT_TRUE(VariantTimeToSystemTime(days, fields)) << days;
        ASSERT_TRUE(SystemTimeToVariantTime(fields, date)) << days;
        ASSERT_EQ(date, days);
    }
}

} // namespace
} // namespace condtree
