#include <condtree/editing/ListSearch.h>

#include <QStringList>

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace condtree {
namespace {

int find(const QStringList& list, const QString& text, int start)
{
    return findStringExact(
        std::size_t(list.size()), [&list](int i) { return QStringView(list[i]); }, text, start);
}

const QStringList kList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("A"),
                        QStringLiteral("c"), QStringLiteral("a")};

} // namespace

TEST(ListSearch, BeginsBehindTheStartWrapsAndEndsWithIt)
{
    const int found[] = {2, 2, 4, 4, 0};
    for (int start = 0; start < 5; ++start)
        EXPECT_EQ(find(kList, QStringLiteral("a"), start), found[start]) << start;
    for (int start = 0; start < 5; ++start)
        EXPECT_EQ(find(kList, QStringLiteral("b"), start), 1) << start;
    for (int start = 0; start < 5; ++start)
        EXPECT_EQ(find(kList, QStringLiteral("c"), start), 3) << start;
}

TEST(ListSearch, WithoutAStartBeginsAtTheFirst)
{
    EXPECT_EQ(find(kList, QStringLiteral("a"), -1), 0);
    EXPECT_EQ(find(kList, QStringLiteral("c"), -1), 3);
}

TEST(ListSearch, WithAStartOutsideTheListBeginsAtTheFirst)
{
    for (const int start :
         {-2, 5, 6, 100, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(find(kList, QStringLiteral("a"), start), 0) << start;
        EXPECT_EQ(find(kList, QStringLiteral("c"), start), 3) << start;
        EXPECT_EQ(find(kList, QStringLiteral("d"), start), -1) << start;
    }
}

TEST(ListSearch, FindsWholeTextsOnly)
{
    const QStringList list{QStringLiteral("Weight of it"), QStringLiteral("Weigh"),
                           QStringLiteral("Weight ")};
    for (int start = -1; start < 3; ++start)
        EXPECT_EQ(find(list, QStringLiteral("Weight"), start), -1) << start;
}

TEST(ListSearch, IgnoresCaseCodePointByCodePoint)
{
    const QStringList list{QStringLiteral("Stra\u00DFe"), QStringLiteral("\u00C9t\u00E9"),
                           QString::fromUcs4(U"\U00010400"), QStringLiteral("\u03A3")};
    EXPECT_EQ(find(list, QStringLiteral("STRASSE"), -1), -1);
    EXPECT_EQ(find(list, QStringLiteral("STRA\u00DFE"), -1), 0);
    EXPECT_EQ(find(list, QStringLiteral("\u00E9T\u00C9"), -1), 1);
    EXPECT_EQ(find(list, QStringLiteral("e\u0301t\u00E9"), -1), -1);
    EXPECT_EQ(find(list, QString::fromUcs4(U"\U00010428"), -1), 2);
    EXPECT_EQ(find(list, QStringLiteral("\u03C2"), -1), 3);
}

TEST(ListSearch, InAnEmptyListFindsNothing)
{
    for (const int start : {-1, 0, 1})
        EXPECT_EQ(find({}, QStringLiteral("a"), start), -1);
    EXPECT_EQ(find({}, QString(), 0), -1);
}

TEST(ListSearch, OfAnEmptyTextFindsAnEmptyEntryOnly)
{
    EXPECT_EQ(find({QStringLiteral("a"), QString()}, QString(), -1), 1);
    EXPECT_EQ(find({QStringLiteral("a")}, QString(), 0), -1);
}

TEST(ListSearch, OfOneEntryFindsItFromItself)
{
    EXPECT_EQ(find({QStringLiteral("a")}, QStringLiteral("A"), 0), 0);
}

TEST(ListSearch, LooksAtEveryEntryOnce)
{
    for (const int start : {-1, 0, 41, 99}) {
        int looks = 0;
        const int found = findStringExact(
            100,
            [&looks](int) {
                ++looks;
                return QStringView(u"a");
            },
            u"b", start);
        EXPECT_EQ(found, -1);
        EXPECT_EQ(looks, 100) << start;
    }
}

} // namespace condtree
