#include <condtree/refdata/SystemText.h>

#include <gtest/gtest.h>

namespace condtree {
namespace {

HRESULT code(DWORD number)
{
    return static_cast<HRESULT>(number);
}

// Typed by hand: every code that has a system text.
constexpr DWORD kKnown[] = {0x80004002, 0x80004004, 0x80020009, 0x80040154, 0x800401F0, 0x80070002,
                            0x80070003, 0x80070005, 0x80070006, 0x80070013, 0x80070020, 0x80070035,
                            0x80070070, 0x800700B7, 0x800704C7, 0x800705B4};

TEST(SystemText, KnowsTheStandardCodes)
{
    for (const DWORD number : kKnown)
        EXPECT_FALSE(systemText(code(number)).isEmpty()) << std::hex << number;
    EXPECT_EQ(systemText(code(0x80070005)), QStringLiteral("Access is denied."));
    EXPECT_EQ(systemText(code(0x80004002)),
              QStringLiteral("The object does not offer the interface that was asked for."));
    EXPECT_EQ(systemText(code(0x800705B4)),
              QStringLiteral("The operation took too long and was given up."));
}

TEST(SystemText, EndsWithoutALineEnd)
{
    for (const DWORD number : kKnown)
        EXPECT_TRUE(systemText(code(number)).endsWith(u'.')) << std::hex << number;
}

TEST(SystemText, HasNoTextForOtherCodes)
{
    for (const DWORD number : {0x0U, 0x5U, 0x80004000U, 0x80004003U, 0x80040200U, 0x80040F00U,
                               0x80550000U, 0x80070004U, 0x800705B5U, 0xFFFFFFFFU})
        EXPECT_EQ(systemText(code(number)), QString()) << std::hex << number;
}

} // namespace
} // namespace condtree
