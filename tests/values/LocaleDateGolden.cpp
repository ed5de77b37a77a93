#include <condtree/values/LocaleDate.h>

#include "support/Golden.h"
#include "support/QtPrinters.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace condtree {
namespace {

struct LocaleOfTable {
    const char* name;
    QString lcid;
    QLocale locale;
    /// Texts of rows on which we disagree; docs/limitations.md says why.
    std::vector<QString> disagreements;
};

std::vector<LocaleOfTable> localesOfTable()
{
    return {
        {"en-US", u"0409"_qs, QLocale(QLocale::English, QLocale::UnitedStates), {}},
        {"en-GB", u"0809"_qs, QLocale(QLocale::English, QLocale::UnitedKingdom), {}},
        {"de-DE", u"0407"_qs, QLocale(QLocale::German, QLocale::Germany), {}},
        {"fr-FR", u"040C"_qs, QLocale(QLocale::French, QLocale::France), {}},
        {"sv-SE", u"041D"_qs, QLocale(QLocale::Swedish, QLocale::Sweden), {}},
        {"ja-JP", u"0411"_qs, QLocale(QLocale::Japanese, QLocale::Japan), {}},
    };
}

constexpr double kUntouched = -4711.125;

/// What a locale's rows come to.
struct Agreement {
    int rows = 0;
    std::vector<QString> disagreements;
};

/// A row that both sides accept must name the same date; that is checked here.
Agreement agreementOf(const test::GoldenTable& table, const LocaleOfTable& locale)
{
    Agreement agreement;
    for (const auto& row : table) {
        if (row[u"lcid"_qs] != locale.lcid)
            continue;
        ++agreement.rows;
        const QString escaped = row[u"text_escaped"_qs];
        double date = kUntouched;
        const bool accepts = ParseDateByLocale(test::unescaped(escaped), date, locale.locale);
        const bool isAccepted = row[u"hr_date"_qs] == u"00000000";
        if (accepts != isAccepted)
            agreement.disagreements.push_back(escaped);
        const double expected = !accepts     ? kUntouched
                                : isAccepted ? row[u"date"_qs].toDouble()
                                             : date;
        EXPECT_NEAR(date, expected, 1e-9) << locale.name << ": " << escaped.left(80).toStdString();
    }
    return agreement;
}

TEST(LocaleDateGolden, TextsHaveTheDatesOfTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "locale_date.tsv");
    for (const LocaleOfTable& locale : localesOfTable()) {
        const Agreement agreement = agreementOf(table, locale);
        EXPECT_GT(agreement.rows, 210) << locale.name;
        EXPECT_EQ(agreement.disagreements, locale.disagreements) << locale.name;
        // At least 97 of a hundred rows, whatever the list above comes to hold.
        const double share =
            1 - static_cast<double>(agreement.disagreements.size()) / agreement.rows;
        EXPECT_GE(share, 0.97) << locale.name;
    }
}

} // namespace
} // namespace condtree
