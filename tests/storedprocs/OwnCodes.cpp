#include "support/QtPrinters.h"

#include <condtree/platform/ResultTexts.h>
#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpTransitions.h>

#include <gtest/gtest.h>

namespace condtree::test {
namespace {

const struct {
    HRESULT code;
    LONG id;
    QString text;
} kOwnCodes[] = {
    {static_cast<HRESULT>(0x80040501U), 1,
     QStringLiteral("The condition was saved by somebody else after it was loaded; your changes "
                    "were not saved. Load the condition again and repeat your changes.")},
    {static_cast<HRESULT>(0x80040502U), 2,
     QStringLiteral("A text holds a character that the database cannot hold; your changes were "
                    "not saved. Remove the character and save again.")},
    {static_cast<HRESULT>(0x80040503U), 3,
     QStringLiteral("A text is larger than 16 MiB, which the database cannot hold; your changes "
                    "were not saved. Shorten the text and save again.")},
};

TEST(OwnCodes, HaveMessagesThatHostsCanAdd)
{
    ResultTexts texts;
    SpAddResultTexts(texts);
    for (const auto& own : kOwnCodes) {
        const ResultText* found = texts.find(own.code);
        ASSERT_NE(found, nullptr) << own.id;
        EXPECT_EQ(found->id, own.id);
        EXPECT_EQ(found->key, QStringLiteral("StoredProcs")) << own.id;
        EXPECT_EQ(found->section, QStringLiteral("StoredProcs")) << own.id;
        EXPECT_EQ(found->defaultText, own.text);
        EXPECT_EQ(found->kind, ResultTextKind::Plain) << own.id;
    }
    EXPECT_EQ(SP_E_CHANGED, kOwnCodes[0].code);
    EXPECT_EQ(SP_E_BAD_TEXT, kOwnCodes[1].code);
    EXPECT_EQ(SP_E_TOO_LONG, kOwnCodes[2].code);
}

TEST(OwnCodes, AreAllThatIsAdded)
{
    ResultTexts texts;
    SpAddResultTexts(texts);
    SpAddResultTexts(texts); // again is the same
    for (unsigned code = 0x80040200U; code < 0x80040600U; ++code) {
        const bool isOwn = code >= 0x80040501U && code <= 0x80040503U;
        EXPECT_EQ(texts.find(static_cast<HRESULT>(code)) != nullptr, isOwn) << std::hex << code;
    }
    EXPECT_EQ(texts.find(E_FAIL), nullptr);
    EXPECT_EQ(texts.find(S_OK), nullptr);
}

} // namespace
} // namespace condtree::test
