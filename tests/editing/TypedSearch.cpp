#include <condtree/editing/TypedSearch.h>

#include <support/QtPrinters.h>

#include <gtest/gtest.h>

#include <QStringList>

using namespace condtree;

namespace {

using Rows = std::vector<int>;

/// Two own entries and a tail:
/// 0 Category, 1 FilePath, 2 Revision, 3 Remove, 4 Approver, 5 Café, 6 Résumé, 7 User
class TypedSearchTest : public testing::Test {
protected:
    static ChoiceEntries entries(const QStringList& texts)
    {
        ChoiceEntries made;
        for (const QString& text : texts)
            made.push_back({0, text, -1});
        return made;
    }

    int type(const QString& text, int current)
    {
        for (const QChar letter : text)
            current = search.type(QStringView(&letter, 1), false, current, keys);
        return current;
    }
    int typeAfterPause(const QString& text, int current)
    {
        return search.type(text, true, current, keys);
    }

    ChoiceKeys own{entries({QStringLiteral("Category"), QStringLiteral("FilePath")})};
    ChoiceKeys tail{entries({QStringLiteral("Revision"), QStringLiteral("Remove"),
                             QStringLiteral("Approver"), QStringLiteral("Caf\u00e9"),
                             QStringLiteral("R\u00e9sum\u00e9"), QStringLiteral("User")})};
    ListKeys keys{&own, &tail};
    TypedSearch search;
};

TEST_F(TypedSearchTest, FindsTheFirstRowThatBeginsWithIt)
{
    EXPECT_EQ(type(QStringLiteral("r"), -1), 2);
    EXPECT_EQ(type(QStringLiteral("em"), 2), 3);
    EXPECT_EQ(search.text(), QStringLiteral("rem"));
}

TEST_F(TypedSearchTest, IgnoresCaseAndAccents)
{
    EXPECT_EQ(type(QStringLiteral("RESU"), -1), 6);
    search.clear();
    EXPECT_EQ(type(QStringLiteral("caf\u00c9"), -1), 5);
}

TEST_F(TypedSearchTest, ANewSearchBeginsBehindTheCurrentRowAndWraps)
{
    EXPECT_EQ(type(QStringLiteral("r"), 2), 3);
    search.clear();
    EXPECT_EQ(type(QStringLiteral("r"), 6), 2);
    search.clear();
    EXPECT_EQ(type(QStringLiteral("r"), 7), 2);
}

TEST_F(TypedSearchTest, MoreLettersKeepTheCurrentRowWhereItFits)
{
    EXPECT_EQ(type(QStringLiteral("re"), 2), 3);
    EXPECT_EQ(type(QStringLiteral("m"), 3), 3);
}

TEST_F(TypedSearchTest, TheSameLetterGoesFromRowToRowAndAround)
{
    Rows visited;
    for (int current = -1, i = 0; i < 4; ++i)
        visited.push_back(current = type(QStringLiteral("r"), current));
    EXPECT_EQ(visited, (Rows{2, 3, 6, 2}));
    EXPECT_EQ(search.text(), QStringLiteral("r"));
    EXPECT_EQ(search.shown(), (Rows{0, 2, 3, 4, 6, 7}));
}

TEST_F(TypedSearchTest, ADoubleLetterAtTheBeginningIsFoundWithTheNextLetter)
{
    const ChoiceKeys places(entries({QStringLiteral("Abbey"), QStringLiteral("Aachen")}));
    const ChoiceKeys none;
    const ListKeys list{&places, &none};
    int current = -1;
    for (const QChar letter : QStringLiteral("aac"))
        current = search.type(QStringView(&letter, 1), false, current, list);
    EXPECT_EQ(current, 1);
    EXPECT_EQ(search.shown(), Rows{1});
}

TEST_F(TypedSearchTest, ShowsOnlyTheRowsThatContainIt)
{
    EXPECT_EQ(search.shown(), std::nullopt);
    type(QStringLiteral("v"), -1);
    EXPECT_EQ(search.shown(), (Rows{2, 3, 4}));
    type(QStringLiteral("er"), 2);
    EXPECT_EQ(search.shown(), Rows{4});
}

TEST_F(TypedSearchTest, WhereNoneBeginsSoTheCurrentRowStaysIfItIsShown)
{
    EXPECT_EQ(type(QStringLiteral("v"), 3), 3);
    search.clear();
    EXPECT_EQ(type(QStringLiteral("v"), 7), 2);
    search.clear();
    EXPECT_EQ(type(QStringLiteral("xq"), 7), -1);
    EXPECT_EQ(search.shown(), Rows());
}

TEST_F(TypedSearchTest, BackspaceTakesTheLastCharacterBack)
{
    EXPECT_EQ(type(QStringLiteral("vx"), 3), -1);
    EXPECT_EQ(search.eraseLast(-1, keys), 2);
    EXPECT_EQ(search.text(), QStringLiteral("v"));
    EXPECT_EQ(search.shown(), (Rows{2, 3, 4}));
    EXPECT_EQ(search.eraseLast(3, keys), 3);
    EXPECT_EQ(search.text(), QString());
    EXPECT_EQ(search.shown(), std::nullopt);
    EXPECT_EQ(search.eraseLast(3, keys), 3);
    EXPECT_EQ(search.shown(), std::nullopt);
}

TEST_F(TypedSearchTest, BackspaceTakesARepeatedLetterBackAtOnceAndAPairWhole)
{
    type(QStringLiteral("rr"), -1);
    EXPECT_EQ(search.eraseLast(3, keys), 3);
    EXPECT_EQ(search.shown(), std::nullopt);
    (void)search.type(u"r\U00010400", false, -1, keys);
    (void)search.eraseLast(-1, keys);
    EXPECT_EQ(search.text(), QStringLiteral("r"));
}

TEST_F(TypedSearchTest, AfterAPauseItGoesOnWhereThatFindsSomething)
{
    (void)typeAfterPause(QStringLiteral("v"), -1);
    EXPECT_EQ(typeAfterPause(QStringLiteral("e"), 2), 3);
    EXPECT_EQ(search.text(), QStringLiteral("ve"));
}

TEST_F(TypedSearchTest, AfterAPauseItBeginsAnewWhereGoingOnFindsNothing)
{
    EXPECT_EQ(typeAfterPause(QStringLiteral("u"), -1), 7);
    EXPECT_EQ(typeAfterPause(QStringLiteral("c"), 7), 0);
    EXPECT_EQ(search.text(), QStringLiteral("c"));
    EXPECT_EQ(search.shown(), (Rows{0, 5}));
    EXPECT_EQ(typeAfterPause(QStringLiteral("c"), 0), 5);
}

TEST_F(TypedSearchTest, WithoutTheFilterItShowsAllAndAPauseAlwaysBeginsAnew)
{
    search.setFilter(false);
    EXPECT_EQ(type(QStringLiteral("re"), -1), 2);
    EXPECT_EQ(search.shown(), std::nullopt);
    EXPECT_EQ(typeAfterPause(QStringLiteral("u"), 2), 7);
    EXPECT_EQ(search.text(), QStringLiteral("u"));
    EXPECT_EQ(type(QStringLiteral("q"), 7), 7);
}

TEST_F(TypedSearchTest, AnAccentAloneChangesNothing)
{
    EXPECT_EQ(type(QStringLiteral("\u0301"), 3), 3);
    EXPECT_EQ(search.shown(), std::nullopt);
}

TEST_F(TypedSearchTest, AnEmptyListFindsNothing)
{
    const ChoiceKeys none;
    EXPECT_EQ(search.type(u"a", false, -1, {&none, &none}), -1);
}

} // namespace
