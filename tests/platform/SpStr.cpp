#include <condtree/platform/SpStr.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace condtree {

static_assert(std::is_same_v<decltype(SpStr() + SpStr()), SpStr>);
static_assert(std::is_same_v<decltype(SpStr() + CString()), SpStr>);
static_assert(std::is_same_v<decltype(SpStr() + u"a"), SpStr>);
static_assert(std::is_same_v<decltype(SpStr() == SpStr()), bool>);
static_assert(std::is_same_v<decltype(SpStr() == CString()), bool>);
static_assert(std::is_same_v<decltype(SpStr() == u"a"), bool>);
static_assert(std::is_same_v<decltype(SpStr().str()), CString>);
static_assert(std::is_convertible_v<SpStr, CString>);
static_assert(std::is_convertible_v<CString, SpStr>);
static_assert(std::is_convertible_v<const char16_t*, SpStr>);
static_assert(std::is_copy_constructible_v<SpStr> && std::is_copy_assignable_v<SpStr>);

TEST(SpStr, IsEmptyWhenMadeFromNothingOrNull)
{
    EXPECT_EQ(SpStr().length(), 0);
    EXPECT_TRUE(SpStr().str().isEmpty());
    const char16_t* none = nullptr;
    EXPECT_EQ(SpStr(none).length(), 0);
    EXPECT_TRUE(SpStr() == none);
    EXPECT_TRUE(SpStr(u"a") + none == u"a");
}

TEST(SpStr, CountsCodeUnits)
{
    EXPECT_EQ(SpStr(u"abc").length(), 3);
    EXPECT_EQ(SpStr(u"\U0001F600").length(), 2);
}

TEST(SpStr, TakesEveryTextUnchanged)
{
    const CString withNull = CString(u'a') + QChar() + u'b';
    EXPECT_EQ(SpStr(withNull).length(), 3);
    EXPECT_TRUE(SpStr(withNull).str() == withNull);

    const char16_t byteOrderMark[] = {0xFEFF, u'a', 0};
    EXPECT_EQ(SpStr(byteOrderMark).length(), 2);
    EXPECT_TRUE(SpStr(byteOrderMark) == CString(QChar(0xFEFF)) + u'a');
    EXPECT_TRUE(SpStr() + byteOrderMark == byteOrderMark);

    const char16_t swappedMark[] = {0xFFFE, u'a', 0};
    EXPECT_EQ(SpStr(swappedMark).str().at(1), QChar(u'a'));

    const char16_t halfPair[] = {0xD800, 0};
    EXPECT_EQ(SpStr(halfPair).str().at(0), QChar(0xD800));
}

TEST(SpStr, JoinsWithEveryKindOfText)
{
    const SpStr left(u"Main");
    EXPECT_TRUE(left + SpStr(u".a") == u"Main.a");
    EXPECT_TRUE(left + CString(u"."_qs) == u"Main.");
    EXPECT_TRUE(left + u".b" == u"Main.b");
    const SpStr name = SpStr(u"Main") + u"." + SpStr(u"Open") + u"!"_qs;
    EXPECT_EQ(name.str().toStdString(), "Main.Open!");
    EXPECT_TRUE(left == u"Main") << "the operand is left alone";
}

TEST(SpStr, ComparesWithEveryKindOfTextExactly)
{
    const SpStr text(u"Open");
    EXPECT_TRUE(text == SpStr(u"Open"));
    EXPECT_TRUE(text == CString(u"Open"_qs));
    EXPECT_TRUE(text == u"Open");
    EXPECT_FALSE(text == SpStr(u"open"));
    EXPECT_FALSE(text == CString(u"open"_qs));
    EXPECT_FALSE(text == u"open");
    EXPECT_TRUE(text != SpStr(u"open"));
    EXPECT_TRUE(text != CString(u"open"_qs));
    EXPECT_TRUE(text != u"open");
}

TEST(SpStr, ConvertsToAndFromOwnedText)
{
    const SpStr text = CString(u"pump"_qs);
    const CString back = text;
    EXPECT_EQ(back.toStdString(), "pump");
}

TEST(SpStr, OwnsItsText)
{
    char16_t buffer[] = u"abc";
    const SpStr text(static_cast<const char16_t*>(buffer));
    buffer[0] = u'x';
    EXPECT_TRUE(text == u"abc");

    SpStr copy = text;
    EXPECT_TRUE(copy == text);
    copy = copy + u"d";
    EXPECT_TRUE(copy == u"abcd");
    EXPECT_TRUE(text == u"abc");
}

} // namespace condtree
