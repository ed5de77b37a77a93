#include <condtree/platform/NativeText.h>

#include "support/Golden.h"

#include <QStringList>

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace condtree {

namespace {

struct NumberRow {
    const char* name;
    QString text;
    LONG number;
};

/// Two texts, and whether a comparison calls them equal.
struct PairRow {
    const char* name;
    QString a;
    QString b;
    bool equal;
};

bool areLocaleEqual(const QString& a, const QString& b)
{
    return localeFoldedKey(a) == localeFoldedKey(b);
}

std::string inHex(const QString& text)
{
    QStringList units;
    for (const QChar unit : text)
        units += QString::number(unit.unicode(), 16);
    return units.join(u' ').toStdString();
}

/// Texts of letters that fold, combine, are ignored or are halves of pairs.
rc::Gen<QString> textsToFold()
{
    const auto unit = rc::gen::weightedOneOf<char16_t>(
        {{4, rc::gen::element<char16_t>(u'a', u'B', u'Z', u'z', u'1', u'-', u' ')},
         {4, rc::gen::element<char16_t>(u'\u00DF', u'\u00E9', u'\u00C9', u'\u0301', u'\u03C2',
                                        u'\u03A3', u'\u0130', u'\u0131', u'\u212B', u'\uFB03',
                                        u'\u00AD', u'\u200D', u'\u1F88', u'\u0345')},
         {1, rc::gen::element<char16_t>(u'\xD801', u'\xDC00', u'\xDC28')},
         {1, rc::gen::inRange<char16_t>(1, 0xFFFF)}});
    return rc::gen::map(rc::gen::container<std::u16string>(unit),
                        [](const std::u16string& text) { return QString::fromStdU16String(text); });
}

} // namespace

TEST(LeadingNumber, AgreesWithTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "wtoi.tsv");
    int count = 0;
    for (const auto& row : table) {
        if (row[u"crt"_qs] != u"msvcrt.dll"_qs)
            continue;
        ++count;
        const QString text = row[u"text_escaped"_qs];
        EXPECT_EQ(leadingNumber(test::unescaped(text)), row[u"wtoi"_qs].toInt())
            << '"' << text.toStdString() << '"';
    }
    EXPECT_GT(count, 30);
}

TEST(LeadingNumber, ReadsBlanksOneSignAndDigits)
{
    const NumberRow rows[] = {
        {"empty", u""_qs, 0},
        {"digits", u"12"_qs, 12},
        {"leading zeros", u"0007"_qs, 7},
        {"plus", u"+5"_qs, 5},
        {"minus", u"-12"_qs, -12},
        {"two signs", u"--5"_qs, 0},
        {"blank behind the sign", u"- 5"_qs, 0},
        {"blanks and line breaks in front", u" \t\r\n\v\f7"_qs, 7},
        {"no-break and ideographic blanks in front", u"\u00A0\u30007"_qs, 7},
        {"stops at the first other character", u"3 4"_qs, 3},
        {"letters first", u"x1"_qs, 0},
        {"only a sign", u"-"_qs, 0},
        {"a fraction", u"4.9"_qs, 4},
        {"a typographical minus", u"\u22125"_qs, 0},
        {"a null in front", QString(QChar()) + u"5"_qs, 0},
    };
    for (const NumberRow& row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.number) << row.name;
}

TEST(LeadingNumber, SaturatesTo32Bits)
{
    const NumberRow rows[] = {
        {"largest", u"2147483647"_qs, 2147483647},
        {"one more", u"2147483648"_qs, 2147483647},
        {"smallest", u"-2147483648"_qs, -2147483647 - 1},
        {"one less", u"-2147483649"_qs, -2147483647 - 1},
        {"a second turn of 32 bits", u"4294967301"_qs, 2147483647},
        {"beyond 64 bits", QString(40, u'9'), 2147483647},
        {"beyond 64 bits, negative", u"-"_qs + QString(40, u'9'), -2147483647 - 1},
    };
    for (const NumberRow& row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.number) << row.name;
}

TEST(LeadingNumber, TakesTheDecimalDigitsOfOtherScripts)
{
    const NumberRow rows[] = {
        {"Arabic-Indic", u"\u0661\u0662"_qs, 12},
        {"full-width", u"-\uFF11\uFF10"_qs, -10},
        {"behind the digits of a script", u"\u066A"_qs, 0},
        {"a superscript is none", u"\u00B2"_qs, 0},
        {"a mathematical digit is none", u"\U0001D7CF"_qs, 0},
    };
    for (const NumberRow& row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.number) << row.name;
}

TEST(LocaleFoldedKey, AgreesWithTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "lstrcmpi.tsv");
    ASSERT_EQ(table.size(), 241U);
    for (const auto& row : table) {
        const QString a = test::unescaped(row[u"a_escaped"_qs]);
        const QString b = test::unescaped(row[u"b_escaped"_qs]);
        EXPECT_EQ(areLocaleEqual(a, b), row[u"lstrcmpiW"_qs] == u"0"_qs)
            << a.toStdString() << " / " << b.toStdString();
    }
}

TEST(LocaleFoldedKey, TellsNamesApartAsTheNativeComparisonDoes)
{
    const PairRow rows[] = {
        {"letter case", u"Project No"_qs, u"pROJECT nO"_qs, true},
        {"other letters", u"Project"_qs, u"Projekt"_qs, false},
        {"a blank more", u"a"_qs, u"a "_qs, false},
        {"a hyphen", u"co-op"_qs, u"coop"_qs, false},
        {"composed and decomposed", u"\u00E9cole"_qs, u"E\u0301COLE"_qs, true},
        {"the order of marks", u"a\u0323\u0307"_qs, u"A\u0307\u0323"_qs, true},
        {"an accent more", u"ecole"_qs, u"\u00E9cole"_qs, false},
        {"the angstrom sign", u"\u212B"_qs, u"\u00E5"_qs, true},
        {"sharp s and ss", u"Stra\u00DFe"_qs, u"STRASSE"_qs, true},
        {"capital sharp s and ss", u"\u1E9E"_qs, u"ss"_qs, true},
        {"sharp s and one s", u"\u00DF"_qs, u"s"_qs, false},
        {"final sigma", u"\u03BF\u03B4\u03BF\u03C2"_qs, u"\u039F\u0394\u039F\u03A3"_qs, true},
        {"a ligature", u"\uFB01le"_qs, u"FILE"_qs, true},
        {"an iota below", u"\u1F80"_qs, u"\u1F08\u0399"_qs, true},
        {"an Armenian ligature", u"\u0587"_qs, u"\u0535\u0552"_qs, true},
        {"a dotted capital i", u"\u0130"_qs, u"i\u0307"_qs, true},
        {"a dotless i", u"\u0131"_qs, u"i"_qs, false},
        {"a pair of surrogates", u"\U00010400"_qs, u"\U00010428"_qs, true},
        {"half a pair", QString(QChar(0xD801)), QString(QChar(0xD800)), false},
        {"a soft hyphen", u"co\u00ADop"_qs, u"coop"_qs, true},
        {"a joiner", u"a\u200Db"_qs, u"AB"_qs, true},
        {"a variation selector beyond 16 bits", u"a\U000E0100"_qs, u"a"_qs, true},
        {"a joiner between a letter and its mark", u"e\u034F\u0301"_qs, u"\u00E9"_qs, true},
        {"only ignorable characters", u"\u200B\uFEFF"_qs, u""_qs, true},
        {"what follows a null", u"ab"_qs + QChar() + u"c"_qs, u"AB"_qs, true},
        {"what follows a null, in other letters", u"\u00E9"_qs + QChar() + u"c"_qs, u"\u00C9"_qs,
         true},
    };
    for (const PairRow& row : rows)
        EXPECT_EQ(areLocaleEqual(row.a, row.b), row.equal) << row.name;
}

TEST(LocaleFoldedKey, SharesATextThatIsItsOwnKey)
{
    const QString name = u"revision 12_b"_qs;
    EXPECT_EQ(localeFoldedKey(name).constData(), name.constData());
}

RC_GTEST_PROP(LocaleFoldedKey, DoesNotDependOnNormalisationOrCase, ())
{
    const QString text = *textsToFold();
    RC_LOG() << inHex(text);
    const QString key = localeFoldedKey(text);
    RC_ASSERT(localeFoldedKey(text.normalized(QString::NormalizationForm_C)) == key);
    RC_ASSERT(localeFoldedKey(text.normalized(QString::NormalizationForm_D)) == key);
    RC_ASSERT(localeFoldedKey(key) == key);
    // The one mark that folds to a letter cannot be reordered any more once it is folded.
    if (!text.contains(QChar(0x345)))
        RC_ASSERT(localeFoldedKey(simpleFoldedKey(text)) == key);
}

TEST(SimpleFolding, TellsTextsApartLetterByLetter)
{
    const PairRow rows[] = {
        {"empty", u""_qs, u""_qs, true},
        {"letter case", u"Group A"_qs, u"gROUP a"_qs, true},
        {"letter case of other scripts", u"\u00C9\u0416"_qs, u"\u00E9\u0436"_qs, true},
        {"a pair of surrogates", u"\U00010400x"_qs, u"\U00010428X"_qs, true},
        {"half a pair", QString(QChar(0xDC00)), QString(QChar(0xDC28)), false},
        {"final sigma", u"\u03C2"_qs, u"\u03A3"_qs, true},
        {"shorter", u"Item"_qs, u"Ite"_qs, false},
        {"sharp s and ss", u"\u00DF"_qs, u"ss"_qs, false},
        {"composed and decomposed", u"\u00E9"_qs, u"e\u0301"_qs, false},
        {"a soft hyphen", u"a\u00ADb"_qs, u"ab"_qs, false},
        {"a dotted capital i", u"\u0130"_qs, u"i"_qs, false},
        {"a dotless i", u"\u0131"_qs, u"I"_qs, false},
        {"half a pair beside letters", u"\u03A3"_qs + QChar(0xDC00), u"\u03C3"_qs + QChar(0xDC01),
         false},
        {"behind a null", u"a"_qs + QChar() + u"\u00C9"_qs, u"A"_qs + QChar() + u"\u00E9"_qs, true},
        {"a null more", u"\u00C9"_qs + QChar(), u"\u00E9"_qs, false},
    };
    for (const PairRow& row : rows) {
        EXPECT_EQ(equalsNoCase(row.a, row.b), row.equal) << row.name;
        EXPECT_EQ(simpleFoldedKey(row.a) == simpleFoldedKey(row.b), row.equal) << row.name;
    }
}

TEST(SimpleFolding, AgreesWithTheNativePlatform)
{
    CONDTREE_GOLDEN_TABLE(table, "lstrcmpi.tsv");
    int count = 0;
    for (const auto& row : table) {
        const QString expected = row[u"wcsicmp_msvcrt"_qs];
        if (expected.isEmpty())
            continue;
        ++count;
        const QString a = test::unescaped(row[u"a_escaped"_qs]);
        const QString b = test::unescaped(row[u"b_escaped"_qs]);
        EXPECT_EQ(equalsNoCase(a, b), expected == u"0"_qs)
            << a.toStdString() << " / " << b.toStdString();
        EXPECT_EQ(simpleFoldedKey(a) == simpleFoldedKey(b), expected == u"0"_qs)
            << a.toStdString() << " / " << b.toStdString();
    }
    EXPECT_GT(count, 200);
}

TEST(SimpleFolding, SharesATextThatIsItsOwnKey)
{
    const QString name = u"group 12_b"_qs;
    EXPECT_EQ(simpleFoldedKey(name).constData(), name.constData());
}

RC_GTEST_PROP(SimpleFolding, GivesEqualKeysExactlyToEqualTexts, ())
{
    const QString a = *textsToFold();
    const QString b =
        *rc::gen::element(a.toUpper(), a.toLower(), simpleFoldedKey(a), *textsToFold());
    RC_LOG() << inHex(a) << " / " << inHex(b);
    RC_ASSERT(equalsNoCase(a, b) == (simpleFoldedKey(a) == simpleFoldedKey(b)));
}

} // namespace condtree
