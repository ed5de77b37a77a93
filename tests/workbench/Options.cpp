#include "workbench/Options.h"

#include <gtest/gtest.h>

using namespace condtree::workbench;

namespace {

QStringList split(const char* arguments)
{
    return QString::fromUtf8(arguments).split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

Options parsed(const char* arguments)
{
    const Outcome<Options> options = parseOptions(split(arguments));
    EXPECT_TRUE(options.hasValue()) << arguments;
    return options.hasValue() ? options.value() : Options();
}

TEST(Options, WithoutArgumentsTheWindowOpens)
{
    const Options options = parsed("");
    EXPECT_FALSE(options.isHeadless());
    EXPECT_TRUE(options.database.isNull());
    EXPECT_TRUE(options.user.isNull());
    EXPECT_TRUE(options.transition.isNull());
    EXPECT_TRUE(options.language.isNull());
}

TEST(Options, ValuesStandBehindTheirOptionOrAfterAnEqualsSign)
{
    const Options options = parsed(
        "--db|sqlite:///a b|--user=ann|--transition|W/N=1|--lang=de|--export|-|--import=--x");
    EXPECT_EQ(options.database, QStringLiteral("sqlite:///a b"));
    EXPECT_EQ(options.user, QStringLiteral("ann"));
    EXPECT_EQ(options.transition, QStringLiteral("W/N=1"));
    EXPECT_EQ(options.language, QStringLiteral("de"));
    EXPECT_EQ(options.exportFile, QStringLiteral("-"));
    EXPECT_EQ(options.importFile, QStringLiteral("--x"));
}

TEST(Options, FiveOptionsNeedNoWindowAndFourOfThemATransition)
{
    struct Row {
        const char* arguments;
        bool needsTransition;
    };
    const Row rows[] = {{"--list", false},
                        {"--print", true},
                        {"--export|f", true},
                        {"--import|f|--transition|t", true},
                        {"--screenshot|f.png", true}};
    for (const Row& row : rows) {
        EXPECT_TRUE(parsed(row.arguments).isHeadless()) << row.arguments;
        EXPECT_EQ(parsed(row.arguments).needsTransition(), row.needsTransition) << row.arguments;
    }
    EXPECT_FALSE(parsed("--db|x|--user|u|--transition|t|--lang|de").isHeadless());
}

TEST(Options, SeveralTasksMayBeGivenAtOnce)
{
    const Options options = parsed("--list|--print|--export|a|--screenshot|b");
    EXPECT_TRUE(options.list);
    EXPECT_TRUE(options.print);
    EXPECT_EQ(options.exportFile, QStringLiteral("a"));
    EXPECT_EQ(options.screenshotFile, QStringLiteral("b"));
}

TEST(Options, TheToolkitsOwnOptionsArePassedOver)
{
    EXPECT_TRUE(parsed("-platform|offscreen|--list|-style|fusion").list);
    EXPECT_FALSE(parsed("-platform").isHeadless());
}

TEST(Options, WhatIsWrongIsToldInOneLine)
{
    struct Row {
        const char* name;
        const char* arguments;
        const char* line;
    };
    const Row rows[] = {
        {"unknown", "--foo", "unknown option \"--foo\""},
        {"unknown with a value", "--foo=1", "unknown option \"--foo\""},
        {"unknown and short", "-l", "unknown option \"-l\""},
        {"a lone dash", "-", "unknown option \"-\""},
        {"another case", "--LIST", "unknown option \"--LIST\""},
        {"an abbreviation", "--li", "unknown option \"--li\""},
        {"a line break", "--a\nb", "unknown option \"--a\\u000ab\""},
        {"a bare word", "file.json", "unexpected argument \"file.json\""},
        {"no value at the end", "--list|--export", "--export needs a value: FILE"},
        {"an option for a value", "--db|--list", "--db needs a value: URL"},
        {"an empty value", "--user=", "--user needs a value: NAME"},
        {"a value too many", "--print=yes", "--print takes no value"},
        {"twice", "--export|a|--export|b", "--export is given twice"},
        {"twice the same", "--lang=de|--lang=de", "--lang is given twice"},
        {"import alone", "--import|f", "--import needs --transition"},
    };
    for (const Row& row : rows) {
        const Outcome<Options> options = parseOptions(split(row.arguments));
        ASSERT_FALSE(options.hasValue()) << row.name;
        EXPECT_EQ(options.failure().text.toStdString(), row.line) << row.name;
    }
}

TEST(Options, AnEmptyArgumentIsNoValue)
{
    const Outcome<Options> empty = parseOptions({QStringLiteral("--db"), QString()});
    ASSERT_FALSE(empty.hasValue());
    EXPECT_EQ(empty.failure().text, QStringLiteral("--db needs a value: URL"));
    const Outcome<Options> alone = parseOptions({QString()});
    ASSERT_FALSE(alone.hasValue());
    EXPECT_EQ(alone.failure().text, QStringLiteral("unexpected argument \"\""));
}

TEST(Options, TheUsageNamesEveryOption)
{
    const QString usage = usageText();
    for (const char* option :
         {"--db URL", "--user NAME", "--transition NAME", "--lang LL", "--list", "--print",
          "--export FILE", "--import FILE", "--screenshot FILE"})
        EXPECT_TRUE(usage.contains(QLatin1String(option))) << option;
}

} // namespace
