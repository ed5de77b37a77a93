#include <condtree/editing/ChoiceKeys.h>

#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

using namespace condtree;

namespace {

struct Folding {
    const char* name;
    const char16_t* text;
    const char16_t* key;
};

class SearchKey : public testing::TestWithParam<Folding> {};

ChoiceKeys keysOf(const QStringList& texts)
{
    ChoiceEntries entries;
    for (const QString& text : texts)
        entries.push_back({0, text, -1});
    return ChoiceKeys(entries);
}

TEST_P(SearchKey, IsTheSameForATextAloneAndInAList)
{
    const QString text = QString::fromUtf16(GetParam().text);
    const QString key = QString::fromUtf16(GetParam().key);
    EXPECT_EQ(searchKey(text), key);
    const ChoiceKeys keys = keysOf({text});
    EXPECT_TRUE(keys.startsWith(0, key));
    EXPECT_FALSE(keys.contains(0, QString(key + QLatin1Char('x'))));
}

INSTANTIATE_TEST_SUITE_P(
    All, SearchKey,
    testing::Values(Folding{"Case", u"FilePath 9", u"filepath 9"},
                    Folding{"Accents", u"Élan Ça Ångström", u"elan ca angstrom"},
                    Folding{"SeparateAccents", u"E\u0301lan", u"elan"},
                    Folding{"LettersOfSeveral", u"Straße ﬁn", u"strasse fin"},
                    Folding{"Width", u"ＡＢｃ", u"abc"},
                    Folding{"VoicedKanaStayThemselves", u"が", u"か\u3099"},
                    Folding{"Syllables", u"한", u"\u1112\u1161\u11ab"},
                    Folding{"OutsideTheBasicPlane", u"\U00010400", u"\U00010428"},
                    Folding{"HalfAPair", u"a\xD800z", u"a\xFFFDz"}),
    [](const auto& row) { return row.param.name; });

TEST(ChoiceKeys, ATextIsFoundInItsOwnEntryOnly)
{
    const ChoiceKeys keys =
        keysOf({QStringLiteral("ab"), QStringLiteral("ca"), QString(), QStringLiteral("abab")});
    EXPECT_EQ(keys.count(), 4);
    std::vector<int> rows = {7};
    keys.collect(u"ab", 10, rows);
    EXPECT_EQ(rows, (std::vector<int>{7, 10, 13}));
    rows.clear();
    keys.collect(u"bc", 0, rows);
    EXPECT_EQ(rows, std::vector<int>());
    EXPECT_TRUE(keys.contains(1, u"a"));
    EXPECT_FALSE(keys.startsWith(1, u"a"));
    EXPECT_FALSE(keys.contains(2, u"a"));
}

TEST(ChoiceKeys, NothingIsInAnEmptyList)
{
    std::vector<int> rows;
    ChoiceKeys().collect(u"a", 0, rows);
    EXPECT_TRUE(rows.empty());
    EXPECT_EQ(ChoiceKeys().count(), 0);
}

} // namespace
