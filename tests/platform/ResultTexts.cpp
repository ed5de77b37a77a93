#include <condtree/platform/ResultTexts.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace condtree {
namespace {

ResultText textOf(HRESULT code, const QString& defaultText)
{
    ResultText text;
    text.code = code;
    text.defaultText = defaultText;
    return text;
}

TEST(ResultTexts, HasNothingAtFirst)
{
    const ResultTexts texts;
    for (const HRESULT code : {S_OK, S_FALSE, E_FAIL, HRESULT{-1}})
        EXPECT_EQ(texts.find(code), nullptr);
}

TEST(ResultTexts, FindsWhatWasAddedWithAllItsFields)
{
    ResultTexts texts;
    texts.add({E_FAIL, 12, QStringLiteral("a key"), QStringLiteral("a section"),
               QStringLiteral("a text"), ResultTextKind::SymbolicName});
    const ResultText* found = texts.find(E_FAIL);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->code, E_FAIL);
    EXPECT_EQ(found->id, 12);
    EXPECT_EQ(found->key, QStringLiteral("a key"));
    EXPECT_EQ(found->section, QStringLiteral("a section"));
    EXPECT_EQ(found->defaultText, QStringLiteral("a text"));
    EXPECT_EQ(found->kind, ResultTextKind::SymbolicName);
}

TEST(ResultTexts, APlainTextIsTheDefault)
{
    const ResultText text;
    EXPECT_EQ(text.code, S_OK);
    EXPECT_EQ(text.id, 0);
    EXPECT_EQ(text.kind, ResultTextKind::Plain);
}

TEST(ResultTexts, ReplacesTheTextOfTheSameCodeWhole)
{
    ResultTexts texts;
    texts.add({E_FAIL, 12, QStringLiteral("key"), QStringLiteral("section"), QStringLiteral("one"),
               ResultTextKind::SymbolicName});
    texts.add(textOf(E_FAIL, QStringLiteral("two")));
    const ResultText* found = texts.find(E_FAIL);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->defaultText, QStringLiteral("two"));
    EXPECT_EQ(found->id, 0);
    EXPECT_EQ(found->key, QString());
    EXPECT_EQ(found->section, QString());
    EXPECT_EQ(found->kind, ResultTextKind::Plain);
}

TEST(ResultTexts, TellsAllCodesApart)
{
    constexpr HRESULT kCodes[] = {
        std::numeric_limits<HRESULT>::min(), E_FAIL, E_FAIL + 1, -1, S_OK, S_FALSE,
        std::numeric_limits<HRESULT>::max()};
    ResultTexts texts;
    for (const HRESULT code : kCodes)
        texts.add(textOf(code, QString::number(code)));
    for (const HRESULT code : kCodes) {
        ASSERT_NE(texts.find(code), nullptr) << code;
        EXPECT_EQ(texts.find(code)->defaultText, QString::number(code));
    }
    EXPECT_EQ(texts.find(2), nullptr);
    EXPECT_EQ(texts.find(E_FAIL - 1), nullptr);
}

TEST(ResultTexts, KeepsTextsWhoseCharactersAreNotTheirOwn)
{
    // A text over somebody else's characters, which have no end of their own.
    char16_t characters[] = {u'a', u'b', u'c', u'd'};
    const auto borrowed = QString::fromRawData(reinterpret_cast<const QChar*>(characters), 3);
    ResultTexts texts;
    texts.add({E_FAIL, 1, borrowed, borrowed, borrowed, ResultTextKind::Plain});
    std::fill(std::begin(characters), std::end(characters), u'x');
    const ResultText* found = texts.find(E_FAIL);
    ASSERT_NE(found, nullptr);
    for (const CString* text : {&found->key, &found->section, &found->defaultText}) {
        EXPECT_EQ(*text, QStringLiteral("abc"));
        EXPECT_EQ(text->constData()[3], QChar(0));
    }
}

TEST(ResultTexts, CopiesGoTheirOwnWays)
{
    ResultTexts texts;
    texts.add(textOf(E_FAIL, QStringLiteral("one")));
    ResultTexts copy = texts;
    copy.add(textOf(E_FAIL, QStringLiteral("two")));
    EXPECT_EQ(texts.find(E_FAIL)->defaultText, QStringLiteral("one"));
    EXPECT_EQ(copy.find(E_FAIL)->defaultText, QStringLiteral("two"));
}

} // namespace
} // namespace condtree
