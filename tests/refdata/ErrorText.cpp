#include <condtree/refdata/ErrorText.h>

#include <gtest/gtest.h>

#include <new>
#include <vector>

namespace condtree {
namespace {

/// A source without translations.
CString untranslated(LONG, const char16_t*, const char16_t*, const char16_t* defaultText)
{
    return QString::fromUtf16(defaultText);
}

CString textOf(DWORD code)
{
    return ResultCodeText(static_cast<HRESULT>(code), untranslated);
}

/// A source that notes the ids that it is asked for.
struct Asked {
    std::vector<LONG> ids;
    CString key, section;

    StringSource source()
    {
        return [this](LONG id, const char16_t* k, const char16_t* s, const char16_t*) {
            ids.push_back(id);
            key = QString::fromUtf16(k);
            section = QString::fromUtf16(s);
            return QStringLiteral("translated %1").arg(id);
        };
    }
};

struct CatalogueRow {
    DWORD code;
    LONG id;
    const char16_t* text;
};

// Typed by hand: persisted ids of translations; append only.
const CatalogueRow kCatalogue[] = {
    {0x00000000, 0, u"The method was successfully executed."},
    {0x00000001, 1, u"The method was successfully executed but returned 'false'."},
    {0x80070057, 34, u"An invalid argument was given to the method."},
    {0x8007000E, 33, u"Not enough memory to complete the operation."},
    {0x00040218, 26,
     u"Administrated plugins successfully. You should now recreate the plugin menu."},
    {0x00040219, 27, u"Menu item not valid in this context due to specified flags."},
    {0x80040201, 3, u"The program used an object without initializing it properly first."},
    {0x80040202, 4, u"The folder does not have a parent."},
    {0x80040203, 5, u"You don't have permission to perform this action."},
    {0x80040204, 6, u"You haven't logged in on the file vault."},
    {0x80040205, 7, u"You tried to log in twice."},
    {0x80040206, 8,
     u"Could not open database. This could happen if the network connection is broken or if the "
     u"database has been removed."},
    {0x80040221, 8,
     u"Could not open database. This could happen if the network connection is broken or if the "
     u"database has been removed."},
    {0x80040207, 9, u"Could not access the item in the database."},
    {0x80040208, 10, u"You tried to get an element from a list where the cursor is off-right."},
    {0x80040209, 11, u"Error accessing the revision management system. Network connection down?"},
    {0x8004020A, 12,
     u"An attempt was made to access a record in the database that is locked by another user.\n"
     u"This can sometimes happen during high workload on the database.\n"
     u"Usually this is solved if you try the operation again."},
    {0x8004020B, 13,
     u"An attempt was made to access a file that is exclusively opened by another application."},
    {0x80004001, 64, u"The called method is not implemented."},
    {0x80004003, 32, u"An invalid pointer was supplied to the method."},
    {0x80004005, 66, u"An unspecified error occurred."},
    {0x8000FFFF, 66, u"An unspecified error occurred."},
};

TEST(ErrorText, ACodeOfTheCatalogueHasItsText)
{
    for (const CatalogueRow& row : kCatalogue)
        EXPECT_EQ(textOf(row.code), QString::fromUtf16(row.text)) << std::hex << row.code;
}

TEST(ErrorText, ACodeOfTheCatalogueIsTranslatedByItsId)
{
    for (const CatalogueRow& row : kCatalogue) {
        SCOPED_TRACE(row.code);
        Asked asked;
        EXPECT_EQ(ResultCodeText(static_cast<HRESULT>(row.code), asked.source()),
                  QStringLiteral("translated %1").arg(row.id));
        EXPECT_EQ(asked.ids, (std::vector<LONG>{row.id}));
        EXPECT_EQ(asked.key, QStringLiteral("ErrorCodes"));
        EXPECT_EQ(asked.section, QStringLiteral("ErrorCodes"));
    }
}

TEST(ErrorText, WithoutASourceOrATranslationTheDefaultIsUsed)
{
    const auto silent = [](LONG, const char16_t*, const char16_t*, const char16_t*) {
        return CString();
    };
    const QString text = QStringLiteral("An unspecified error occurred.");
    EXPECT_EQ(ResultCodeText(E_FAIL, StringSource()), text);
    EXPECT_EQ(ResultCodeText(E_FAIL, silent), text);
}

TEST(ErrorText, ACodeWithoutADefaultIsShownWhenItIsTranslated)
{
    Asked asked;
    EXPECT_EQ(ResultCodeText(static_cast<HRESULT>(0x80040200U), asked.source()),
              QStringLiteral("translated 2"));
    EXPECT_EQ(asked.ids, (std::vector<LONG>{2}));
    EXPECT_EQ(textOf(0x80040200), QStringLiteral("Unknown error 0x80040200"));
}

struct TextRow {
    DWORD code;
    const char* text;
};

TEST(ErrorText, OtherCodesHaveTheTextOfTheirRange)
{
    const TextRow rows[] = {
        // Internet transfer, by the low half
        {0x80072EE7, "The server name could not be resolved."},
        {0x80072EFD, "The attempt to connect to the server failed."},
        {0x80072EFE, "The connection with the server has been terminated."},
        {0x80072EFF, "The connection with the server has been reset."},
        {0x80072F83, "The Internet connection has been lost"},
        {0x80072EE0, "A WinINet error occured (code=12000)."},
        {0x80072FA0, "A WinINet error occured (code=12192)."},
        {0x80072EDF, "Unknown error 0x80072EDF"},
        {0x80072FA1, "Unknown error 0x80072FA1"},
        // Archive server
        {0x80040232, "Archive server revision control error 0 (0x080040232)"},
        {0x800402C4, "Archive server revision control error 146 (0x0800402C4)"},
        {0x80040231, "IDispatch error #49"},
        {0x800402C5, "IDispatch error #197"},
        // System texts
        {0x80070005, "Access is denied."},
        {0x80040154, "The class is not registered."},
        // An interface's own codes, counted from 0x200
        {0x80040F00, "IDispatch error #3328"},
        {0x80040000, "IDispatch error #-512"},
        {0x800401FF, "IDispatch error #-1"},
        {0x8004FFFF, "IDispatch error #65023"},
        {0x80040200, "Unknown error 0x80040200"},
        // Nothing known
        {0x80550000, "Unknown error 0x80550000"},
        {0x8003FFFF, "Unknown error 0x8003FFFF"},
        {0x80050000, "Unknown error 0x80050000"},
        {0x8ABCDEF0, "Unknown error 0x8ABCDEF0"},
        {0x00000002, "Unknown error 0x2"},
        {0xFFFFFFFF, "Unknown error 0xFFFFFFFF"},
    };
    for (const TextRow& row : rows)
        EXPECT_EQ(textOf(row.code), QString::fromLatin1(row.text)) << std::hex << row.code;
}

TEST(ErrorText, TheRangesAreNotTranslated)
{
    for (const DWORD code :
         {0x80072EE7U, 0x80072EE0U, 0x80040232U, 0x80070005U, 0x80040F00U, 0x80550000U}) {
        Asked asked;
        EXPECT_EQ(ResultCodeText(static_cast<HRESULT>(code), asked.source()), textOf(code));
        EXPECT_TRUE(asked.ids.empty());
    }
}

TEST(ErrorText, ExhaustedMemoryIsRaisedAsAResultCode)
{
    const auto exhausted = [](LONG, const char16_t*, const char16_t*, const char16_t*) -> CString {
        throw std::bad_alloc();
    };
    try {
        (void)ResultCodeText(E_FAIL, exhausted);
        ADD_FAILURE() << "nothing was raised";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), static_cast<HRESULT>(0x8007000EU));
    }
}

} // namespace
} // namespace condtree
