#include <condtree/values/LocaleDate.h>

#include "values/LocaleDateText.h"

#include <QDate>

#include <array>
#include <vector>

namespace condtree {
namespace {

using test::DateExample;
using test::expectAll;

using Examples = std::vector<DateExample>;

const std::array<QString, 6> kLocales{u"en_US"_qs, u"en_GB"_qs, u"de_DE"_qs,
                                      u"fr_FR"_qs, u"sv_SE"_qs, u"ja_JP"_qs};

/// In every locale of the six.
void expectEverywhere(const QString& text, const std::string& expected)
{
    for (const QString& locale : kLocales)
        expectAll(Examples{{locale, text, expected}});
}

TEST(LocaleDate, NumbersComeInTheOrderOfTheLocale)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4/7/2024"_qs, "2024-04-07"},
        {u"en_GB"_qs, u"4/7/2024"_qs, "2024-07-04"},
        {u"de_DE"_qs, u"4.7.2024"_qs, "2024-07-04"},
        {u"fr_FR"_qs, u"04/07/2024"_qs, "2024-07-04"},
        {u"sv_SE"_qs, u"24-04-07"_qs, "2024-04-07"},
        {u"ja_JP"_qs, u"24/4/7"_qs, "2024-04-07"},
        {u"fi_FI"_qs, u"4.7.2024"_qs, "2024-07-04"},
        {u"nl_NL"_qs, u"04-07-2024"_qs, "2024-07-04"},
        {u"hu_HU"_qs, u"2024. 04. 07."_qs, "2024-04-07"},
    });
}

TEST(LocaleDate, AnySeparatorOfDatesWillDo)
{
    for (const char16_t* separator :
         {u"/", u"-", u",", u" ", u"\t", u" / ", u"- ", u" ,", u"\u00A0"}) {
        const QString text = u"4:7:2024"_qs.replace(u':', QStringView(separator).toString());
        expectAll(Examples{{u"en_US"_qs, text, "2024-04-07"}, {u"de_DE"_qs, text, "2024-07-04"}});
    }
    expectAll(Examples{{u"en_GB"_qs, u"4-7/2024"_qs, "2024-07-04"}});
}

TEST(LocaleDate, ThreeNumbersWithTheYearInFrontAreRead)
{
    expectEverywhere(u"2023-11-09"_qs, "2023-11-09");
    expectEverywhere(u"2023/1/9"_qs, "2023-01-09");
    expectEverywhere(u"2023 1 9"_qs, "2023-01-09");
    expectEverywhere(u"2023-19-01"_qs, "2023-01-19");
}

TEST(LocaleDate, AnOrderThatMakesNoDateIsTriedAnotherWay)
{
    expectEverywhere(u"14/7/2024"_qs, "2024-07-14");
    expectEverywhere(u"7/14/2024"_qs, "2024-07-14");
    expectEverywhere(u"77/6/5"_qs, "1977-06-05");
    expectAll(Examples{
        {u"en_US"_qs, u"14/7/9"_qs, "2014-07-09"},
        {u"en_GB"_qs, u"7/14/9"_qs, "2009-07-14"},
        {u"sv_SE"_qs, u"7-14-9"_qs, "2009-07-14"},
        {u"ja_JP"_qs, u"14-7-2024"_qs, "2024-07-14"},
        {u"en_GB"_qs, u"30/2/12"_qs, "2030-02-12"},
        {u"en_US"_qs, u"2/30/12"_qs, "2002-12-30"},
    });
}

TEST(LocaleDate, ShortYearsAreThoseFrom1950To2049)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4/7/49"_qs, "2049-04-07"},
        {u"en_US"_qs, u"4/7/50"_qs, "1950-04-07"},
        {u"en_US"_qs, u"4/7/7"_qs, "2007-04-07"},
        {u"en_US"_qs, u"4/7/00"_qs, "2000-04-07"},
        {u"en_US"_qs, u"4/7/0049"_qs, "2049-04-07"},
        {u"en_US"_qs, u"4/7/100"_qs, "0100-04-07"},
        {u"de_DE"_qs, u"4.7.99"_qs, "1999-07-04"},
        {u"en_US"_qs, u"4/7/9999"_qs, "9999-04-07"},
        {u"en_US"_qs, u"4/7/10000"_qs, "none"},
        {u"en_US"_qs, u"4/7/67560"_qs, "none"},
        {u"en_US"_qs, u"4/7/102024"_qs, "none"},
        {u"en_US"_qs, u"100014:07"_qs, "none"},
        {u"en_US"_qs, u"4/7/4294969320"_qs, "none"},
        {u"en_US"_qs, u"4/7/18446744073709553640"_qs, "none"},
    });
}

TEST(LocaleDate, ADayThatDoesNotExistIsNone)
{
    for (const char16_t* text : {u"2024-02-30", u"2023-02-29", u"30/2/2024", u"2/30/2024",
                                 u"31/4/2024", u"15/14/2024", u"2024-00-10", u"0/0/0", u"0/5/2024"})
        expectEverywhere(QStringView(text).toString(), "none");
    expectEverywhere(u"2024-02-29"_qs, "2024-02-29");
    expectAll(Examples{
        {u"en_US"_qs, u"30 Feb 2024"_qs, "none"},
        {u"en_US"_qs, u"Feb 29, 2023"_qs, "none"},
        {u"en_US"_qs, u"30 Feb 24"_qs, "none"},
        {u"en_US"_qs, u"31 Nov 24"_qs, "none"},
        {u"en_GB"_qs, u"31-Nov-24"_qs, "none"},
        {u"en_US"_qs, u"Feb 30"_qs, "none"},
        {u"en_US"_qs, u"0 Mar 2024"_qs, "none"},
        {u"en_US"_qs, u"2/30"_qs, "none"},
    });
}

TEST(LocaleDate, ADayWithoutAYearIsOfTheCurrentYear)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4/7"_qs, "2026-04-07"},
        {u"en_GB"_qs, u"4/7"_qs, "2026-07-04"},
        {u"de_DE"_qs, u"4.7"_qs, "2026-07-04"},
        {u"sv_SE"_qs, u"4-7"_qs, "2026-04-07"},
        {u"en_US"_qs, u"14/7"_qs, "2026-07-14"},
        {u"en_GB"_qs, u"7/14"_qs, "2026-07-14"},
        {u"en_US"_qs, u"14/14"_qs, "none"},
        {u"en_GB"_qs, u"4 July"_qs, "2026-07-04"},
        {u"en_US"_qs, u"July 4"_qs, "2026-07-04"},
        {u"de_DE"_qs, u"4. Juli"_qs, "2026-07-04"},
        {u"en_US"_qs, u"2/29"_qs, "none"},
    });
}

TEST(LocaleDate, AMonthWithAYearIsItsFirstDay)
{
    expectEverywhere(u"2024/7"_qs, "2024-07-01");
    expectEverywhere(u"7/2024"_qs, "2024-07-01");
    expectEverywhere(u"7 32"_qs, "2032-07-01");
    expectEverywhere(u"99-7"_qs, "1999-07-01");
    expectEverywhere(u"2024/13"_qs, "none");
    expectEverywhere(u"2024/1999"_qs, "none");
    expectAll(Examples{
        {u"en_US"_qs, u"July 2024"_qs, "2024-07-01"},
        {u"en_GB"_qs, u"2024 Jul"_qs, "2024-07-01"},
        {u"fr_FR"_qs, u"juil. 1999"_qs, "1999-07-01"},
    });
}

TEST(LocaleDate, MonthsHaveTheNamesOfTheLocale)
{
    expectAll(Examples{
        {u"en_US"_qs, u"4 July 2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"July 4, 2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"Jul 4 2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"2024, July 4"_qs, "2024-07-04"},
        {u"en_US"_qs, u"4Jul2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"4-Jul-24"_qs, "2024-07-04"},
        {u"en_US"_qs, u"77-jul-4"_qs, "1977-07-04"},
        {u"en_US"_qs, u"2024 4 July"_qs, "2024-07-04"},
        {u"en_US"_qs, u"jULY 4 2024"_qs, "2024-07-04"},
        {u"en_GB"_qs, u"4 Sept 2024"_qs, "2024-09-04"},
        {u"de_DE"_qs, u"4. Juli 2024"_qs, "2024-07-04"},
        {u"de_DE"_qs, u"4. Sept. 2024"_qs, "2024-09-04"},
        {u"de_DE"_qs, u"4. Sep. 2024"_qs, "2024-09-04"},
        {u"de_DE"_qs, u"4 M\u00C4R 24"_qs, "2024-03-04"},
        {u"fr_FR"_qs, u"14 f\u00E9vr. 2024"_qs, "2024-02-14"},
        {u"fr_FR"_qs, u"14 F\u00C9VRIER 2024"_qs, "2024-02-14"},
        {u"sv_SE"_qs, u"4 maj 24"_qs, "2024-05-04"},
        {u"pl_PL"_qs, u"4 lipca 2024"_qs, "2024-07-04"},
        {u"pl_PL"_qs, u"lipiec 2024"_qs, "2024-07-01"},
        {u"cs_CZ"_qs, u"4. \u010Dervence 2024"_qs, "2024-07-04"},
        {u"cs_CZ"_qs, u"4. \u010Dervna 2024"_qs, "2024-06-04"},
        {u"zh_CN"_qs, u"4 \u5341\u4E8C\u6708 2024"_qs, "2024-12-04"},
    });
}

TEST(LocaleDate, NamesComeInTheCaseOfTheLocaleAndHoweverTheyAreComposed)
{
    expectAll(Examples{
        {u"tr_TR"_qs, u"5 N\u0130SAN 2024"_qs, "2024-04-05"},
        {u"tr_TR"_qs, u"5 nisan 2024"_qs, "2024-04-05"},
        {u"tr_TR"_qs, u"5 KASIM 2024"_qs, "2024-11-05"},
        {u"tr_TR"_qs, u"5 kas\u0131m 2024"_qs, "2024-11-05"},
        {u"de_DE"_qs, u"5. Ma\u0308rz 2024"_qs, "2024-03-05"},
        {u"de_DE"_qs, u"5. MA\u0308RZ 2024"_qs, "2024-03-05"},
        {u"de_DE"_qs, u"5. Marz 2024"_qs, "none"},
        {u"el_GR"_qs, u"5 \u039C\u0391\u03A1\u03A4\u038A\u039F\u03A5 2024"_qs, "2024-03-05"},
        {u"el_GR"_qs, u"\u039C\u03AC\u03C1\u03C4\u03B9\u03BF\u03C3 2024"_qs, "2024-03-01"},
    });
}

TEST(LocaleDate, NamesOfOtherLocalesAndPartsOfNamesAreNone)
{
    expectAll(Examples{
        {u"de_DE"_qs, u"4 July 2024"_qs, "none"},
        {u"en_US"_qs, u"4 Juli 2024"_qs, "none"},
        {u"en_US"_qs, u"4 Ju 2024"_qs, "none"},
        {u"en_US"_qs, u"4 Julx 2024"_qs, "none"},
        {u"en_US"_qs, u"4 Julys 2024"_qs, "none"},
        {u"en_US"_qs, u"July"_qs, "none"},
        {u"en_US"_qs, u"July July 4 2024"_qs, "none"},
        {u"en_US"_qs, u"July 4 July"_qs, "none"},
        {u"en_US"_qs, u"4 July July"_qs, "none"},
        {u"en_US"_qs, u"July 1 2 3"_qs, "none"},
        {u"sv_SE"_qs, u"4 dec 2024"_qs, "none"},
        {u"sv_SE"_qs, u"4 dec. 2024"_qs, "2024-12-04"},
        {u"ja_JP"_qs, u"2024\u5E747\u67084\u65E5"_qs, "none"},
    });
}

TEST(LocaleDate, AWeekdayAtEitherEndIsNotLookedAt)
{
    expectAll(Examples{
        {u"en_US"_qs, u"Thursday, July 4, 2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"Thu 7/4/2024"_qs, "2024-07-04"},
        {u"en_US"_qs, u"July 4 2024 Thu"_qs, "2024-07-04"},
        {u"en_US"_qs, u"Mon July 4 2024"_qs, "2024-07-04"},
        {u"de_DE"_qs, u"Do., 4.7.24"_qs, "2024-07-04"},
        {u"de_DE"_qs, u"Donnerstag, 4. Juli 2024"_qs, "2024-07-04"},
        {u"fi_FI"_qs, u"torstai 4.7.2024"_qs, "2024-07-04"},
        {u"fi_FI"_qs, u"torstaina 4.7.2024"_qs, "2024-07-04"},
        {u"ja_JP"_qs, u"2024/7/4\u6728"_qs, "2024-07-04"},
        {u"en_US"_qs, u"Thu"_qs, "none"},
        {u"en_US"_qs, u"Thu 4"_qs, "none"},
        {u"en_US"_qs, u"Thu 14:07"_qs, "none"},
        {u"en_US"_qs, u"Thu July 4 2024 Thu"_qs, "none"},
        {u"en_US"_qs, u"July Thu 4 2024"_qs, "none"},
    });
}

TEST(LocaleDate, ANameOfBothAWeekdayAndAMonthIsWhatIsMissing)
{
    expectAll(Examples{
        {u"it_IT"_qs, u"5 mar 2024"_qs, "2024-03-05"},
        {u"it_IT"_qs, u"mar 5 mar 2024"_qs, "2024-03-05"},
        {u"it_IT"_qs, u"mar 5 gen 2024"_qs, "2024-01-05"},
        {u"it_IT"_qs, u"mar 5/1/2024"_qs, "2024-01-05"},
        {u"it_IT"_qs, u"mar 2024"_qs, "2024-03-01"},
        {u"it_IT"_qs, u"mar mar 2024"_qs, "2024-03-01"},
    });
}

TEST(LocaleDate, WordsThatTheLocalePutsBetweenFieldsAreSkipped)
{
    expectAll(Examples{
        {u"pt_BR"_qs, u"quinta-feira, 4 de julho de 2024"_qs, "2024-07-04"},
        {u"pt_BR"_qs, u"4 julho 2024"_qs, "2024-07-04"},
        {u"ru_RU"_qs, u"4 \u0438\u044E\u043B\u044F 2024 \u0433."_qs, "2024-07-04"},
        {u"lt_LT"_qs, u"2024 m. liepos 4 d."_qs, "2024-07-04"},
        {u"he_IL"_qs, u"4 \u05D1\u05D9\u05D5\u05DC\u05D9 2024"_qs, "2024-07-04"},
        {u"bg_BG"_qs, u"4.07.24 \u0433."_qs, "2024-07-04"},
        {u"pt_BR"_qs, u"de 4 de julho de 2024"_qs, "none"},
        {u"en_US"_qs, u"4 de July de 2024"_qs, "none"},
        {u"ko_KR"_qs, u"2024\uB144 7 4"_qs, "none"},
        {u"pt_BR"_qs, u"4 "_qs + u"de "_qs.repeated(20) + u"julho 2024"_qs, "2024-07-04"},
        {u"pt_BR"_qs, u"4 "_qs + u"de "_qs.repeated(30) + u"julho 2024"_qs, "none"},
        {u"en_US"_qs, u"4th of July 2024"_qs, "none"},
        {u"pt_BR"_qs, u"quinta-feira de 4 de julho de 2024"_qs, "2024-07-04"},
        {u"pt_BR"_qs, u"4 de de julho 2024"_qs, "2024-07-04"},
        {u"pt_BR"_qs, u"de"_qs, "none"},
    });
}

TEST(LocaleDate, AWordThatIsMoreThanAFillerIsWhatElseItIs)
{
    LocaleDateRules rules = localeDateRules(QLocale(u"en_US"_qs));
    const auto dayIn = [&rules](const QString& text) {
        const auto fields = calendarFieldsOf(text, rules, test::kCurrentYear);
        return fields ? QDate(fields->wYear, fields->wMonth, fields->wDay) : QDate();
    };
    rules.words.push_back({u"of"_qs, {.isFiller = true}});
    EXPECT_EQ(dayIn(u"4 of July 2024"_qs), QDate(2024, 7, 4));
    rules.words.push_back({u"of"_qs, {.month = 3}});
    EXPECT_EQ(dayIn(u"4 of 2024"_qs), QDate(2024, 3, 4));
    EXPECT_EQ(dayIn(u"4 of July 2024"_qs), QDate());
    rules.words.push_back({u"on"_qs, {.isWeekday = true, .isFiller = true}});
    EXPECT_EQ(dayIn(u"July 4 2024 on"_qs), QDate(2024, 7, 4));
    EXPECT_EQ(dayIn(u"July on 4 2024"_qs), QDate());
}

TEST(LocaleDate, AFormatThatLacksAFieldSaysNothingOfTheOrder)
{
    const auto placesIn = [](QStringView format) {
        const FieldOrder order = fieldOrderOf(format);
        return std::array{order.day, order.month, order.year};
    };
    EXPECT_EQ(placesIn(u"MM/dd/yyyy"), (std::array{1, 0, 2}));
    EXPECT_EQ(placesIn(u"dddd yyyy 'd' MMMM d"), (std::array{2, 1, 0}));
    for (const QStringView format : {u"", u"MM/yyyy", u"yyyy-dd", u"yyyy"})
        EXPECT_EQ(placesIn(format), (std::array{0, 1, 2})) << format.toString().toStdString();
}

TEST(LocaleDate, SeparatorsStandBetweenTwoFieldsAndSingly)
{
    for (const char16_t* text :
         {u"/4/7/2024", u"4/7/2024/", u"4/7/2024,", u"4//7/2024", u"4/-7/2024", u"-4/7/2024",
          u"4/7/-2024", u"4/", u"/", u"-", u",", u"4|7|2024", u"4_7_2024", u"4\\7\\2024",
          u"4;7;2024", u"2024\u201307\u201304"})
        expectEverywhere(QStringView(text).toString(), "none");
    expectAll(Examples{
        {u"de_DE"_qs, u"4.7.2024."_qs, "none"},
        {u"ko_KR"_qs, u"24. 7. 4."_qs, "2024-07-04"},
        {u"ko_KR"_qs, u"24. 7. 4.."_qs, "none"},
        {u"hu_HU"_qs, u"2024. j\u00FAlius 4., cs\u00FCt\u00F6rt\u00F6k"_qs, "2024-07-04"},
        {u"hu_HU"_qs, u"2024. 7. 4.,, 14:07"_qs, "none"},
        {u"hu_HU"_qs, u"., 2024. 7. 4."_qs, "none"},
        {u"bg_BG"_qs, u"4.07.2024."_qs, "none"},
        {u"sr_RS"_qs, u"4.7.2024."_qs, "2024-07-04"},
    });
}

TEST(LocaleDate, WhatIsNoDateIsNone)
{
    for (const char16_t* text : {u"",
                                 u" ",
                                 u"\t\n",
                                 u"\u00A0",
                                 u"2024",
                                 u"20240704",
                                 u"4",
                                 u"00004",
                                 u"-4",
                                 u"+4",
                                 u"4.",
                                 u".4",
                                 u"45356.5",
                                 u"45356,5",
                                 u"1E3",
                                 u"0x10",
                                 u"4th",
                                 u"2024-07-04x",
                                 u"x2024-07-04",
                                 u"2024-07-04 2024-07-04",
                                 u"1 2 3 4",
                                 u"1 2 3 4 5 6 7 8 9",
                                 u"(2024-07-04)",
                                 u"today",
                                 u"\u200E2024-07-04",
                                 u"\uFEFF2024-07-04",
                                 u"\uFF12\uFF10\uFF12\uFF14-07-04",
                                 u"\u0662\u0660\u0662\u0664-07-04",
                                 u"\xD835\xDFD0",
                                 u"\xD800",
                                 u"4\xDC00/7/2024"})
        expectEverywhere(QStringView(text).toString(), "none");
}

TEST(LocaleDate, BlanksAroundAreSkippedAndANullEndsTheText)
{
    for (const char16_t* unit :
         {u" ", u"\t", u"\n", u"\u00A0", u"\u2007", u"\u3000", u" \t \r\n"}) {
        const QString blank = QStringView(unit).toString();
        expectEverywhere(blank + u"2024-07-04"_qs + blank, "2024-07-04");
    }
    expectEverywhere(u"2024-07-04"_qs + QChar::Null + u"x"_qs, "2024-07-04");
    expectEverywhere(QChar::Null + u"2024-07-04"_qs, "none");
    expectEverywhere(u"2024-07"_qs + QChar::Null + u"-04"_qs, "2024-07-01");
}

/// Sets the user's locale for as long as it lives.
class UserLocale {
public:
    explicit UserLocale(const QString& name) { QLocale::setDefault(QLocale(name)); }
    ~UserLocale() { QLocale::setDefault(m_before); }
    UserLocale(const UserLocale&) = delete;
    UserLocale& operator=(const UserLocale&) = delete;

private:
    QLocale m_before;
};

TEST(LocaleDate, TheResultIsAnAutomationDateInTheGivenOrTheUsersLocale)
{
    double result = -1;
    EXPECT_TRUE(ParseDateByLocale(u"5/3/2024 18:00"_qs, result, QLocale(u"en_GB"_qs)));
    EXPECT_EQ(result, 45356.75);
    const UserLocale user(u"en_US"_qs);
    EXPECT_TRUE(ParseDateByLocale(u"3/5/2024"_qs, result));
    EXPECT_EQ(result, 45356);
    EXPECT_TRUE(ParseDateByLocale(u"6:00"_qs, result));
    EXPECT_EQ(result, 0.25);
    EXPECT_TRUE(ParseDateByLocale(u"12/29/1899 06:00"_qs, result));
    EXPECT_EQ(result, -1.25);
}

TEST(LocaleDate, TheResultStaysWhereThereIsNone)
{
    for (const char16_t* text :
         {u"", u"4", u"30/2/2024 14:07", u"4/7/2024 24:00", u"14:07 4/7/10000"}) {
        double result = -4711;
        EXPECT_FALSE(ParseDateByLocale(QStringView(text).toString(), result, QLocale(u"en_GB"_qs)));
        EXPECT_EQ(result, -4711) << QStringView(text).toString().toStdString();
    }
}

TEST(LocaleDate, ThePublicConversionKnowsTheCurrentYear)
{
    // The year may turn between the two readings of the clock, once in a while.
    const int before = QDate::currentDate().year();
    double result = 0;
    ASSERT_TRUE(ParseDateByLocale(u"1 July"_qs, result, QLocale(u"en_GB"_qs)));
    const int after = QDate::currentDate().year();
    const QDate date = QDate(1899, 12, 30).addDays(static_cast<qint64>(result));
    EXPECT_EQ(date, QDate(date.year(), 7, 1));
    EXPECT_TRUE(date.year() == before || date.year() == after) << date.year();
}

TEST(LocaleDate, AHostMayTellTheCurrentYear)
{
    for (const auto& text : {u"1 July"_qs, u"1/7"_qs}) {
        double result = 0;
        ASSERT_TRUE(ParseDateByLocale(text, result, QLocale(u"en_GB"_qs), 2024));
        EXPECT_EQ(result, 45474) << text.toStdString();
    }
}

} // namespace
} // namespace condtree
