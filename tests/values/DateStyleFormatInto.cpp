#include <condtree/values/FormatInto.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstdio>
#include <string>
#include <vector>

namespace condtree {
namespace {

CString formatted(const char16_t* format, const std::vector<FormatArgument>& arguments)
{
    CString text = QStringLiteral("before");
    FormatInto(text, format, arguments);
    return text;
}

TEST(FormatInto, NumbersAreWrittenAsPrintfWritesThem)
{
    for (const int number :
         {0,     1,         7,       9,  10, 11,  99,  100,  101,   999,    1000,   9999,
          10000, 123456789, INT_MAX, -1, -9, -10, -99, -999, -1000, -10000, INT_MIN}) {
        std::array<char, 40> buffer{};
        std::snprintf(buffer.data(), buffer.size(), "%02d|%04d", number, number);
        EXPECT_EQ(formatted(u"%02d|%04d", {number, number}), QString::fromLatin1(buffer.data()));
    }
}

TEST(FormatInto, TextsAreCopiedAsTheyAre)
{
    EXPECT_EQ(formatted(u"<%s%s>", {u"", u"\u00e9%02d"}), QStringLiteral("<\u00e9%02d>"));
}

TEST(FormatInto, TheFormersContentsAreReplacedWholly)
{
    EXPECT_EQ(formatted(u"", {}), QString());
    EXPECT_EQ(formatted(u"x", {}), QStringLiteral("x"));
}

TEST(FormatInto, SurplusArgumentsAreLeftOut)
{
    EXPECT_EQ(formatted(u"%02d", {5, 6, u"seven"}), QStringLiteral("05"));
}

TEST(FormatInto, ATextMayBeOfAnyLength)
{
    const std::u16string text(100000, u'x');
    EXPECT_EQ(formatted(u"%s-%02d", {text.c_str(), 3}),
              QString(100000, QChar(u'x')) + QStringLiteral("-03"));
}

} // namespace
} // namespace condtree
