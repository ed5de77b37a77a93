#include <condtree/values/DateReader.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <string>

namespace condtree {
namespace {

std::string toText(std::optional<int> value)
{
    return value ? std::to_string(*value) : "none";
}

std::string toText(const TimeOfDay& time)
{
    return std::to_string(time.hour) + ":" + std::to_string(time.minute) + ":"
           + std::to_string(time.second) + "." + std::to_string(time.millisecond);
}

std::string number(const QString& text, int low = 0, int high = 9999)
{
    return toText(DateReader(text).ReadNumberInRange(low, high));
}

std::string year(const QString& text)
{
    return toText(DateReader(text).ReadYear());
}

std::string month(const QString& text)
{
    return toText(DateReader(text).ReadMonthName());
}

std::string compact(const QString& text, int yearDigits)
{
    const auto date = DateReader(text).ReadCompactDate(yearDigits);
    return date ? std::to_string(date->year) + "-" + std::to_string(date->month) + "-"
                      + std::to_string(date->day)
                : "none";
}

std::string time24(const QString& text)
{
    return toText(DateReader(text).ReadTime24());
}

std::string time12(const QString& text)
{
    return toText(DateReader(text).ReadTime12());
}

TEST(DateReader, SeparatorsAreTheTenAndACapitalTIsOne)
{
    for (char16_t c = 1; c < 0x3000; ++c) {
        if (c >= u'0' && c <= u'9')
            continue;
        const bool isSeparator = QStringLiteral("T \t:-/\\.,;").contains(QChar(c));
        EXPECT_EQ(number(QString(QChar(c)) + u"7"_qs), isSeparator ? "7" : "none") << int(c);
    }
    EXPECT_EQ(number(u"T \t:-/\\.,;;T7"_qs), "7");
    EXPECT_EQ(number(u"t7"_qs), "none");
}

TEST(DateReader, EveryReaderSkipsSeparators)
{
    EXPECT_EQ(number(u" .7"_qs), "7");
    EXPECT_EQ(year(u"T,2024"_qs), "2024");
    EXPECT_EQ(month(u"T;jan"_qs), "1");
    EXPECT_EQ(compact(u"/-240305"_qs, 2), "2024-3-5");
    EXPECT_EQ(time24(u"  14:07"_qs), "14:7:0.0");
    EXPECT_EQ(time12(u"T02:07 PM"_qs), "14:7:0.0");
}

TEST(DateReader, ANumberIsAWholeRunOfDigitsWithinItsRange)
{
    EXPECT_EQ(number(u"1"_qs, 1, 12), "1");
    EXPECT_EQ(number(u"12"_qs, 1, 12), "12");
    EXPECT_EQ(number(u"0"_qs, 1, 12), "none");
    EXPECT_EQ(number(u"13"_qs, 1, 12), "none");
    EXPECT_EQ(number(u"0000000000012x"_qs, 1, 12), "12");
    EXPECT_EQ(number(u"123"_qs, 1, 31), "none");
    EXPECT_EQ(number(u""_qs), "none");
    EXPECT_EQ(number(u"+1"_qs), "none");
    EXPECT_EQ(number(u"x1"_qs), "none");
}

TEST(DateReader, AMinusIsASeparator)
{
    EXPECT_EQ(number(u"-5"_qs), "5");
}

TEST(DateReader, ANumberTooLongToCountIsOutOfRange)
{
    // 2^32 + 5, 2^64 + 5 and more
    EXPECT_EQ(number(u"4294967301"_qs), "none");
    EXPECT_EQ(number(u"18446744073709551621"_qs), "none");
    EXPECT_EQ(number(QString(1000000, u'9')), "none");
    EXPECT_EQ(number(QString(1000000, u'0') + u"7"_qs), "7");
}

TEST(DateReader, DigitsAreThoseOfAsciiAlone)
{
    EXPECT_EQ(number(u"\u0665"_qs), "none"); // Arabic-Indic
    EXPECT_EQ(number(u"\uff15"_qs), "none"); // fullwidth
    EXPECT_EQ(number(u"5\u0665"_qs), "5");
    EXPECT_EQ(number(u"\u00b2"_qs), "none");
    EXPECT_EQ(year(u"202\uff14"_qs), "none");
}

TEST(DateReader, AYearHasTwoOrFourDigits)
{
    EXPECT_EQ(year(u"00"_qs), "2000");
    EXPECT_EQ(year(u"24"_qs), "2024");
    EXPECT_EQ(year(u"49"_qs), "2049");
    EXPECT_EQ(year(u"50"_qs), "1950");
    EXPECT_EQ(year(u"99"_qs), "1999");
    EXPECT_EQ(year(u"2024"_qs), "2024");
    EXPECT_EQ(year(u"0024"_qs), "24");
    EXPECT_EQ(year(u"0000"_qs), "0");
    EXPECT_EQ(year(u"9999"_qs), "9999");
    for (const auto& text : {u""_qs, u"5"_qs, u"202"_qs, u"20245"_qs, u"002024"_qs, u"x24"_qs})
        EXPECT_EQ(year(text), "none") << text.toStdString();
}

TEST(DateReader, AYearEndsWhereItsDigitsEnd)
{
    DateReader reader(u"24x"_qs);
    EXPECT_EQ(toText(reader.ReadYear()), "2024");
    EXPECT_TRUE(reader.pass(u'x'));
}

TEST(DateReader, AMonthIsItsShortNameInAnyCase)
{
    const char* const names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    int expected = 0;
    for (const char* name : names) {
        ++expected;
        const auto text = QString::fromLatin1(name);
        EXPECT_EQ(month(text), std::to_string(expected));
        EXPECT_EQ(month(text.toUpper()), std::to_string(expected));
        EXPECT_EQ(month(text.toLower()), std::to_string(expected));
        EXPECT_EQ(month(text + u"05"_qs), std::to_string(expected));
    }
}

TEST(DateReader, AMonthOfAnyOtherLengthIsNone)
{
    for (const auto& text :
         {u"January"_qs, u"February"_qs, u"Mars"_qs,     u"March"_qs,     u"April"_qs,
          u"June"_qs,    u"July"_qs,     u"August"_qs,   u"September"_qs, u"Sept"_qs,
          u"October"_qs, u"November"_qs, u"December"_qs, u"Ja"_qs,        u"M"_qs,
          u""_qs,        u"05"_qs,       u"Mai"_qs,      u"Okt"_qs,       u"MayT"_qs})
        EXPECT_EQ(month(text), "none") << text.toStdString();
}

TEST(DateReader, ATWithinAWordIsALetter)
{
    EXPECT_EQ(month(u"OCT"_qs), "10");
    EXPECT_EQ(month(u"TOCTT"_qs), "none");
    EXPECT_EQ(month(u"TOCT T"_qs), "10");
}

TEST(DateReader, LettersAreThoseOfAsciiAlone)
{
    EXPECT_EQ(month(u"\u017fep"_qs), "none");           // long s
    EXPECT_EQ(month(u"\uff2d\uff41\uff52"_qs), "none"); // fullwidth
    EXPECT_EQ(month(u"M\u0430r"_qs), "none");           // Cyrillic a
    EXPECT_EQ(month(u"@ar"_qs), "none");
    EXPECT_EQ(month(u"Jan[05"_qs), "1");
}

TEST(DateReader, ACompactDateIsDigitsAlone)
{
    EXPECT_EQ(compact(u"240305"_qs, 2), "2024-3-5");
    EXPECT_EQ(compact(u"500305"_qs, 2), "1950-3-5");
    EXPECT_EQ(compact(u"20240305"_qs, 4), "2024-3-5");
    EXPECT_EQ(compact(u"202403051"_qs, 4), "2024-3-5");
    EXPECT_EQ(compact(u"00240305"_qs, 4), "24-3-5");
    for (const auto& text : {u"2024035"_qs, u"2024"_qs, u"202"_qs, u""_qs, u"2024-03-05"_qs,
                             u"202403 05"_qs, u"20241305"_qs, u"20240005"_qs, u"20240332"_qs,
                             u"20240300"_qs, u"x0240305"_qs, u"2024x305"_qs, u"2024030x"_qs})
        EXPECT_EQ(compact(text, 4), "none") << text.toStdString();
    EXPECT_EQ(compact(u"20240305"_qs, 2), "none"); // month 24
    EXPECT_EQ(compact(u"24/03/05"_qs, 2), "none");
}

TEST(DateReader, ATimeOfTwentyFourHours)
{
    EXPECT_EQ(time24(u"14:07"_qs), "14:7:0.0");
    EXPECT_EQ(time24(u"14:07:09"_qs), "14:7:9.0");
    EXPECT_EQ(time24(u"14:07:09.123"_qs), "14:7:9.123");
    EXPECT_EQ(time24(u"14:07:09:000"_qs), "14:7:9.0");
    EXPECT_EQ(time24(u"0 0"_qs), "0:0:0.0");
    EXPECT_EQ(time24(u"23:59:59.999 and more"_qs), "23:59:59.999");
    EXPECT_EQ(time24(u"14:07 PM"_qs), "14:7:0.0");
}

TEST(DateReader, AMinuteAndASecondMayBeSixty)
{
    EXPECT_EQ(time24(u"14:60:60"_qs), "14:60:60.0");
    EXPECT_EQ(time12(u"2:60:60 PM"_qs), "14:60:60.0");
    EXPECT_EQ(time24(u"14:61"_qs), "0:0:0.0");
    EXPECT_EQ(time24(u"14:07:61"_qs), "14:7:0.0");
}

TEST(DateReader, WithoutHourOrMinuteTheWholeTimeIsZero)
{
    for (const auto& text : {u""_qs, u"14"_qs, u"24:00"_qs, u"25:00:00:000"_qs, u"x"_qs, u"14:x"_qs,
                             u"14:99:05"_qs, u"x14:07"_qs})
        EXPECT_EQ(time24(text), "0:0:0.0") << text.toStdString();
}

TEST(DateReader, AFaultySecondOrMillisecondEndsTheTimeThere)
{
    EXPECT_EQ(time24(u"14:07:x"_qs), "14:7:0.0");
    EXPECT_EQ(time24(u"14:07:99.5"_qs), "14:7:0.0");
    EXPECT_EQ(time24(u"14:07:09.1000"_qs), "14:7:9.0");
    EXPECT_EQ(time24(u"14:07:09.x"_qs), "14:7:9.0");
}

TEST(DateReader, ATimeOfTwelveHoursNeedsItsMarker)
{
    EXPECT_EQ(time12(u"02:07 AM"_qs), "2:7:0.0");
    EXPECT_EQ(time12(u"02:07 PM"_qs), "14:7:0.0");
    EXPECT_EQ(time12(u"02:07pm"_qs), "14:7:0.0");
    EXPECT_EQ(time12(u"02:07 Am"_qs), "2:7:0.0");
    EXPECT_EQ(time12(u"02:07:09:123 pM and more"_qs), "14:7:9.123");
    EXPECT_EQ(time12(u"02:07 PMs"_qs), "14:7:0.0");
    for (const auto& text :
         {u"02:07"_qs, u"02:07:09"_qs, u"02:07 P"_qs, u"02:07 P.M."_qs, u"02:07 XM"_qs,
          u"02:07 MP"_qs, u"02:07 x PM"_qs, u"02:07 \uff30\uff2d"_qs})
        EXPECT_EQ(time12(text), "0:0:0.0") << text.toStdString();
}

TEST(DateReader, TwelvePmIsMidnightAndTwelveAmNoon)
{
    EXPECT_EQ(time12(u"12:30 PM"_qs), "0:30:0.0");
    EXPECT_EQ(time12(u"12:30 AM"_qs), "12:30:0.0");
    EXPECT_EQ(time12(u"01:30 PM"_qs), "13:30:0.0");
    EXPECT_EQ(time12(u"11:30 PM"_qs), "23:30:0.0");
}

TEST(DateReader, HoursOfTwelveBeginWithOne)
{
    EXPECT_EQ(time12(u"00:30 AM"_qs), "0:0:0.0");
    EXPECT_EQ(time12(u"00:30 PM"_qs), "0:0:0.0");
    EXPECT_EQ(time12(u"13:30 PM"_qs), "0:0:0.0");
}

TEST(DateReader, ANumberOutOfItsRangeIsPassedAllTheSame)
{
    EXPECT_EQ(time12(u"02:07:99 PM"_qs), "14:7:0.0");
    EXPECT_EQ(time12(u"02:07:09:1000 PM"_qs), "14:7:9.0");
    // The time ended with the second, and 500 is no marker.
    EXPECT_EQ(time12(u"02:07:99:500 PM"_qs), "0:0:0.0");
}

TEST(DateReader, PassTakesTheVeryNextCharacterAlone)
{
    DateReader reader(u"- -"_qs);
    EXPECT_TRUE(reader.pass(u'-'));
    EXPECT_FALSE(reader.pass(u'-'));
    EXPECT_FALSE(DateReader(u""_qs).pass(u'-'));
}

} // namespace
} // namespace condtree
