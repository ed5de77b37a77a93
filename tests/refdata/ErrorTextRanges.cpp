// Messages of the codes that no catalogue knows.
#include "ErrorTextSources.h"

#include <condtree/refdata/ResultFallbacks.h>

#include <gtest/gtest.h>

#include <ios>
#include <set>

namespace condtree::test {
namespace {

struct TextRow {
    DWORD code;
    const char* text;
};

constexpr TextRow kRows[] = {
    // Internet transfer, by the low half
    {0x80072EE7, "The server name could not be resolved."},
    {0x80072EFD, "The attempt to connect to the server failed."},
    {0x80072EFE, "The connection with the server has been terminated."},
    {0x80072EFF, "The connection with the server has been reset."},
    {0x80072F83, "The Internet connection has been lost"},
    {0x80072EDF, "Unknown error 0x80072EDF"},
    {0x80072EE0, "A WinINet error occured (code=12000)."},
    {0x80072EE6, "A WinINet error occured (code=12006)."},
    {0x80072EE8, "A WinINet error occured (code=12008)."},
    {0x80072F00, "A WinINet error occured (code=12032)."},
    {0x80072F82, "A WinINet error occured (code=12162)."},
    {0x80072F84, "A WinINet error occured (code=12164)."},
    {0x80072FA0, "A WinINet error occured (code=12192)."},
    {0x80072FA1, "Unknown error 0x80072FA1"},
    // Archive server
    {0x80040231, "IDispatch error #49"},
    {0x80040232, "Archive server revision control error 0 (0x080040232)"},
    {0x80040233, "Archive server revision control error 1 (0x080040233)"},
    {0x800402AB, "Archive server revision control error 121 (0x0800402AB)"},
    {0x800402C4, "Archive server revision control error 146 (0x0800402C4)"},
    {0x800402C5, "IDispatch error #197"},
    // System texts
    {0x80070005, "Access was denied."},
    {0x80040154, "The class is not registered."},
    // An interface's own codes, counted from 0x200
    {0x8003FFFF, "Unknown error 0x8003FFFF"},
    {0x80040000, "IDispatch error #-512"},
    {0x800401FF, "IDispatch error #-1"},
    {0x80040200, "Unknown error 0x80040200"},
    {0x8004020C, "IDispatch error #12"},
    {0x800404D5, "IDispatch error #725"},
    {0x80040F00, "IDispatch error #3328"},
    {0x80041200, "IDispatch error #4096"},
    {0x8004FFFF, "IDispatch error #65023"},
    {0x80050000, "Unknown error 0x80050000"},
    // Success codes beside those of the catalogue
    {0x00040217, "Unknown error 0x40217"},
    {0x0004021A, "Unknown error 0x4021A"},
    {0x0004023F, "Unknown error 0x4023F"},
    // Nothing known
    {0x00000002, "Unknown error 0x2"},
    {0x80550000, "Unknown error 0x80550000"},
    {0x8ABCDEF0, "Unknown error 0x8ABCDEF0"},
    {0xFFFFFFFF, "Unknown error 0xFFFFFFFF"},
};

TEST(ErrorTextRanges, OtherCodesHaveTheTextOfTheirRange)
{
    for (const TextRow& row : kRows)
        EXPECT_EQ(textOf(row.code), row.text) << std::hex << row.code;
}

TEST(ErrorTextRanges, TheRangesAreNotTranslated)
{
    for (const TextRow& row : kRows) {
        if (row.code == 0x80040200)
            continue; // known, only without an English text
        Asked asked;
        EXPECT_EQ(ResultCodeText(asResult(row.code), asked.source()).toStdString(), row.text);
        EXPECT_EQ(ResultCodeText(asResult(row.code), asked.languageSource(), QStringLiteral("fi"))
                      .toStdString(),
                  row.text);
        EXPECT_EQ(asked.texts, QStringList()) << std::hex << row.code;
    }
}

TEST(ErrorTextRanges, TheProgramsCodesWithoutAnEntryAreTheArchivesOrTheInterfaces)
{
    const std::set<DWORD> known = {0x80040201, 0x80040202, 0x80040203, 0x80040204,
                                   0x80040205, 0x80040206, 0x80040207, 0x80040208,
                                   0x80040209, 0x8004020A, 0x8004020B, 0x80040221};
    for (DWORD code = 0x80040201; code <= 0x800404D5; ++code) {
        const std::string text = textOf(code);
        const bool isArchive = code >= 0x80040232 && code <= 0x800402C4;
        const bool isInterface = !isArchive && known.count(code) == 0;
        EXPECT_EQ(text.starts_with("Archive server revision control error "), isArchive)
            << std::hex << code << ' ' << text;
        EXPECT_EQ(text.starts_with("IDispatch error #"), isInterface)
            << std::hex << code << ' ' << text;
    }
}

TEST(ErrorTextRanges, FiveTransferCodesHaveATextOfTheirOwn)
{
    int own = 0;
    for (DWORD code = 0x80072EE0; code <= 0x80072FA0; ++code) {
        const std::string text = textOf(code);
        const std::string other =
            "A WinINet error occured (code=" + std::to_string(code - 0x80070000) + ").";
        own += text == other ? 0 : 1;
    }
    EXPECT_EQ(own, 5);
}

TEST(ErrorTextRanges, OneLineFeedAndThenOneCarriageReturnAreTakenOff)
{
    struct Row {
        const char16_t* text;
        const char16_t* expected;
    };
    const Row rows[] = {
        {u"", u""},
        {u"a", u"a"},
        {u"a\n", u"a"},
        {u"a\r\n", u"a"},
        {u"a\r", u"a"},
        {u"a\n\r", u"a\n"},
        {u"a\n\n", u"a\n"},
        {u"a\r\r\n", u"a\r"},
        {u"a\r\n\r\n", u"a\r\n"},
        {u"a\r\n ", u"a\r\n "},
        {u"a\r\nb\r\n", u"a\r\nb"},
        {u"\r\n", u""},
        {u"\n", u""},
        {u"\r", u""},
    };
    for (const Row& row : rows)
        EXPECT_EQ(withoutLineEnd(QString::fromUtf16(row.text)), QString::fromUtf16(row.expected))
            << QString::fromUtf16(row.text).toStdString();
}

} // namespace
} // namespace condtree::test
