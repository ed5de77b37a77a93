#include "values/LocaleDateText.h"

#include <vector>

namespace condtree {
namespace {

using test::DateExample;
using test::expectAll;

using Examples = std::vector<DateExample>;

/// In a locale of either kind of full stop; a time alone is written without its date.
void expectTimes(const std::vector<std::pair<QString, std::string>>& times)
{
    for (const auto& [text, time] : times) {
        const std::string expected = time == "none" ? time : "1899-12-30 " + time;
        expectAll(Examples{{u"en_US"_qs, text, expected}, {u"de_DE"_qs, text, expected}});
    }
}

TEST(LocaleDateTimes, ATimeHasAnHourAMinuteAndMaybeASecond)
{
    expectTimes({
        {u"14:07"_qs, "14:07:00"},  {u"14:07:33"_qs, "14:07:33"},
        {u"4:7:3"_qs, "04:07:03"},  {u" 14 : 07 "_qs, "14:07:00"},
        {u"14::07"_qs, "14:07:00"}, {u"14: :07"_qs, "14:07:00"},
        {u"0:00"_qs, "00:00:00"},   {u"23:59:59"_qs, "23:59:59"},
        {u"24:00"_qs, "none"},      {u"14:60"_qs, "none"},
        {u"14:07:60"_qs, "none"},   {u"14:07:33:1"_qs, "none"},
        {u"14:07:33.5"_qs, "none"}, {u"14:07:33,5"_qs, "none"},
        {u"14:"_qs, "none"},        {u":07"_qs, "none"},
        {u":"_qs, "none"},          {u"-1:07"_qs, "none"},
        {u"14"_qs, "none"},         {u"1407"_qs, "none"},
        {u"14h07"_qs, "none"},      {u"14:07 15:07"_qs, "none"},
        {u"14:07,"_qs, "none"},     {u"14:4294967303"_qs, "none"},
    });
}

TEST(LocaleDateTimes, HalvesOfTheDayFollowATime)
{
    expectTimes({
        {u"2:07 PM"_qs, "14:07:00"},
        {u"2:07pm"_qs, "14:07:00"},
        {u"2:07:33 am"_qs, "02:07:33"},
        {u"2PM"_qs, "14:00:00"},
        {u"12 AM"_qs, "00:00:00"},
        {u"12:30 am"_qs, "00:30:00"},
        {u"12 PM"_qs, "12:00:00"},
        {u"0:30 PM"_qs, "12:30:00"},
        {u"14:07 PM"_qs, "14:07:00"},
        {u"14:07 AM"_qs, "14:07:00"},
        {u"24 PM"_qs, "none"},
        {u"PM"_qs, "none"},
        {u"PM 2:07"_qs, "none"},
        {u"2:07 PM PM"_qs, "none"},
        {u"2:07 P"_qs, "none"},
        {u"2 PM:07"_qs, "none"},
    });
    expectAll(Examples{
        {u"sv_SE"_qs, u"2:07 em"_qs, "1899-12-30 14:07:00"},
        {u"sv_SE"_qs, u"2:07 FM"_qs, "1899-12-30 02:07:00"},
        {u"en_US"_qs, u"2:07 em"_qs, "none"},
        {u"nl_NL"_qs, u"2:07 p.m."_qs, "1899-12-30 14:07:00"},
        {u"ja_JP"_qs, u"2:07 \u5348\u5F8C"_qs, "1899-12-30 14:07:00"},
    });
}

TEST(LocaleDateTimes, AHalfOfTheDayLeadsWhereTheLocaleWritesItSo)
{
    expectAll(Examples{
        {u"ko_KR"_qs, u"\uC624\uD6C4 2:07"_qs, "1899-12-30 14:07:00"},
        {u"ko_KR"_qs, u"2024. 7. 4. \uC624\uC804 2:07"_qs, "2024-07-04 02:07:00"},
        {u"ko_KR"_qs, u"\uC624\uD6C4 2:07 PM"_qs, "none"},
        {u"ko_KR"_qs, u"\uC624\uD6C4"_qs, "none"},
        {u"ja_JP"_qs, u"\u5348\u5F8C2:07"_qs, "none"},
    });
}

TEST(LocaleDateTimes, DateAndTimeComeInEitherOrder)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4/7/2024 14:07"_qs, "2024-04-07 14:07:00"},
        {u"en_US"_qs, u"4/7/2024 2:07:33 PM"_qs, "2024-04-07 14:07:33"},
        {u"en_US"_qs, u"4/7/2024, 2:07 PM"_qs, "2024-04-07 14:07:00"},
        {u"en_US"_qs, u"4/7/2024 2 PM"_qs, "2024-04-07 14:00:00"},
        {u"en_US"_qs, u"14:07 4/7/2024"_qs, "2024-04-07 14:07:00"},
        {u"en_US"_qs, u"2PM July 4, 2024"_qs, "2024-07-04 14:00:00"},
        {u"en_US"_qs, u"14:07:33, Thu 4 July 2024"_qs, "2024-07-04 14:07:33"},
        {u"en_US"_qs, u"7/4 14:07"_qs, "2026-07-04 14:07:00"},
        {u"de_DE"_qs, u"4.7.2024 14:07"_qs, "2024-07-04 14:07:00"},
        {u"de_DE"_qs, u"14:07 4.7.2024"_qs, "2024-07-04 14:07:00"},
        {u"sv_SE"_qs, u"2024-07-04 14:07:33"_qs, "2024-07-04 14:07:33"},
        {u"ko_KR"_qs, u"24. 7. 4. 14:07"_qs, "2024-07-04 14:07:00"},
    });
}

TEST(LocaleDateTimes, OtherMixturesAreNone)
{
    for (const char16_t* text : {u"2024-07-04T14:07",
                                 u"2024-07-04 14:07:33Z",
                                 u"2024-07-04 14:07 UTC",
                                 u"20240704 140733",
                                 u"2024-07-04 at 14:07",
                                 u"2024-07-04;14:07",
                                 u"2024-07-04/14:07",
                                 u"2024-07-04 14",
                                 u"2024-07-04 14:07 2024",
                                 u"2024-07 14:07 04",
                                 u"14:07 2024-07-04 14:07",
                                 u"4 14:07",
                                 u"14:07 4",
                                 u", 14:07",
                                 u"14:07 , 14:07",
                                 u"2024-07-04,, 14:07",
                                 u"2024-07-04 24:00",
                                 u"2024-02-30 14:07",
                                 u"14:07 2024-02-30",
                                 u"2024-07-04 14:07:33.5"})
        expectAll(Examples{{u"en_US"_qs, QStringView(text).toString(), "none"},
                           {u"de_DE"_qs, QStringView(text).toString(), "none"},
                           {u"ja_JP"_qs, QStringView(text).toString(), "none"}});
}

TEST(LocaleDateTimes, AFullStopSeparatesTimesWhereDatesAreWrittenWithoutIt)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4.7"_qs, "1899-12-30 04:07:00"},
        {u"en_US"_qs, u"4.7.24"_qs, "1899-12-30 04:07:24"},
        {u"en_US"_qs, u"4.7.2024"_qs, "none"},
        {u"en_US"_qs, u"7/4/2024 14.07"_qs, "2024-07-04 14:07:00"},
        {u"en_US"_qs, u"4. July 2024"_qs, "none"},
        {u"en_US"_qs, u"4.7."_qs, "none"},
        {u"it_IT"_qs, u"14.07"_qs, "1899-12-30 14:07:00"},
        {u"de_DE"_qs, u"4.7"_qs, "2026-07-04"},
        {u"de_DE"_qs, u"4.7.24"_qs, "2024-07-04"},
        {u"de_DE"_qs, u"4.7.2024 14.07"_qs, "none"},
        {u"de_DE"_qs, u"0.0"_qs, "none"},
    });
}

TEST(LocaleDateTimes, AFullStopBehindAWholeDateSeparatesTimesWhereTheLocaleWritesThemSo)
{
    for (const auto& locale : {u"da_DK"_qs, u"fi_FI"_qs}) {
        for (const auto& text :
             {u"28.12.2024 14.07"_qs, u"28/12/24 14.07"_qs, u"28 12 2024 14.07"_qs,
              u"28.12.2024, 14.07"_qs, u"28.12.2024 14.07.00"_qs, u"28.12.2024 2.07 PM"_qs,
              u"28.12.2024 14:07"_qs, u"14:07 28.12.2024"_qs})
            expectAll(Examples{{locale, text, "2024-12-28 14:07:00"}});
        for (const auto& text :
             {u"28.12.2024.14.07"_qs, u"28.12.2024/14.07"_qs, u"28.12.2024 24.07"_qs,
              u"28.12.2024 14.60"_qs, u"28.12.2024 14.07.60"_qs, u"28.12.2024 14.07.00.0"_qs,
              u"28.12.2024 14.07:00"_qs, u"28.12.2024 14"_qs, u"28.12.2024 14."_qs,
              u"28.12 14.07"_qs, u"4.7 20.24"_qs, u"14.07 28.12.2024"_qs,
              u"28.12.2024 14.07 PM PM"_qs, u"30.2.2024 14.07"_qs})
            expectAll(Examples{{locale, text, "none"}});
    }
    expectAll(Examples{
        {u"da_DK"_qs, u"l\u00F8rdag 28. december 2024 14.07"_qs, "2024-12-28 14:07:00"},
        {u"da_DK"_qs, u"december 2024 14.07"_qs, "none"},
        {u"fi_FI"_qs, u"28.12.2024 2.07 ip."_qs, "2024-12-28 14:07:00"},
        {u"de_DE"_qs, u"28.12.2024 14.07"_qs, "none"},
    });
}

TEST(LocaleDateTimes, WhatCouldBeADayAndATimeOfAFullStopIsNone)
{
    for (const auto& locale : {u"da_DK"_qs, u"fi_FI"_qs}) {
        expectAll(Examples{
            {locale, u"14.07"_qs, "none"},
            {locale, u"4.7"_qs, "none"},
            {locale, u"0.00"_qs, "none"},
            {locale, u"11.50"_qs, "none"},
            {locale, u"23.59"_qs, "none"},
            {locale, u"24.1"_qs, "2026-01-24"},
            {locale, u"7.60"_qs, "1960-07-01"},
            {locale, u"14.07.24"_qs, "2024-07-14"},
            {locale, u"14/07"_qs, "2026-07-14"},
        });
    }
    expectAll(Examples{{u"fi_FI"_qs, u"la 14.07"_qs, "2026-07-14"}});
}

TEST(LocaleDateTimes, WordsThatTheLocalePutsIntoTimesAreSkippedThere)
{
    expectAll(Examples{
        {u"bg_BG"_qs, u"14:07 \u0447."_qs, "1899-12-30 14:07:00"},
        {u"bg_BG"_qs, u"4.07.24 \u0433., 14:07 \u0447."_qs, "2024-07-04 14:07:00"},
        {u"bg_BG"_qs, u"14:07 \u0447. 4.07.24"_qs, "2024-07-04 14:07:00"},
        {u"bg_BG"_qs, u"4 \u0447. 7 24"_qs, "none"},
        {u"bg_BG"_qs, u"14:07 \u0433."_qs, "none"},
        {u"nds_DE"_qs, u"Kl. 14.07"_qs, "none"},
        {u"nds_DE"_qs, u"Kl. 14:07"_qs, "1899-12-30 14:07:00"},
        {u"fr_CA"_qs, u"14 h 07"_qs, "1899-12-30 14:07:00"},
        {u"fr_CA"_qs, u"2024-07-04 14 h 07"_qs, "2024-07-04 14:07:00"},
        {u"fr_CA"_qs, u"14 h"_qs, "none"},
        {u"fr_CA"_qs, u"4 h 7 h 2024"_qs, "none"},
        {u"fr_FR"_qs, u"14 h 07"_qs, "none"},
    });
}

TEST(LocaleDateTimes, ABlankInANameIsAnyBlank)
{
    for (const char16_t* blank : {u" ", u"\u00A0", u"\u202F", u"\t"}) {
        const QString text = u"2:07 p.%1m."_qs.arg(QStringView(blank));
        expectAll(Examples{{u"es_ES"_qs, text, "1899-12-30 14:07:00"}});
    }
    expectAll(Examples{{u"es_ES"_qs, u"2:07 p.m."_qs, "none"}});
}

} // namespace
} // namespace condtree
