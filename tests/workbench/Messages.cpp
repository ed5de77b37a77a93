#include "workbench/Messages.h"

#include <gtest/gtest.h>

using namespace condtree::workbench;

namespace {

TEST(Messages, APlainTextStaysAsItIs)
{
    EXPECT_EQ(oneLine(QStringLiteral("Qualität/顧客 \U0001F600")),
              QStringLiteral("Qualität/顧客 \U0001F600"));
    EXPECT_EQ(oneLine(QString()), QString());
}

TEST(Messages, WhatWouldBreakALineIsEscaped)
{
    EXPECT_EQ(oneLine(QStringLiteral("a\nb\r\tc\u2028d\u2029e\u0085f")),
              QStringLiteral("a\\u000ab\\u000d\\u0009c\\u2028d\\u2029e\\u0085f"));
    EXPECT_EQ(oneLine(QString(QChar(0)) + QChar(0x1B)), QStringLiteral("\\u0000\\u001b"));
}

TEST(Messages, UnpairedSurrogatesAreEscapedAndPairsAreNot)
{
    const QString high(QChar(0xD83D));
    const QString low(QChar(0xDE00));
    EXPECT_EQ(oneLine(high), QStringLiteral("\\ud83d"));
    EXPECT_EQ(oneLine(low), QStringLiteral("\\ude00"));
    EXPECT_EQ(oneLine(high + QStringLiteral("x")), QStringLiteral("\\ud83dx"));
    EXPECT_EQ(oneLine(low + high), QStringLiteral("\\ude00\\ud83d"));
    EXPECT_EQ(oneLine(high + low), high + low);
}

TEST(Messages, AQuoteIsCutWhenItIsLong)
{
    EXPECT_EQ(quoted(QStringLiteral("a\nb")), QStringLiteral("\"a\\u000ab\""));
    const QString longest(80, QLatin1Char('x'));
    EXPECT_EQ(quoted(longest), QLatin1Char('"') + longest + QLatin1Char('"'));
    EXPECT_EQ(quoted(longest + QLatin1Char('y')),
              QLatin1Char('"') + longest + QStringLiteral("\u2026\""));
}

TEST(Messages, AnErrorIsOneLineThatNamesTheProgram)
{
    EXPECT_EQ(errorLine(QStringLiteral("a \r\n\nb: ü\n")),
              QByteArray("condtree-workbench: a b: ü\n"));
    EXPECT_EQ(errorLine(QStringLiteral("a\tb")), QByteArray("condtree-workbench: a\\u0009b\n"));
}

} // namespace
