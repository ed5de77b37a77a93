#include <condtree/platform/SystemText.h>

#include <gtest/gtest.h>

#include <ios>

namespace condtree {
namespace {

HRESULT code(DWORD number)
{
    return static_cast<HRESULT>(number);
}

struct Row {
    DWORD code;
    const char16_t* text;
};

// Every code that has a system text; our own wording, which the users of every release see.
constexpr Row kKnown[] = {
    {0x80004002, u"The object does not offer the interface that was asked for."},
    {0x80004004, u"The operation was aborted."},
    {0x80020009, u"The called object raised an exception."},
    {0x80040154, u"The class is not registered."},
    {0x800401F0, u"The component library has not been initialised."},
    {0x80070002, u"The file was not found."},
    {0x80070003, u"The path was not found."},
    {0x80070005, u"Access is denied."},
    {0x80070006, u"The handle is invalid."},
    {0x80070013, u"The medium is write-protected."},
    {0x80070020, u"The file is in use by another process."},
    {0x80070035, u"The network path was not found."},
    {0x80070070, u"There is not enough space on the disk."},
    {0x800700B7, u"The file exists already."},
    {0x800704C7, u"The user cancelled the operation."},
    {0x800705B4, u"The operation took too long and was given up."},
};

TEST(SystemText, KnowsTheStandardCodes)
{
    for (const Row& row : kKnown)
        EXPECT_EQ(systemText(code(row.code)), QString::fromUtf16(row.text)) << std::hex << row.code;
}

TEST(SystemText, EndsWithoutALineEnd)
{
    for (const Row& row : kKnown)
        EXPECT_TRUE(systemText(code(row.code)).endsWith(u'.')) << std::hex << row.code;
}

TEST(SystemText, HasNoTextForOtherCodes)
{
    for (const DWORD number : {0x0U, 0x5U, 0x80004000U, 0x80004003U, 0x80040200U, 0x80040F00U,
                               0x80550000U, 0x80070004U, 0x800705B5U, 0xFFFFFFFFU})
        EXPECT_EQ(systemText(code(number)), QString()) << std::hex << number;
}

} // namespace
} // namespace condtree
