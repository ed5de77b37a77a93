#include <condtree/values/DateStyle.h>

#include "support/QtPrinters.h"

#include <condtree/platform/Automation.h>

#include <gtest/gtest.h>

#include <QLocale>

#include <array>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace condtree {
namespace {

// The locale's conversion refuses a text that ends so; a style's does not look at it. What is read
// with it was read by the style.
const QString kJunk = QStringLiteral(" # ?!");

/// How much of a date a text holds.
enum class Depth { Day, Minute, Second };

struct Style {
    std::uint32_t code;
    Depth depth;
};

constexpr std::array<Style, 9> kTwoDigitYears{{{1, Depth::Day},
                                               {2, Depth::Day},
                                               {3, Depth::Day},
                                               {4, Depth::Day},
                                               {5, Depth::Day},
                                               {6, Depth::Day},
                                               {7, Depth::Day},
                                               {10, Depth::Day},
                                               {11, Depth::Day}}};
constexpr Style kTwoDigitCompact{12, Depth::Day};
constexpr std::array<Style, 11> kFourDigitYears{{{101, Depth::Day},
                                                 {102, Depth::Day},
                                                 {103, Depth::Day},
                                                 {104, Depth::Day},
                                                 {105, Depth::Day},
                                                 {107, Depth::Day},
                                                 {110, Depth::Day},
                                                 {111, Depth::Day},
                                                 {112, Depth::Day},
                                                 {120, Depth::Day},
                                                 {121, Depth::Second}}};
constexpr std::array<Style, 2> kTwelveHours{{{100, Depth::Minute}, {109, Depth::Second}}};

struct Moment {
    int year, month, day, hour, minute, second;

    bool operator==(const Moment&) const = default;
    /// The moment as far as a text holds it.
    [[nodiscard]] Moment to(Depth depth) const
    {
        if (depth == Depth::Day)
            return {year, month, day, 0, 0, 0};
        return {year, month, day, hour, minute, depth == Depth::Second ? second : 0};
    }
};

std::ostream& operator<<(std::ostream& out, const Moment& m)
{
    return out << QString::asprintf("%04d-%02d-%02d %02d:%02d:%02d", m.year, m.month, m.day, m.hour,
                                    m.minute, m.second)
                      .toStdString();
}

constexpr Moment kUnread{-1, -1, -1, -1, -1, -1};

Moment momentOf(double date)
{
    SYSTEMTIME t{};
    if (!VariantTimeToSystemTime(date, t))
        return kUnread;
    return {t.wYear, t.wMonth, t.wDay, t.wHour, t.wMinute, t.wSecond};
}

CString written(double date, std::uint32_t style)
{
    CString text;
    EXPECT_TRUE(FormatDateByStyle(text, date, style)) << date;
    return text;
}

/// What the style reads of its own text.
Moment readBack(double date, std::uint32_t style)
{
    double result = 0;
    const bool isRead = ParseDateByStyle(written(date, style) + kJunk, result, style, QLocale::c());
    return isRead ? momentOf(result) : kUnread;
}

constexpr int kDates = 100000;

/// Dates from one day to another with a time to the second, the same ones in every run.
class RandomDates {
public:
    RandomDates(int firstDay, int lastDay)
        : m_days(firstDay, lastDay)
    {
    }
    double next()
    {
        const int day = m_days(m_numbers);
        const double time = m_seconds(m_numbers) / 86400.0;
        const double date = day < 0 ? day - time : day + time;
        return date == 0 ? 1 : date;
    }

private:
    std::mt19937 m_numbers{20240305};
    std::uniform_int_distribution<int> m_days;
    std::uniform_int_distribution<int> m_seconds{0, 86399};
};

constexpr int kFirstDay = -657434; // 1 January 100
constexpr int kLastDay = 2958465;  // 31 December 9999
constexpr int kFirstOf1950 = 18264;
constexpr int kLastOf2049 = 54788;

TEST(DateRoundTrip, TheEndsOfTheTwoDigitYears)
{
    EXPECT_EQ(momentOf(kFirstOf1950), (Moment{1950, 1, 1, 0, 0, 0}));
    EXPECT_EQ(momentOf(kLastOf2049), (Moment{2049, 12, 31, 0, 0, 0}));
}

TEST(DateRoundTrip, StylesWithFourDigitYearsReadWhatTheyWrite)
{
    RandomDates dates(kFirstDay, kLastDay);
    for (int i = 0; i < kDates; ++i) {
        const double date = dates.next();
        for (const auto& [style, depth] : kFourDigitYears)
            ASSERT_EQ(readBack(date, style), momentOf(date).to(depth)) << style;
    }
}

TEST(DateRoundTrip, StylesWithTwoDigitYearsReadWhatTheyWriteFrom1950To2049)
{
    RandomDates dates(kFirstOf1950, kLastOf2049);
    for (int i = 0; i < kDates; ++i) {
        const double date = dates.next();
        for (const auto& [style, depth] : kTwoDigitYears)
            ASSERT_EQ(readBack(date, style), momentOf(date).to(depth)) << style;
        ASSERT_EQ(readBack(date, kTwoDigitCompact.code), momentOf(date).to(kTwoDigitCompact.depth));
    }
}

// The year's century is not in the text.
TEST(DateRoundTrip, StylesWithTwoDigitYearsReadOtherYearsAsThoseFrom1950To2049)
{
    RandomDates dates(kFirstDay, kLastDay);
    for (int i = 0; i < 10000; ++i) {
        const double date = dates.next();
        Moment expected = momentOf(date).to(Depth::Day);
        const int yearOfCentury = expected.year % 100;
        expected.year = yearOfCentury < 50 ? 2000 + yearOfCentury : 1900 + yearOfCentury;
        for (const auto& [style, depth] : kTwoDigitYears)
            ASSERT_EQ(readBack(date, style), expected) << style;
        ASSERT_EQ(readBack(date, kTwoDigitCompact.code), expected);
    }
}

// The hour after midnight is written as 00, which is no hour of twelve: the time is lost.
TEST(DateRoundTrip, StylesOfTwelveHoursReadWhatTheyWriteFromOneOnAndLoseTheHourBefore)
{
    RandomDates dates(kFirstDay, kLastDay);
    int lost = 0;
    for (int i = 0; i < kDates; ++i) {
        const double date = dates.next();
        const Moment moment = momentOf(date);
        lost += moment.hour == 0 ? 1 : 0;
        for (const auto& [style, depth] : kTwelveHours)
            ASSERT_EQ(readBack(date, style), moment.to(moment.hour == 0 ? Depth::Day : depth))
                << style;
    }
    EXPECT_GT(lost, 0);
}

// Written with the long name of the month, read with the short one: May alone is both.
TEST(DateRoundTrip, Style113ReadsWhatItWritesInMayAlone)
{
    RandomDates dates(kFirstDay, kLastDay);
    int read = 0;
    for (int i = 0; i < kDates; ++i) {
        const double date = dates.next();
        const Moment moment = momentOf(date);
        read += moment.month == 5 ? 1 : 0;
        ASSERT_EQ(readBack(date, 113), moment.month == 5 ? moment : kUnread);
    }
    EXPECT_GT(read, 0);
}

// 0 and unknown codes have no order of fields; 106 writes the month's name and reads a number.
TEST(DateRoundTrip, StylesThatDoNotReadWhatTheyWriteAskTheLocale)
{
    RandomDates dates(kFirstDay, kLastDay);
    for (int i = 0; i < 1000; ++i) {
        const double date = dates.next();
        for (const std::uint32_t style : {0U, 106U, 8U, 122U, 130U, 131U, 999U, 0xFFFFFFFFU}) {
            ASSERT_EQ(readBack(date, style), kUnread) << style;
            double result = 0;
            double local = 0;
            const CString text = written(date, style);
            ASSERT_EQ(ParseDateByStyle(text, result, style, QLocale::c()),
                      ParseDateByLocale(text, local, QLocale::c()));
            ASSERT_EQ(result, local) << text.toStdString();
        }
    }
}

/// What a style reads of its own text, by the locale if not by itself.
Moment readBackIn(double date, std::uint32_t style, const QLocale& locale)
{
    double result = 0;
    return ParseDateByStyle(written(date, style), result, style, locale) ? momentOf(result)
                                                                         : kUnread;
}

const QLocale& american()
{
    static const QLocale locale(QLocale::English, QLocale::UnitedStates);
    return locale;
}

TEST(DateRoundTrip, TheAmericanLocaleReadsTheDaysOfStyles0And106)
{
    for (int day = 45292; day < 45292 + 366; ++day) { // 2024
        EXPECT_EQ(readBackIn(day + 0.75, 106, american()), momentOf(day)) << day;
        const Moment read = readBackIn(day + 0.75, 0, american());
        EXPECT_EQ(read, momentOf(day + 0.75)) << day;
    }
}

// The style writes noon as 12 AM and midnight as 00 AM; to a locale both are midnight.
TEST(DateRoundTrip, EveryLocaleTakesTheHourOfNoonOfStyle0ForTheOneOfMidnight)
{
    constexpr Moment kMidnight{2024, 5, 1, 0, 30, 0};
    constexpr double kFirstOfMay2024 = 45413;
    int read = 0;
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale& locale : all) {
        const Moment noon = readBackIn(kFirstOfMay2024 + 12.5 / 24, 0, locale);
        EXPECT_EQ(readBackIn(kFirstOfMay2024 + 0.5 / 24, 0, locale), noon);
        EXPECT_TRUE(noon == kUnread || noon.hour == 0) << locale.name().toStdString() << noon;
        read += noon == kMidnight ? 1 : 0;
    }
    EXPECT_GT(read, 100);
}

TEST(DateRoundTrip, OtherLocalesReadTheMonthsOfStyle106ThatTheyCallSo)
{
    struct Known {
        QLocale locale;
        std::vector<int> months;
    };
    const std::vector<Known> all{
        {american(), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
        {QLocale(QLocale::English, QLocale::UnitedKingdom),
         {1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12}},                                  // "Sept"
        {QLocale(QLocale::German, QLocale::Germany), {1, 2, 4, 6, 7, 8, 9, 11}}, // not "Mär", "Mai"
        {QLocale(QLocale::Japanese, QLocale::Japan), {}},
    };
    for (const auto& [locale, months] : all) {
        std::vector<int> read;
        for (int month = 1; month <= 12; ++month) {
            double date = 0;
            const SYSTEMTIME day{2024, static_cast<std::uint16_t>(month), 0, 5, 0, 0, 0, 0};
            ASSERT_TRUE(SystemTimeToVariantTime(day, date));
            const Moment moment = readBackIn(date, 106, locale);
            EXPECT_TRUE(moment == kUnread || moment == momentOf(date)) << moment;
            if (moment != kUnread)
                read.push_back(month);
        }
        EXPECT_EQ(read, months) << locale.name().toStdString();
    }
}

// Basaa and Duala call another month "May" and Teso another one "Mar"; nothing tells the texts
// apart.
TEST(DateRoundTrip, OfStyle106ThreeLanguagesReadAnotherMonth)
{
    std::vector<std::string> others;
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale& locale : all) {
        for (int month = 1; month <= 12; ++month) {
            double date = 0;
            const SYSTEMTIME day{2024, static_cast<std::uint16_t>(month), 0, 5, 0, 0, 0, 0};
            ASSERT_TRUE(SystemTimeToVariantTime(day, date));
            const Moment moment = readBackIn(date, 106, locale);
            if (moment != kUnread && moment != momentOf(date))
                others.push_back(locale.name().toStdString() + ' ' + std::to_string(month));
        }
    }
    EXPECT_EQ(others, (std::vector<std::string>{"bas_CM 5", "dua_CM 5", "teo_UG 3", "teo_KE 3"}));
}

// The locale refuses the milliseconds, whatever it calls the month.
TEST(DateRoundTrip, NoLocaleReadsStyle113InElevenMonthsNorUnknownCodes)
{
    for (int month = 1; month <= 12; ++month) {
        const double date = 45292 + 30.4 * (month - 1) + 3;
        const Moment moment = momentOf(date);
        ASSERT_EQ(moment.month, month);
        EXPECT_EQ(readBackIn(date, 113, american()), month == 5 ? moment : kUnread);
        EXPECT_EQ(readBackIn(date, 999, american()), kUnread);
    }
}

TEST(DateRoundTrip, NoStyleReadsADateWithoutFields)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    for (std::uint32_t style = 0; style <= 200; ++style)
        EXPECT_EQ(readBack(none, style), kUnread) << style;
}

} // namespace
} // namespace condtree
