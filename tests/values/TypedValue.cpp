#include <condtree/values/TypedValue.h>

#include <gtest/gtest.h>

#include <string>

namespace condtree {

namespace {

using Parser = ComboCmd (*)(CString&);

struct ParseRow {
    const char* name;
    QString text;
    int command;
    QString rest;
};

template <std::size_t Count>
void expectParsed(Parser parse, const ParseRow (&rows)[Count])
{
    for (const ParseRow& row : rows) {
        CString text = row.text;
        EXPECT_EQ(parse(text), row.command) << row.name;
        EXPECT_TRUE(text == row.rest) << row.name << ": " << text.toStdString();
    }
}

/// A row for the two parsers of one scheme, with the operator's offset from the equality.
struct SchemeRow {
    const char* name;
    const char16_t* text;
    int offset;
    const char16_t* rest;
};

constexpr SchemeRow kScheme[] = {
    {"empty", u"", 0, u""},
    {"bare", u"5", 0, u"5"},
    {"equal", u"=5", 0, u"5"},
    {"a lone equal sign", u"=", 0, u""},
    {"only the first equal sign", u"==5", 0, u"=5"},
    {"not equal", u"!=5", 1, u"5"},
    {"a lone exclamation mark already means not equal", u"!5", 1, u"5"},
    {"only an exclamation mark", u"!", 1, u""},
    {"blank behind the exclamation mark", u"! = 5", 1, u" = 5"},
    {"less", u"<5", 2, u"5"},
    {"bigger", u">5", 3, u"5"},
    {"less or equal", u"<=5", 4, u"5"},
    {"bigger or equal", u">=5", 5, u"5"},
    {"only less", u"<", 2, u""},
    {"only bigger", u">", 3, u""},
    {"only less or equal", u"<=", 4, u""},
    {"only bigger or equal", u">=", 5, u""},
    {"less and bigger is no operator", u"<>5", 2, u">5"},
    {"the wrong way round", u"=>5", 0, u">5"},
    {"wildcards mean nothing", u"%5%", 0, u"%5%"},
    {"wildcards behind not equal stay", u"!=%5%", 1, u"%5%"},
    {"nothing is trimmed", u"!= 5 ", 1, u" 5 "},
    {"nothing is trimmed in front either", u" >5", 0, u" >5"},
    {"no number and no date", u">=abc", 5, u"abc"},
};

void expectScheme(Parser parse, int equalTo)
{
    for (const SchemeRow& row : kScheme) {
        CString text = QString::fromUtf16(row.text);
        EXPECT_EQ(parse(text), equalTo + row.offset) << row.name;
        EXPECT_EQ(text.toStdString(), QString::fromUtf16(row.rest).toStdString()) << row.name;
    }
}

struct CompareRow {
    const char* name;
    QString text;
    LONG argType;
    LONG current;
    int command;
    QString rest;
};

template <std::size_t Count>
void expectCompared(const CompareRow (&rows)[Count])
{
    for (const CompareRow& row : rows) {
        CString text = row.text;
        EXPECT_EQ(compareType(text, row.argType, static_cast<ComboCmd>(row.current)), row.command)
            << row.name;
        EXPECT_TRUE(text == row.rest) << row.name << ": " << text.toStdString();
    }
}

std::string altered(const QString& text, LONG command)
{
    CString result = text;
    alterArgument(result, command);
    return result.toStdString();
}

} // namespace

TEST(ParseString, TakesAnEmptyTextForAnEquality)
{
    const ParseRow rows[] = {{"empty", u""_qs, 100, u""_qs}, {"null", QString(), 100, u""_qs}};
    expectParsed(parseString, rows);
}

TEST(ParseString, TakesAnEqualSignForAnEqualityOrAPattern)
{
    const ParseRow rows[] = {
        {"plain", u"=abc"_qs, 100, u"abc"_qs},
        {"alone", u"="_qs, 100, u""_qs},
        {"percent", u"=a%"_qs, 108, u"a%"_qs},
        {"percent first", u"=%a%"_qs, 108, u"%a%"_qs},
        {"underscore", u"=a_b"_qs, 108, u"a_b"_qs},
        {"bracket", u"=[ab]"_qs, 108, u"[ab]"_qs},
        {"a closing bracket alone is none", u"=a]"_qs, 100, u"a]"_qs},
        {"not trimmed", u"= a "_qs, 100, u" a "_qs},
        {"only the first sign", u"==a"_qs, 100, u"=a"_qs},
        {"another operator behind it", u"=>a"_qs, 100, u">a"_qs},
    };
    expectParsed(parseString, rows);
}

TEST(ParseString, TrimsOnlyBehindNotEqual)
{
    const ParseRow rows[] = {
        {"plain", u"!=open"_qs, 101, u"open"_qs},
        {"alone", u"!="_qs, 101, u""_qs},
        {"blanks around", u"!= \t open \n"_qs, 101, u"open"_qs},
        {"blanks inside stay", u"!=a b"_qs, 101, u"a b"_qs},
        {"only blanks", u"!=   "_qs, 101, u""_qs},
        {"a pair of wildcards", u"!=%x%"_qs, 107, u"x"_qs},
        {"trimmed before the wildcards are looked for", u"!= %x% "_qs, 107, u"x"_qs},
        {"not trimmed within the wildcards", u"!=% x %"_qs, 107, u" x "_qs},
        {"no closing wildcard", u"!=%abc"_qs, 101, u"%abc"_qs},
        {"no opening wildcard", u"!=abc%"_qs, 101, u"abc%"_qs},
        {"wildcards inside stay", u"!=a%b_c["_qs, 101, u"a%b_c["_qs},
        {"a single wildcard is first and last", u"!=%"_qs, 107, u""_qs},
        {"two wildcards", u"!=%%"_qs, 107, u""_qs},
        {"only the outer pair goes", u"!=%%x%%"_qs, 107, u"%x%"_qs},
        {"a second operator stays", u"!=!=x"_qs, 101, u"!=x"_qs},
    };
    expectParsed(parseString, rows);
}

TEST(ParseString, HasNoOperatorForAnExclamationMarkAlone)
{
    const ParseRow rows[] = {
        {"text behind it", u"!x"_qs, -1, u"x"_qs},
        {"alone", u"!"_qs, -1, u""_qs},
        {"twice", u"!!=x"_qs, -1, u"!=x"_qs},
        {"blank between it and the equal sign", u"! = x"_qs, -1, u" = x"_qs},
        {"wildcards behind it", u"!%x%"_qs, -1, u"%x%"_qs},
    };
    expectParsed(parseString, rows);
    EXPECT_EQ(kNoOperator, -1);
}

TEST(ParseString, TakesAPairOfWildcardsForContains)
{
    const ParseRow rows[] = {
        {"a pair", u"%pump%"_qs, 106, u"pump"_qs},
        {"a single one is both", u"%"_qs, 106, u""_qs},
        {"nothing between", u"%%"_qs, 106, u""_qs},
        {"only the outer pair goes", u"%%a%%"_qs, 106, u"%a%"_qs},
        {"not trimmed", u"% a %"_qs, 106, u" a "_qs},
        {"no closing one", u"%abc"_qs, 100, u"%abc"_qs},
        {"no closing one, with other wildcards", u"%a_[b"_qs, 100, u"%a_[b"_qs},
        {"a blank behind the closing one", u"%a% "_qs, 100, u"%a% "_qs},
    };
    expectParsed(parseString, rows);
}

TEST(ParseString, TakesTheOrderings)
{
    const ParseRow rows[] = {
        {"bigger or equal", u">=a"_qs, 105, u"a"_qs},
        {"bigger", u">a"_qs, 103, u"a"_qs},
        {"less or equal", u"<=a"_qs, 104, u"a"_qs},
        {"less", u"<a"_qs, 102, u"a"_qs},
        {"only bigger or equal", u">="_qs, 105, u""_qs},
        {"only bigger", u">"_qs, 103, u""_qs},
        {"only less or equal", u"<="_qs, 104, u""_qs},
        {"only less", u"<"_qs, 102, u""_qs},
        {"less and bigger is no operator", u"<>x"_qs, 102, u">x"_qs},
        {"twice", u">>x"_qs, 103, u">x"_qs},
        {"wildcards stay", u">%x%"_qs, 103, u"%x%"_qs},
        {"not trimmed", u"> x "_qs, 103, u" x "_qs},
        {"blank before the equal sign", u"> =x"_qs, 103, u" =x"_qs},
    };
    expectParsed(parseString, rows);
}

TEST(ParseString, TakesAnythingElseForAnEqualityOrAPattern)
{
    const ParseRow rows[] = {
        {"plain", u"abc"_qs, 100, u"abc"_qs},
        {"percent", u"abc%"_qs, 108, u"abc%"_qs},
        {"underscore", u"a_b"_qs, 108, u"a_b"_qs},
        {"brackets", u"a[1]"_qs, 108, u"a[1]"_qs},
        {"operators inside", u"a>=b"_qs, 100, u"a>=b"_qs},
        {"a blank before the operator", u" =a"_qs, 100, u" =a"_qs},
        {"blanks stay", u" a "_qs, 100, u" a "_qs},
        {"full-width signs are none", u"\uFF1Ea\uFF05"_qs, 100, u"\uFF1Ea\uFF05"_qs},
        {"half a pair", QString(QChar(0xD800)) + u'_', 108, QString(QChar(0xD800)) + u'_'},
    };
    expectParsed(parseString, rows);
}

TEST(ParseNumber, TakesTheOperatorsOnNumbers)
{
    expectScheme(parseNumber, 120);
}

TEST(ParseNumber, TakesALoneExclamationMarkForNotEqual)
{
    const ParseRow rows[] = {{"lone", u"!5"_qs, 121, u"5"_qs}};
    expectParsed(parseNumber, rows);
}

TEST(ParseDate, TakesTheOperatorsOnDates)
{
    expectScheme(parseDate, 130);
}

TEST(ParseDate, TakesBiggerOrEqual)
{
    const ParseRow rows[] = {{"date", u">=2024-05-01"_qs, 135, u"2024-05-01"_qs}};
    expectParsed(parseDate, rows);
}

TEST(CompareType, LeavesAValueUnderAnEqualityUntouched)
{
    for (const LONG argType : {-1, 0, 1, 2, 3, 4, 5, 6}) {
        for (const LONG current : {100, 108}) {
            for (const QString& value : {u">5"_qs, u"  !=x "_qs, u"%a%"_qs, u""_qs}) {
                const CompareRow rows[] = {{"row", value, argType, current, current, value}};
                expectCompared(rows);
            }
        }
    }
}

TEST(CompareType, ParsesATextRow)
{
    const CompareRow rows[] = {
        {"from the text", u" >=b "_qs, 1, 160, 105, u"b"_qs},
        {"contains", u" %pump% "_qs, 1, 160, 106, u"pump"_qs},
        {"whatever the current operator is", u"!=%x%"_qs, 1, 101, 107, u"x"_qs},
        {"also a number's", u"abc"_qs, 1, 120, 100, u"abc"_qs},
        {"also none", u"a_"_qs, 1, -1, 108, u"a_"_qs},
        {"no operator", u"!x"_qs, 1, 160, -1, u"x"_qs},
        {"only blanks", u" \t\r\n "_qs, 1, 160, 100, u""_qs},
    };
    expectCompared(rows);
}

TEST(CompareType, ParsesANumericRowUnlessItsOperatorIsOnTexts)
{
    const CompareRow rows[] = {
        {"from the text", u"  >5 "_qs, 2, 160, 123, u"5"_qs},
        {"second kind", u"!5"_qs, 3, 160, 121, u"5"_qs},
        {"a number's operator", u"<=5"_qs, 2, 120, 124, u"5"_qs},
        {"a date's operator", u"5"_qs, 3, 135, 120, u"5"_qs},
        {"just below the operators on texts", u">5"_qs, 2, 99, 123, u"5"_qs},
        {"just above the operators on texts", u">5"_qs, 2, 109, 123, u"5"_qs},
        {"none", u"5"_qs, 3, -1, 120, u"5"_qs},
        {"an equality", u">5"_qs, 2, 100, 100, u">5"_qs},
        {"contains stays", u" %5% "_qs, 2, 106, 106, u"5"_qs},
        {"first other operator on texts stays", u">5"_qs, 3, 101, 101, u"5"_qs},
        {"last other operator on texts stays", u"!=%5%"_qs, 3, 107, 107, u"5"_qs},
        {"an invalid prefix goes too", u"!5"_qs, 2, 102, 102, u"5"_qs},
        {"wildcards mean nothing to numbers", u"%5%"_qs, 2, 160, 120, u"%5%"_qs},
    };
    expectCompared(rows);
}

TEST(CompareType, ParsesADateRowUnlessItsOperatorIsOnTexts)
{
    const CompareRow rows[] = {
        {"from the text", u" >=2024-05-01 "_qs, 5, 160, 135, u"2024-05-01"_qs},
        {"a date's operator", u"<2024-05-01"_qs, 5, 131, 132, u"2024-05-01"_qs},
        {"a number's operator", u"2024"_qs, 5, 120, 130, u"2024"_qs},
        {"just below the operators on texts", u"!x"_qs, 5, 99, 131, u"x"_qs},
        {"just above the operators on texts", u"!x"_qs, 5, 109, 131, u"x"_qs},
        {"contains stays", u"%2024%"_qs, 5, 106, 106, u"2024"_qs},
        {"not equal to stays", u"<2024"_qs, 5, 101, 101, u"2024"_qs},
    };
    expectCompared(rows);
}

TEST(CompareType, OnlyTrimsAYesNoRow)
{
    const CompareRow rows[] = {
        {"blanks", u" x "_qs, 4, 160, 139, u"x"_qs},
        {"a prefix stays", u" !=Yes "_qs, 4, 139, 139, u"!=Yes"_qs},
        {"with an operator on texts", u" Yes"_qs, 4, 101, 139, u"Yes"_qs},
    };
    expectCompared(rows);
}

TEST(CompareType, OnlyTrimsARowWithoutAType)
{
    for (const LONG argType : {-1, 0, 6, 7, 160}) {
        const CompareRow rows[] = {
            {"blanks", u" x "_qs, argType, 160, 100, u"x"_qs},
            {"a prefix stays", u" >=x"_qs, argType, 105, 100, u">=x"_qs},
        };
        expectCompared(rows);
    }
}

TEST(CompareType, SharesAValueThatNeedsNoChange)
{
    struct Row {
        QString text;
        LONG argType;
        LONG current;
    };
    const Row rows[] = {{u">=5"_qs, 2, 100},   {u"pump"_qs, 1, 160}, {u"a_b"_qs, 1, 101},
                        {u"%open"_qs, 1, 160}, {u"5"_qs, 3, 160},    {u"5"_qs, 2, 106},
                        {u"2024"_qs, 5, 160},  {u"Yes"_qs, 4, 160},  {u"x"_qs, 0, 160}};
    for (const Row& row : rows) {
        const CString original(row.text.constData(), row.text.size());
        CString text = original;
        compareType(text, row.argType, static_cast<ComboCmd>(row.current));
        EXPECT_EQ(text.constData(), original.constData()) << row.text.toStdString();
    }
}

TEST(AlterArgument, PutsTheOperatorAround)
{
    const std::pair<LONG, const char*> rows[] = {
        {101, "!=x"}, {121, "!=x"}, {131, "!=x"}, {102, "<x"},  {122, "<x"},    {132, "<x"},
        {103, ">x"},  {123, ">x"},  {133, ">x"},  {104, "<=x"}, {124, "<=x"},   {134, "<=x"},
        {105, ">=x"}, {125, ">=x"}, {135, ">=x"}, {106, "%x%"}, {107, "!=%x%"},
    };
    for (const auto& [command, expected] : rows)
        EXPECT_EQ(altered(u"x"_qs, command), expected) << command;
}

TEST(AlterArgument, LeavesTheTextOfEveryOtherNumberAlone)
{
    for (LONG command = -5; command <= 3100; ++command) {
        const bool hasForm = (command >= 101 && command <= 107)
                             || (command >= 121 && command <= 125)
                             || (command >= 131 && command <= 135);
        EXPECT_EQ(altered(u"x"_qs, command) == "x", !hasForm) << command;
    }
}

TEST(AlterArgument, TakesAnEmptyAndAPrefixedText)
{
    EXPECT_EQ(altered(QString(), 106), "%%");
    EXPECT_EQ(altered(QString(), 107), "!=%%");
    EXPECT_EQ(altered(QString(), 105), ">=");
    EXPECT_EQ(altered(u">=x"_qs, 105), ">=>=x");
    EXPECT_EQ(altered(u" x "_qs, 101), "!= x ");
}

TEST(AlterArgument, SharesATextThatNeedsNoChange)
{
    for (const LONG command : {-1, 100, 108, 115, 120, 130, 139, 160}) {
        const CString original(3, u'x');
        CString text = original;
        alterArgument(text, command);
        EXPECT_EQ(text.constData(), original.constData()) << command;
    }
}

TEST(AlterArgument, LeavesOtherHoldersOfTheTextAlone)
{
    const CString original(3, u'x');
    CString text = original;
    alterArgument(text, 106);
    EXPECT_EQ(original.toStdString(), "xxx");
    EXPECT_EQ(text.toStdString(), "%xxx%");
}

} // namespace condtree
