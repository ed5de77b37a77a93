#include <condtree/values/DateStyle.h>

#include "support/QtPrinters.h"

#include <condtree/values/MonthNames.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

namespace condtree {
namespace {

constexpr double timeOf(int hour, int minute, int second)
{
    return (hour * 3600 + minute * 60 + second) / 86400.0;
}

std::string formatted(double date, std::uint32_t style)
{
    CString text = QStringLiteral("what was there before, longer than any date can become");
    EXPECT_TRUE(FormatDateByStyle(text, date, style)) << date << ", " << style;
    return text.toStdString();
}

struct Fields {
    int year, month, day, hour, minute, second;
};

template <class... Arguments>
std::string printed(const char* format, Arguments... arguments)
{
    std::array<char, 200> buffer{};
    const int length = std::snprintf(buffer.data(), buffer.size(), format, arguments...);
    return {buffer.data(), static_cast<std::size_t>(length)};
}

// The layouts once more, by printf itself.

constexpr std::array<const char*, 13> kShort{"",    "Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array<const char*, 13> kLong{
    "",     "January", "February",  "Mars",    "April",    "May",     "June",
    "July", "August",  "September", "October", "November", "December"};

std::size_t nameIndex(const Fields& f)
{
    return static_cast<std::size_t>(f.month < 0 ? 0 : f.month);
}

std::string expectedWithTime(const Fields& f, std::uint32_t style)
{
    const char* mon = kShort.at(nameIndex(f));
    const int hour12 = f.hour < 13 ? f.hour : f.hour - 12;
    const char* marker = f.hour < 13 ? "AM" : "PM";
    switch (style) {
    case 0:
    case 100:
        return printed("%s %02d %04d %02d:%02d %s", mon, f.day, f.year, hour12, f.minute, marker);
    case 109:
        return printed("%s %02d %04d %02d:%02d:%02d:000 %s", mon, f.day, f.year, hour12, f.minute,
                       f.second, marker);
    case 121:
        return printed("%04d-%02d-%02d %02d:%02d:%02d.000", f.year, f.month, f.day, f.hour,
                       f.minute, f.second);
    default:
        return printed("%02d %s %04d %02d:%02d:%02d:000", f.day, kLong.at(nameIndex(f)), f.year,
                       f.hour, f.minute, f.second);
    }
}

std::string expectedWithCentury(const Fields& f, std::uint32_t style)
{
    const char* mon = kShort.at(nameIndex(f));
    switch (style) {
    case 101:
        return printed("%02d/%02d/%04d", f.month, f.day, f.year);
    case 102:
        return printed("%04d.%02d.%02d", f.year, f.month, f.day);
    case 103:
        return printed("%02d/%02d/%04d", f.day, f.month, f.year);
    case 104:
        return printed("%02d.%02d.%04d", f.day, f.month, f.year);
    case 105:
        return printed("%02d-%02d-%04d", f.day, f.month, f.year);
    case 106:
        return printed("%02d %s %04d", f.day, mon, f.year);
    case 107:
        return printed("%s %02d, %04d", mon, f.day, f.year);
    case 110:
        return printed("%02d-%02d-%04d", f.month, f.day, f.year);
    case 111:
        return printed("%04d/%02d/%02d", f.year, f.month, f.day);
    case 112:
        return printed("%04d%02d%02d", f.year, f.month, f.day);
    case 120:
        return printed("%04d-%02d-%02d", f.year, f.month, f.day);
    default:
        return expectedWithTime(f, style);
    }
}

std::string expected(const Fields& f, std::uint32_t style)
{
    const char* mon = kShort.at(nameIndex(f));
    const int yy = f.year % 100;
    switch (style) {
    case 1:
        return printed("%02d/%02d/%02d", f.month, f.day, yy);
    case 2:
        return printed("%02d.%02d.%02d", yy, f.month, f.day);
    case 3:
        return printed("%02d/%02d/%02d", f.day, f.month, yy);
    case 4:
        return printed("%02d.%02d.%02d", f.day, f.month, yy);
    case 5:
        return printed("%02d-%02d-%02d", f.day, f.month, yy);
    case 6:
        return printed("%02d %s %02d", f.day, mon, yy);
    case 7:
        return printed("%s %02d, %02d", mon, f.day, yy);
    case 10:
        return printed("%02d-%02d-%02d", f.month, f.day, yy);
    case 11:
        return printed("%02d/%02d/%02d", yy, f.month, f.day);
    case 12:
        return printed("%02d%02d%02d", yy, f.month, f.day);
    default:
        return expectedWithCentury(f, style);
    }
}

struct Row {
    double date;
    Fields fields;
};

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr Fields kNoFields{-1, -1, -1, -1, -1, -1};

const std::vector<Row> kDates{
    // Every month
    {45292, {2024, 1, 1, 0, 0, 0}},
    {45323 + 13, {2024, 2, 14, 0, 0, 0}},
    {45352 + 4 + timeOf(14, 7, 9), {2024, 3, 5, 14, 7, 9}},
    {45383 + 29, {2024, 4, 30, 0, 0, 0}},
    {45413 + timeOf(6, 0, 1), {2024, 5, 1, 6, 0, 1}},
    {45444 + 9, {2024, 6, 10, 0, 0, 0}},
    {45474 + 30, {2024, 7, 31, 0, 0, 0}},
    {45505 + 8 + timeOf(9, 9, 9), {2024, 8, 9, 9, 9, 9}},
    {45536 + 11, {2024, 9, 12, 0, 0, 0}},
    {45566 + 19 + timeOf(20, 20, 20), {2024, 10, 20, 20, 20, 20}},
    {45597 + 10, {2024, 11, 11, 0, 0, 0}},
    {45627 + 30 + timeOf(23, 59, 59), {2024, 12, 31, 23, 59, 59}},
    // Around noon and midnight
    {45356 + timeOf(0, 0, 1), {2024, 3, 5, 0, 0, 1}},
    {45356 + timeOf(0, 30, 0), {2024, 3, 5, 0, 30, 0}},
    {45356 + timeOf(1, 0, 0), {2024, 3, 5, 1, 0, 0}},
    {45356 + timeOf(11, 59, 59), {2024, 3, 5, 11, 59, 59}},
    {45356.5, {2024, 3, 5, 12, 0, 0}},
    {45356 + timeOf(12, 30, 0), {2024, 3, 5, 12, 30, 0}},
    {45356 + timeOf(12, 59, 59), {2024, 3, 5, 12, 59, 59}},
    {45356 + timeOf(13, 0, 0), {2024, 3, 5, 13, 0, 0}},
    // Turns of centuries, leap days
    {36526, {2000, 1, 1, 0, 0, 0}},
    {36585, {2000, 2, 29, 0, 0, 0}},
    {45351, {2024, 2, 29, 0, 0, 0}},
    {2, {1900, 1, 1, 0, 0, 0}},
    {60, {1900, 2, 28, 0, 0, 0}},
    {61, {1900, 3, 1, 0, 0, 0}},
    // Around the zero date
    {1, {1899, 12, 31, 0, 0, 0}},
    {0.5, {1899, 12, 30, 12, 0, 0}},
    {-0.5, {1899, 12, 30, 12, 0, 0}},
    {1e-300, {1899, 12, 30, 0, 0, 0}},
    {-1.25, {1899, 12, 29, 6, 0, 0}},
    // The ends of the range
    {-657434, {100, 1, 1, 0, 0, 0}},
    {-657434.75, {100, 1, 1, 18, 0, 0}},
    {2958465 + timeOf(23, 59, 59), {9999, 12, 31, 23, 59, 59}},
    // No fields
    {-657435, kNoFields},
    {2958466, kNoFields},
    {2958465 + 86399.6 / 86400, kNoFields},
    {kNone, kNoFields},
    {kInfinity, kNoFields},
    {-kInfinity, kNoFields},
    {1e300, kNoFields},
    {-1e300, kNoFields},
};

std::vector<std::uint32_t> manyStyles()
{
    std::vector<std::uint32_t> styles{999, 65536, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (std::uint32_t style = 0; style <= 200; ++style)
        styles.push_back(style);
    return styles;
}

TEST(DateStyle, EveryStyleWritesEveryDateAsPrintfWould)
{
    for (const std::uint32_t style : manyStyles()) {
        for (const Row& row : kDates)
            EXPECT_EQ(formatted(row.date, style), expected(row.fields, style))
                << row.date << ", " << style;
    }
}

TEST(DateStyle, TheFifthOfMarchInEveryStyle)
{
    const std::vector<std::pair<std::uint32_t, const char*>> table{
        {0, "Mar 05 2024 02:07 PM"},
        {100, "Mar 05 2024 02:07 PM"},
        {1, "03/05/24"},
        {2, "24.03.05"},
        {3, "05/03/24"},
        {4, "05.03.24"},
        {5, "05-03-24"},
        {6, "05 Mar 24"},
        {7, "Mar 05, 24"},
        {10, "03-05-24"},
        {11, "24/03/05"},
        {12, "240305"},
        {101, "03/05/2024"},
        {102, "2024.03.05"},
        {103, "05/03/2024"},
        {104, "05.03.2024"},
        {105, "05-03-2024"},
        {106, "05 Mar 2024"},
        {107, "Mar 05, 2024"},
        {109, "Mar 05 2024 02:07:09:000 PM"},
        {110, "03-05-2024"},
        {111, "2024/03/05"},
        {112, "20240305"},
        {113, "05 Mars 2024 14:07:09:000"},
        {120, "2024-03-05"},
        {121, "2024-03-05 14:07:09.000"},
        {8, "05 Mars 2024 14:07:09:000"},
        {9, "05 Mars 2024 14:07:09:000"},
        {13, "05 Mars 2024 14:07:09:000"},
        {14, "05 Mars 2024 14:07:09:000"},
        {108, "05 Mars 2024 14:07:09:000"},
        {114, "05 Mars 2024 14:07:09:000"},
        {119, "05 Mars 2024 14:07:09:000"},
        {122, "05 Mars 2024 14:07:09:000"},
        {130, "05 Mars 2024 14:07:09:000"},
        {999, "05 Mars 2024 14:07:09:000"},
    };
    for (const auto& [style, text] : table)
        EXPECT_EQ(formatted(45356 + timeOf(14, 7, 9), style), text) << style;
}

TEST(DateStyle, TheZeroDateIsNotWrittenAndTheTargetStays)
{
    for (const std::uint32_t style : manyStyles()) {
        for (const double zero : {0.0, -0.0}) {
            CString text = QStringLiteral("as it was");
            EXPECT_FALSE(FormatDateByStyle(text, zero, style)) << style;
            EXPECT_EQ(text, QStringLiteral("as it was")) << style;
        }
    }
}

TEST(DateStyle, TheDayBehindTheZeroDateIsADate)
{
    EXPECT_EQ(formatted(1.0, 120), "1899-12-31");
}

TEST(DateStyle, NoonIsTwelveAndMidnightZeroBothAm)
{
    EXPECT_EQ(formatted(45356.5, 0), "Mar 05 2024 12:00 AM");
    EXPECT_EQ(formatted(45356, 0), "Mar 05 2024 00:00 AM");
    EXPECT_EQ(formatted(45356 + timeOf(0, 30, 0), 0), "Mar 05 2024 00:30 AM");
    EXPECT_EQ(formatted(45356 + timeOf(12, 59, 0), 0), "Mar 05 2024 12:59 AM");
    EXPECT_EQ(formatted(45356 + timeOf(13, 0, 0), 0), "Mar 05 2024 01:00 PM");
}

TEST(DateStyle, TheYear2000IsWrittenWithTwoZeros)
{
    EXPECT_EQ(formatted(36526, 1), "01/01/00");
}

TEST(DateStyle, MillisecondsAreNeverWritten)
{
    EXPECT_EQ(formatted(45356 + 0.4 / 86400, 121), "2024-03-05 00:00:00.000");
    EXPECT_EQ(formatted(45356 + 0.6 / 86400, 121), "2024-03-05 00:00:01.000");
    EXPECT_EQ(formatted(45356 + 0.6 / 86400, 113), "05 Mars 2024 00:00:01:000");
}

TEST(DateStyle, WithoutFieldsItIsWrittenWithMinusOnesAndNoMonthsName)
{
    EXPECT_EQ(formatted(kNone, 0), " -1 -001 -1:-1 AM");
    EXPECT_EQ(formatted(kNone, 1), "-1/-1/-1");
    EXPECT_EQ(formatted(kNone, 6), "-1  -1");
    EXPECT_EQ(formatted(kNone, 107), " -1, -001");
    EXPECT_EQ(formatted(kNone, 112), "-001-1-1");
    EXPECT_EQ(formatted(kNone, 113), "-1  -001 -1:-1:-1:000");
    EXPECT_EQ(formatted(kNone, 121), "-001--1--1 -1:-1:-1.000");
}

TEST(DateStyle, WritingLeavesCopiesOfTheTargetAlone)
{
    CString text = QStringLiteral("shared");
    const CString copy = text;
    EXPECT_TRUE(FormatDateByStyle(text, 45356, 120));
    EXPECT_EQ(text, QStringLiteral("2024-03-05"));
    EXPECT_EQ(copy, QStringLiteral("shared"));
}

TEST(DateStyle, MonthNamesAreTheFixedTwelve)
{
    const std::vector<std::pair<const char16_t*, const char16_t*>> table{
        {u"January", u"Jan"}, {u"February", u"Feb"}, {u"Mars", u"Mar"},
        {u"April", u"Apr"},   {u"May", u"May"},      {u"June", u"Jun"},
        {u"July", u"Jul"},    {u"August", u"Aug"},   {u"September", u"Sep"},
        {u"October", u"Oct"}, {u"November", u"Nov"}, {u"December", u"Dec"}};
    ASSERT_EQ(MonthNames.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(std::u16string(MonthNames[i].longName), table[i].first);
        EXPECT_EQ(std::u16string(MonthNames[i].shortName), table[i].second);
        EXPECT_EQ(MonthNames[i].number, static_cast<std::int32_t>(i) + 1);
    }
    EXPECT_EQ(sizeof(MonthNames[0].longName) / sizeof(char16_t), 50U);
    EXPECT_EQ(sizeof(MonthNames[0].shortName) / sizeof(char16_t), 4U);
}

} // namespace
} // namespace condtree
