#include <condtree/values/LocaleDate.h>

#include <condtree/platform/Automation.h>

#include "values/LocaleDateText.h"

#include <QDate>
#include <QElapsedTimer>

#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace condtree {
namespace {

struct WrittenLocale {
    QString name;
    /// False where the long form has signs that touch its numbers and are no separators.
    bool readsLongForm = true;
};

const std::vector<WrittenLocale>& writtenLocales()
{
    static const std::vector<WrittenLocale> locales{
        {u"en_US"_qs}, {u"en_GB"_qs},        {u"de_DE"_qs},        {u"fr_FR"_qs},
        {u"sv_SE"_qs}, {u"ja_JP"_qs, false}, {u"pl_PL"_qs},        {u"cs_CZ"_qs},
        {u"ru_RU"_qs}, {u"zh_CN"_qs, false}, {u"ko_KR"_qs, false}, {u"pt_BR"_qs},
        {u"it_IT"_qs}, {u"nl_NL"_qs},        {u"fi_FI"_qs},        {u"el_GR"_qs},
    };
    return locales;
}

std::string toText(const QDate& date)
{
    return date.isValid() ? date.toString(Qt::ISODate).toStdString() : "none";
}

/// What a text is read as, with the locale gathered once.
std::string dayOf(const QString& text, const LocaleDateRules& rules)
{
    const auto fields = calendarFieldsOf(text, rules, test::kCurrentYear);
    return toText(fields ? QDate(fields->wYear, fields->wMonth, fields->wDay) : QDate());
}

void expectReadsWhatItWrites(const WrittenLocale& written, QLocale::FormatType form, bool reads)
{
    const QLocale locale(written.name);
    const LocaleDateRules rules = localeDateRules(locale);
    for (int month = 1; month <= 12; ++month) {
        for (const int day : {1, 2, 9, 12, 13, 28}) {
            for (const int year : {1950, 1999, 2001, 2024, 2031, 2049}) {
                const QDate date(year, month, day);
                const QString text = locale.toString(date, form);
                EXPECT_EQ(dayOf(text, rules), toText(reads ? date : QDate()))
                    << written.name.toStdString() << ": " << text.toStdString();
            }
        }
    }
}

TEST(LocaleDateProperties, TheShortFormOfALocaleReadsBack)
{
    for (const WrittenLocale& written : writtenLocales())
        expectReadsWhatItWrites(written, QLocale::ShortFormat, true);
}

TEST(LocaleDateProperties, TheLongFormOfALocaleReadsBack)
{
    for (const WrittenLocale& written : writtenLocales())
        expectReadsWhatItWrites(written, QLocale::LongFormat, written.readsLongForm);
}

TEST(LocaleDateProperties, MonthsReadBackByAllTheirNames)
{
    for (const WrittenLocale& written : writtenLocales()) {
        const QLocale locale(written.name);
        const LocaleDateRules rules = localeDateRules(locale);
        for (int month = 1; month <= 12; ++month) {
            for (const auto form : {QLocale::LongFormat, QLocale::ShortFormat}) {
                for (const QString& name :
                     {locale.monthName(month, form), locale.standaloneMonthName(month, form)}) {
                    const bool isNumbered = name.front().isDigit();
                    EXPECT_EQ(dayOf(u"4 "_qs + name + u" 2024"_qs, rules),
                              toText(isNumbered ? QDate() : QDate(2024, month, 4)))
                        << written.name.toStdString() << ": " << name.toStdString();
                }
            }
        }
    }
}

TEST(LocaleDateProperties, EveryLocaleReadsNumbersInItsOwnOrder)
{
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(all.size(), 300);
    for (const QLocale& locale : all) {
        const QString form = locale.dateFormat(QLocale::ShortFormat);
        const auto place = [&form](QChar field) { return form.indexOf(field); };
        const bool yearLeads = place(u'y') < place(u'd');
        const bool monthLeads = place(u'M') < place(u'd');
        const QString text = yearLeads ? u"11-4-7"_qs : u"4-7-11"_qs;
        const std::string expected = yearLeads || monthLeads ? "2011-04-07" : "2011-07-04";
        EXPECT_EQ(dayOf(text, localeDateRules(locale)), expected)
            << locale.name().toStdString() << ": " << form.toStdString();
    }
}

/// How many forms of a locale were read as what they say, and how many were refused; never as
/// another moment.
struct ReadBack {
    int read = 0;
    int refused = 0;

    void count(const std::string& found, const std::string& expected, const QString& text,
               const QLocale& locale)
    {
        EXPECT_TRUE(found == expected || found == "none")
            << locale.name().toStdString() << ": " << text.toStdString() << " is " << found;
        ++(found == "none" ? refused : read);
    }

    [[nodiscard]] double refusedShare() const { return double(refused) / (read + refused); }
};

TEST(LocaleDateProperties, NoLocaleReadsItsOwnFormsAsAnotherMoment)
{
    ReadBack shortDates;
    ReadBack longDates;
    ReadBack times;
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    for (const QLocale& locale : all) {
        const LocaleDateRules rules = localeDateRules(locale);
        for (int month = 1; month <= 12; ++month) {
            const QDate date(2000 + 2 * month, month, 2 * month);
            const QString inShort = locale.toString(date, QLocale::ShortFormat);
            const QString inLong = locale.toString(date, QLocale::LongFormat);
            shortDates.count(dayOf(inShort, rules), toText(date), inShort, locale);
            longDates.count(dayOf(inLong, rules), toText(date), inLong, locale);
            const QTime time(2 * month - 1, 5 * month - 1);
            const QString inTime = locale.toString(time, QLocale::ShortFormat);
            times.count(test::read(inTime, locale.name()),
                        "1899-12-30 " + time.toString(Qt::ISODate).toStdString(), inTime, locale);
        }
    }
    // Mostly digits other than 0 to 9; docs/limitations.md has the kinds.
    EXPECT_LT(shortDates.refusedShare(), 0.12);
    EXPECT_LT(longDates.refusedShare(), 0.16);
    EXPECT_LT(times.refusedShare(), 0.12);
}

rc::Gen<QString> dateLikeTexts()
{
    const auto piece = rc::gen::element(
        u" "_qs, u"/"_qs, u"-"_qs, u"."_qs, u":"_qs, u","_qs, u"1"_qs, u"5"_qs, u"13"_qs, u"32"_qs,
        u"2024"_qs, u"99999999999"_qs, u"Mar"_qs, u"M\u00E4rz"_qs, u"mar"_qs, u"Tue"_qs, u"PM"_qs,
        u"de"_qs, u"\uC624\uD6C4"_qs, u"\u6708"_qs, u"x"_qs, QString(QChar(0xD800)),
        QString(QChar::Null));
    return rc::gen::map(rc::gen::container<std::vector<QString>>(piece),
                        [](const std::vector<QString>& pieces) {
                            QString text;
                            for (const QString& part : pieces)
                                text += part;
                            return text;
                        });
}

RC_GTEST_PROP(LocaleDateProperties, AnyTextIsADateWithFieldsOrLeavesTheResult, ())
{
    const QString text = *dateLikeTexts();
    const QString name = (*rc::gen::elementOf(writtenLocales())).name;
    double result = -4711.125;
    if (!ParseDateByLocale(text, result, QLocale(name))) {
        RC_ASSERT(result == -4711.125);
        return;
    }
    SYSTEMTIME fields{};
    double again = 0;
    RC_ASSERT(VariantTimeToSystemTime(result, fields));
    RC_ASSERT(SystemTimeToVariantTime(fields, again));
    RC_ASSERT(std::fabs(again - result) < 1e-9);
}

RC_GTEST_PROP(LocaleDateProperties, BlanksAroundAndWhatFollowsANullChangeNothing, ())
{
    const QString text = *dateLikeTexts();
    const QString name = (*rc::gen::elementOf(writtenLocales())).name;
    const QString framed =
        u" \t"_qs + text.section(QChar::Null, 0, 0) + u"\n "_qs + QChar::Null + text;
    RC_ASSERT(test::read(framed, name) == test::read(text, name));
}

TEST(LocaleDateProperties, AMegabyteOfAnythingIsReadInNoTime)
{
    constexpr qsizetype kUnits = 1024 * 1024;
    const std::vector<QString> pieces{u"1"_qs,
                                      u" "_qs,
                                      u"/"_qs,
                                      u":"_qs,
                                      u"."_qs,
                                      u"1/"_qs,
                                      u"1 "_qs,
                                      u": "_qs,
                                      u"a"_qs,
                                      u"Mar "_qs,
                                      u"de "_qs,
                                      u"1:"_qs,
                                      u"PM"_qs,
                                      u"Tuesday"_qs,
                                      QString(QChar::Null),
                                      QString(QChar(0xD800)),
                                      u"\u0665"_qs,
                                      u"\u6708"_qs};
    QElapsedTimer timer;
    timer.start();
    for (const QString& piece : pieces) {
        for (const QString& locale : {u"en_US"_qs, u"de_DE"_qs, u"pt_BR"_qs, u"ja_JP"_qs}) {
            const QString text = piece.repeated(kUnits / piece.size());
            EXPECT_EQ(test::read(text, locale), "none") << piece.toStdString();
        }
    }
    // 72 MB; anything worse than linear takes hours.
    EXPECT_LT(timer.elapsed(), 60'000);
}

TEST(LocaleDateProperties, LongBlanksNumbersAndRunsAreStillPartsOfADate)
{
    const QString blanks = u" "_qs.repeated(1024 * 1024);
    const QString zeros = u"0"_qs.repeated(1024 * 1024);
    EXPECT_EQ(test::read(blanks + u"4/7/2024"_qs + blanks, u"en_US"_qs), "2024-04-07 00:00:00");
    EXPECT_EQ(test::read(zeros + u"4/7/2024"_qs, u"en_US"_qs), "2024-04-07 00:00:00");
    EXPECT_EQ(test::read(u"14"_qs + u":"_qs.repeated(1024 * 1024) + u"07"_qs, u"en_US"_qs),
              "1899-12-30 14:07:00");
}

} // namespace
} // namespace condtree
