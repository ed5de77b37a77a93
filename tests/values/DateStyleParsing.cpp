#include <condtree/values/DateStyle.h>

#include "support/QtPrinters.h"

#include <condtree/platform/Automation.h>

#include <gtest/gtest.h>

#include <QLocale>

#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace condtree {
namespace {

// The locale's conversion refuses a text that ends so; a style's does not look at it. What is
// "none" with it was not read by the style.
const QString kJunk = QStringLiteral(" # ?!");

const QLocale& english()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedKingdom); // 05/03/2024
    return locale;
}

const QLocale& japanese()
{
    static const QLocale locale(QLocale::Japanese, QLocale::Japan); // 2024/03/05
    return locale;
}

std::string toText(double date)
{
    SYSTEMTIME t{};
    if (!VariantTimeToSystemTime(date, t))
        return "no fields";
    return QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", t.wYear, t.wMonth, t.wDay, t.wHour,
                             t.wMinute, t.wSecond)
        .toStdString();
}

/// What a text is read as; "none" where it is not, in which case the result must stay.
std::string parsed(const QString& text, std::uint32_t style, const QLocale& locale = english())
{
    double result = 4711.125;
    if (ParseDateByStyle(text, result, style, locale))
        return toText(result);
    EXPECT_EQ(result, 4711.125);
    return "none";
}

/// The same by the style alone.
std::string byStyle(const QString& text, std::uint32_t style)
{
    return parsed(text + kJunk, style);
}

constexpr const char* kFifthOfMarch = "2024-03-05 00:00:00";

enum class Order { None, Mdy, Ymd, Dmy };

TEST(DateStyleParsing, EveryStyleReadsItsFieldsInItsOrder)
{
    const std::map<std::uint32_t, Order> orders{
        {1, Order::Mdy},   {10, Order::Mdy},  {101, Order::Mdy}, {110, Order::Mdy},
        {2, Order::Ymd},   {11, Order::Ymd},  {102, Order::Ymd}, {111, Order::Ymd},
        {120, Order::Ymd}, {3, Order::Dmy},   {4, Order::Dmy},   {5, Order::Dmy},
        {103, Order::Dmy}, {104, Order::Dmy}, {105, Order::Dmy}, {106, Order::Dmy}};
    const std::map<Order, const char*> expected{{Order::None, "none"},
                                                {Order::Mdy, "2005-03-04 00:00:00"},
                                                {Order::Ymd, "2003-04-05 00:00:00"},
                                                {Order::Dmy, "2005-04-03 00:00:00"}};
    for (std::uint32_t style = 0; style <= 200; ++style) {
        const auto found = orders.find(style);
        const Order order = found == orders.end() ? Order::None : found->second;
        EXPECT_EQ(byStyle(u"03;04;05"_qs, style), expected.at(order)) << style;
    }
}

TEST(DateStyleParsing, OnlyTheStylesWithMonthNamesReadThem)
{
    for (std::uint32_t style = 0; style <= 200; ++style) {
        const bool isDayFirst = style == 6 || style == 113;
        const bool isNameFirst = style == 7 || style == 107 || style == 100 || style == 109;
        EXPECT_EQ(byStyle(u"05 mar 2024"_qs, style), isDayFirst ? kFifthOfMarch : "none") << style;
        EXPECT_EQ(byStyle(u"mar 05 2024"_qs, style), isNameFirst ? kFifthOfMarch : "none") << style;
    }
}

TEST(DateStyleParsing, OnlyTheCompactStylesReadDigitsWithoutSeparators)
{
    for (std::uint32_t style = 0; style <= 200; ++style) {
        EXPECT_EQ(byStyle(u"240305"_qs, style), style == 12 ? kFifthOfMarch : "none") << style;
        EXPECT_EQ(byStyle(u"20240305"_qs, style), style == 112 ? kFifthOfMarch : "none") << style;
    }
}

TEST(DateStyleParsing, OnlyTheStylesWithATimeReadIt)
{
    const auto timeOf = [](const QString& text, std::uint32_t style) {
        return byStyle(text, style).substr(11);
    };
    for (const std::uint32_t style : {100U, 109U})
        EXPECT_EQ(timeOf(u"Mar 05 2024 02:07:09:000 PM"_qs, style), "14:07:09") << style;
    EXPECT_EQ(timeOf(u"05 May 2024 14:07:09:000"_qs, 113), "14:07:09");
    EXPECT_EQ(timeOf(u"2024-03-05 14:07:09.000"_qs, 121), "14:07:09");
    EXPECT_EQ(timeOf(u"2024-03-05 14:07:09.000"_qs, 120), "00:00:00");
    for (const std::uint32_t style : {7U, 107U})
        EXPECT_EQ(timeOf(u"Mar 05 2024 02:07:09:000 PM"_qs, style), "00:00:00") << style;
}

// Style 103

TEST(DateStyleParsing, SeparatorsAndLeadingZerosDoNotMatter)
{
    for (const auto& text :
         {u"05/03/2024"_qs, u"5.3.24"_qs, u"5-3-2024"_qs, u" 5\t3 24"_qs, u"5T3T2024"_qs,
          u"5\\3,;:24"_qs, u"TT05 / 03 / 2024"_qs, u"0005.00003.24"_qs, u"5/3/2024 14:07"_qs})
        EXPECT_EQ(byStyle(text, 103), kFifthOfMarch) << text.toStdString();
}

TEST(DateStyleParsing, ASmallTIsNoSeparator)
{
    EXPECT_EQ(byStyle(u"05t03t2024"_qs, 103), "none");
    EXPECT_EQ(byStyle(u"5x3x2024"_qs, 103), "none");
}

TEST(DateStyleParsing, TwoDigitYearsAreThoseFrom1950To2049)
{
    EXPECT_EQ(byStyle(u"05/03/49"_qs, 103), "2049-03-05 00:00:00");
    EXPECT_EQ(byStyle(u"05/03/50"_qs, 103), "1950-03-05 00:00:00");
    EXPECT_EQ(byStyle(u"05/03/00"_qs, 103), "2000-03-05 00:00:00");
}

TEST(DateStyleParsing, YearsOfOtherLengthsDoNotFit)
{
    for (const auto& text : {u"05/03"_qs, u"05/03/4"_qs, u"05/03/024"_qs, u"05/03/20245"_qs})
        EXPECT_EQ(byStyle(text, 103), "none") << text.toStdString();
}

TEST(DateStyleParsing, DaysAndMonthsOutOfRangeDoNotFit)
{
    for (const auto& text : {u"32/01/2024"_qs, u"0/01/2024"_qs, u"05/13/2024"_qs, u"05/00/2024"_qs})
        EXPECT_EQ(byStyle(text, 103), "none") << text.toStdString();
    double read = 0;
    double local = 0;
    EXPECT_EQ(ParseDateByStyle(u"32/01/2024"_qs, read, 103, english()),
              ParseDateByLocale(u"32/01/2024"_qs, local, english()));
    EXPECT_EQ(read, local);
}

TEST(DateStyleParsing, WhatIsOutOfItsRangeReachesTheLocale)
{
    // No locale has a day 32; with a short year it is the year of one.
    EXPECT_EQ(parsed(u"32/01/2024"_qs, 103), "none");
    EXPECT_EQ(parsed(u"32/01/24"_qs, 103), "2032-01-24 00:00:00");
    EXPECT_EQ(byStyle(u"32/01/24"_qs, 103), "none");
    const QLocale french(QLocale::French, QLocale::France);
    EXPECT_EQ(parsed(u"March 05, 2024"_qs, 107), kFifthOfMarch);
    EXPECT_EQ(parsed(u"March 05, 2024"_qs, 107, french), "none");
}

// The way by locale

TEST(DateStyleParsing, WhatDoesNotFitIsReadByLocale)
{
    // Its first number is too much for a month, or its last for a day; or it is no name, or no
    // compact date.
    EXPECT_EQ(parsed(u"25/03/2024"_qs, 101), "2024-03-25 00:00:00");
    EXPECT_EQ(parsed(u"05/03/2024"_qs, 120), kFifthOfMarch);
    for (const std::uint32_t style :
         {2U, 6U, 7U, 11U, 12U, 100U, 102U, 107U, 109U, 111U, 112U, 113U})
        EXPECT_EQ(parsed(u"05/03/2024"_qs, style), kFifthOfMarch) << style;
    EXPECT_EQ(parsed(u"2024/03/05"_qs, 101, japanese()), kFifthOfMarch);
}

TEST(DateStyleParsing, CodesWithoutAnOrderAreReadByLocaleAtOnce)
{
    for (const std::uint32_t style : {0U, 8U, 9U, 13U, 14U, 99U, 108U, 114U, 119U, 122U, 129U, 130U,
                                      131U, 132U, 999U, 0x80000000U, 0xFFFFFFFFU}) {
        EXPECT_EQ(parsed(u"05/03/2024"_qs, style), kFifthOfMarch) << style;
        EXPECT_EQ(parsed(u"2024/03/05"_qs, style, japanese()), kFifthOfMarch) << style;
        EXPECT_EQ(byStyle(u"05/03/2024"_qs, style), "none") << style;
    }
}

TEST(DateStyleParsing, WithoutALocaleItIsTheUsers)
{
    const QLocale before;
    QLocale::setDefault(english());
    double result = 0;
    double local = 0;
    const bool isRead = ParseDateByStyle(u"05/03/2024"_qs, result, 130);
    const bool isLocal = ParseDateByLocale(u"05/03/2024"_qs, local);
    const bool isJunkRead = ParseDateByStyle(u"05/03/2024"_qs + kJunk, result, 130);
    QLocale::setDefault(before);
    EXPECT_EQ(isRead, isLocal);
    EXPECT_EQ(result, local);
    EXPECT_FALSE(isJunkRead);

    EXPECT_TRUE(ParseDateByStyle(u"05/03/2024"_qs + kJunk, result, 103));
    EXPECT_EQ(result, 45356);
}

TEST(DateStyleParsing, AnEmptyTextIsNoDate)
{
    for (std::uint32_t style = 0; style <= 200; ++style) {
        EXPECT_EQ(parsed({}, style), "none") << style;
        EXPECT_EQ(parsed(u" T-"_qs, style), "none") << style;
    }
}

// Style 107

TEST(DateStyleParsing, MonthsByNameAreShortOnes)
{
    EXPECT_EQ(byStyle(u"mar 05, 2024"_qs, 107), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"MAR05,2024"_qs, 107), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"March 05, 2024"_qs, 107), "none");
    EXPECT_EQ(byStyle(u"Mars 05, 2024"_qs, 107), "none");
    EXPECT_EQ(byStyle(u"May 05, 2024"_qs, 107), "2024-05-05 00:00:00");
}

// Style 112

TEST(DateStyleParsing, CompactDatesHaveAllTheirDigits)
{
    EXPECT_EQ(byStyle(u"20240305"_qs, 112), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"2024035"_qs, 112), "none");
    EXPECT_EQ(byStyle(u"2024-03-05"_qs, 112), "none");
    EXPECT_EQ(byStyle(u"202403059"_qs, 112), kFifthOfMarch);
}

// Style 121

TEST(DateStyleParsing, Style121ReadsItsTime)
{
    EXPECT_EQ(byStyle(u"2024-03-05 14:07:09.123"_qs, 121), "2024-03-05 14:07:09");
    EXPECT_EQ(byStyle(u"2024-03-05T14:07"_qs, 121), "2024-03-05 14:07:00");
    EXPECT_EQ(byStyle(u"2024-03-05"_qs, 121), kFifthOfMarch);
    EXPECT_EQ(byStyle(u" 24- 3-/5 25:00"_qs, 121), kFifthOfMarch);
}

TEST(DateStyleParsing, MillisecondsDoNotReachTheDate)
{
    double with = 0;
    double without = 0;
    EXPECT_TRUE(ParseDateByStyle(u"2024-03-05 14:07:09.999"_qs, with, 121));
    EXPECT_TRUE(ParseDateByStyle(u"2024-03-05 14:07:09"_qs, without, 121));
    EXPECT_EQ(with, without);
}

TEST(DateStyleParsing, Style121RefusesAMissingHyphenWithoutAskingTheLocale)
{
    ASSERT_EQ(parsed(u"2024/03/05"_qs, 120, japanese()), kFifthOfMarch);
    ASSERT_EQ(parsed(u"2024/03/05"_qs, 130, japanese()), kFifthOfMarch);
    for (const auto& text : {u"2024/03/05"_qs, u"2024-03/05"_qs, u"2024/03-05"_qs, u"2024"_qs,
                             u"2024 -03-05"_qs, u"2024-03 -05"_qs, u"2024-03"_qs})
        EXPECT_EQ(parsed(text, 121, japanese()), "none") << text.toStdString();
    // The year is read before the hyphen is missed: 05.
    EXPECT_EQ(parsed(u"05/03/2024"_qs, 130), kFifthOfMarch);
    EXPECT_EQ(parsed(u"05/03/2024"_qs, 121), "none");
}

TEST(DateStyleParsing, Style121AsksTheLocaleWhereAFieldDoesNotFit)
{
    // A year of one digit.
    ASSERT_EQ(parsed(u"5/03/2024"_qs, 130), parsed(u"5/03/2024"_qs, 121));
    const QLocale dutch(QLocale::Dutch, QLocale::Netherlands); // dd-MM-yyyy
    ASSERT_EQ(dutch.dateFormat(QLocale::ShortFormat), u"dd-MM-yyyy"_qs);
    // The year is 25, and the day 2024.
    EXPECT_EQ(parsed(u"25-03-2024"_qs, 121, dutch), "2024-03-25 00:00:00");
    EXPECT_EQ(parsed(u"25-03-2024"_qs + kJunk, 121, dutch), "none");
}

// Styles 100 and 113

TEST(DateStyleParsing, Style100NeedsItsMarker)
{
    EXPECT_EQ(byStyle(u"Mar 05 2024 02:07 PM"_qs, 100), "2024-03-05 14:07:00");
    EXPECT_EQ(byStyle(u"Mar 05 2024 02:07"_qs, 100), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"Mar 05 2024 12:30 PM"_qs, 100), "2024-03-05 00:30:00");
    EXPECT_EQ(byStyle(u"Mar 05 2024 12:30 AM"_qs, 100), "2024-03-05 12:30:00");
    EXPECT_EQ(byStyle(u"Mar 05 2024 00:30 AM"_qs, 100), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"Mar 05 2024 13:30 PM"_qs, 100), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"Mar 05 2024"_qs, 100), kFifthOfMarch);
}

TEST(DateStyleParsing, Style113KeepsTheDateWhereTheTimeIsNone)
{
    EXPECT_EQ(byStyle(u"05 May 2024 25:00:00:000"_qs, 113), "2024-05-05 00:00:00");
    EXPECT_EQ(byStyle(u"05 May 2024 14:61:00:000"_qs, 113), "2024-05-05 00:00:00");
    EXPECT_EQ(byStyle(u"05 May 2024 14:07:61:000"_qs, 113), "2024-05-05 14:07:00");
    EXPECT_EQ(byStyle(u"05 Mars 2024 14:07:09:000"_qs, 113), "none");
}

TEST(DateStyleParsing, Style106ReadsTheMonthAsANumber)
{
    EXPECT_EQ(byStyle(u"05 03 2024"_qs, 106), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"05 Mar 2024"_qs, 106), "none");
    EXPECT_EQ(byStyle(u"05 May 2024"_qs, 106), "none");
}

// What runs on

TEST(DateStyleParsing, ADayThatItsMonthLacksRunsOn)
{
    EXPECT_EQ(byStyle(u"31/02/2023"_qs, 103), "2023-03-03 00:00:00");
    EXPECT_EQ(byStyle(u"31/02/2024"_qs, 103), "2024-03-02 00:00:00");
    EXPECT_EQ(byStyle(u"29/02/1900"_qs, 103), "1900-03-01 00:00:00");
    EXPECT_EQ(byStyle(u"31/04/2024"_qs, 103), "2024-05-01 00:00:00");
}

TEST(DateStyleParsing, AMinuteOrASecondOfSixtyRunsOn)
{
    EXPECT_EQ(byStyle(u"2024-12-31 23:60"_qs, 121), "2025-01-01 00:00:00");
    EXPECT_EQ(byStyle(u"2024-12-31 23:59:60"_qs, 121), "2025-01-01 00:00:00");
    EXPECT_EQ(byStyle(u"2024-12-31 14:60:60"_qs, 121), "2024-12-31 15:01:00");
}

TEST(DateStyleParsing, ADateThatRunsOnBehindTheYear9999IsTheZeroDate)
{
    for (const auto& text : {u"9999-12-31 23:60"_qs, u"9999-12-31 23:59:60"_qs}) {
        double result = 4711.125;
        EXPECT_TRUE(ParseDateByStyle(text, result, 121));
        EXPECT_EQ(result, 0.0);
        EXPECT_FALSE(std::signbit(result));
        CString unwritten;
        EXPECT_FALSE(FormatDateByStyle(unwritten, result, 121));
    }
    EXPECT_EQ(byStyle(u"9999-12-31 23:59:59"_qs, 121), "9999-12-31 23:59:59");
}

TEST(DateStyleParsing, FourDigitYearsBelowAHundredAreThoseFrom1950To2049)
{
    EXPECT_EQ(byStyle(u"0050-03-05"_qs, 120), "1950-03-05 00:00:00");
    EXPECT_EQ(byStyle(u"0024-03-05"_qs, 120), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"0000-03-05"_qs, 120), "2000-03-05 00:00:00");
    EXPECT_EQ(byStyle(u"0099-12-31"_qs, 120), "1999-12-31 00:00:00");
    EXPECT_EQ(byStyle(u"0100-01-01"_qs, 120), "0100-01-01 00:00:00");
}

TEST(DateStyleParsing, TheDayOfTheZeroDateIsReadAsZero)
{
    double result = 4711.125;
    EXPECT_TRUE(ParseDateByStyle(u"1899-12-30"_qs, result, 120));
    EXPECT_EQ(result, 0.0);
}

// Texts that nobody types

TEST(DateStyleParsing, ANullEndsAField)
{
    const QString null(QChar(0));
    EXPECT_EQ(byStyle(u"05/03/2024"_qs + null + u"9"_qs, 103), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"05"_qs + null + u"/03/2024"_qs, 103), "none");
    EXPECT_EQ(byStyle(u"202403"_qs + null + u"05"_qs, 112), "none");
    EXPECT_EQ(parsed(null, 103), "none");
}

TEST(DateStyleParsing, HalvesOfSurrogatePairsAndDigitsOfOtherScriptsDoNotFit)
{
    for (const char16_t unit : {u'\xd800', u'\xdfff', u'\xffff', u'\x0665', u'\xff15', u'\x2003'}) {
        const QString odd(QChar{unit});
        for (std::uint32_t style = 0; style <= 200; ++style) {
            EXPECT_EQ(parsed(odd, style), "none") << style;
            EXPECT_EQ(parsed(odd + u"05"_qs + odd, style), "none") << style;
        }
        EXPECT_EQ(byStyle(u"05/03/2024"_qs + odd, 103), kFifthOfMarch);
        EXPECT_EQ(byStyle(u"05"_qs + odd + u"/03/2024"_qs, 103), "none");
        EXPECT_EQ(byStyle(u"mar"_qs + odd + u" 05 2024"_qs, 107), "none");
    }
}

TEST(DateStyleParsing, LongTextsAreReadOnce)
{
    const qsizetype million = 1000000;
    const QString separators(million, u';');
    EXPECT_EQ(byStyle(separators + u"5"_qs + separators + u"3"_qs + separators + u"24"_qs, 103),
              kFifthOfMarch);
    EXPECT_EQ(byStyle(QString(million, u'0') + u"5/3/24"_qs, 103), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"5/3/24"_qs + QString(million, u'x'), 103), kFifthOfMarch);
    EXPECT_EQ(byStyle(u"20240305"_qs + QString(million, u'9'), 112), kFifthOfMarch);
    EXPECT_EQ(byStyle(QString(million, u'9'), 120), "none");
    EXPECT_EQ(byStyle(QString(million, u'm'), 107), "none");
    for (const QChar unit : {QChar(u'\0'), QChar(u'\xd800'), QChar(u'\xdc00')}) {
        const QString many(million, unit);
        for (const std::uint32_t style : {0U, 12U, 103U, 107U, 113U, 121U}) {
            EXPECT_EQ(parsed(many, style), "none") << style;
            EXPECT_EQ(parsed(u"5"_qs + many + u"/3/2024"_qs, style), "none") << style;
        }
        EXPECT_EQ(byStyle(u"5/3/24"_qs + many, 103), kFifthOfMarch);
    }
    EXPECT_EQ(parsed(QString::fromUtf8("\xF0\x9F\x98\x80").repeated(million), 103), "none");
}

} // namespace
} // namespace condtree
