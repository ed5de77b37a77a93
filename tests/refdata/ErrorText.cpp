#include "ErrorTextSources.h"

#include <gtest/gtest.h>

#include <ios>
#include <new>

namespace condtree::test {
namespace {

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
        EXPECT_EQ(textOf(row.code), QString::fromUtf16(row.text).toStdString())
            << std::hex << row.code;
}

TEST(ErrorText, ACodeOfTheCatalogueIsTranslatedByItsId)
{
    for (const CatalogueRow& row : kCatalogue) {
        SCOPED_TRACE(row.code);
        Asked asked;
        EXPECT_EQ(ResultCodeText(asResult(row.code), asked.source()),
                  QStringLiteral("translated %1").arg(row.id));
        EXPECT_EQ(asked.texts, QStringList(QStringLiteral("%1 ErrorCodes ErrorCodes %2")
                                               .arg(row.id)
                                               .arg(QString::fromUtf16(row.text))));
    }
}

TEST(ErrorText, ACodeOfTheCatalogueIsTranslatedIntoTheLanguage)
{
    for (const CatalogueRow& row : kCatalogue) {
        SCOPED_TRACE(row.code);
        Asked asked;
        EXPECT_EQ(ResultCodeText(asResult(row.code), asked.languageSource(), QStringLiteral("fi")),
                  QStringLiteral("translated %1 into fi").arg(row.id));
        EXPECT_EQ(asked.languages, QStringList(QStringLiteral("fi")));
        EXPECT_EQ(asked.texts.size(), 1);
    }
}

TEST(ErrorText, AnEmptyLanguageIsHandedOnToo)
{
    Asked asked;
    EXPECT_EQ(ResultCodeText(E_FAIL, asked.languageSource(), CString()),
              QStringLiteral("translated 66 into "));
    EXPECT_EQ(asked.languages, QStringList(QString()));
}

TEST(ErrorText, TwoCodesShareTheMessageOfTheDatabaseThatDoesNotOpen)
{
    EXPECT_EQ(textOf(0x80040206), textOf(0x80040221));
}

TEST(ErrorText, WithoutASourceOrATranslationTheDefaultIsUsed)
{
    const auto silentIn = [](LONG, const char16_t*, const char16_t*, const char16_t*,
                             const CString&) { return CString(); };
    const QString text = QStringLiteral("An unspecified error occurred.");
    EXPECT_EQ(ResultCodeText(E_FAIL, StringSource()), text);
    EXPECT_EQ(ResultCodeText(E_FAIL, silent), text);
    EXPECT_EQ(ResultCodeText(E_FAIL, LanguageStringSource(), QStringLiteral("fi")), text);
    EXPECT_EQ(ResultCodeText(E_FAIL, silentIn, QStringLiteral("fi")), text);
}

TEST(ErrorText, ACodeWithoutADefaultIsShownWhenItIsTranslated)
{
    Asked asked;
    EXPECT_EQ(ResultCodeText(asResult(0x80040200), asked.source()), QStringLiteral("translated 2"));
    EXPECT_EQ(asked.texts, QStringList(QStringLiteral("2 ErrorCodes ErrorCodes ")));
    EXPECT_EQ(textOf(0x80040200), "Unknown error 0x80040200");
    EXPECT_EQ(ResultCodeText(asResult(0x80040200), StringSource()),
              QStringLiteral("Unknown error 0x80040200"));
}

/// The result code that a call raises; S_OK when it raises none.
template <class Call>
HRESULT raisedBy(const Call& call)
{
    try {
        (void)call();
    } catch (const _com_error& error) {
        return error.Error();
    }
    return S_OK;
}

TEST(ErrorText, ExhaustedMemoryIsRaisedAsAResultCode)
{
    // More characters than there are addresses.
    const auto tooLong = [] { return CString(qsizetype(1) << 62, u'x'); };
    ASSERT_THROW((void)tooLong(), std::bad_alloc);
    const auto exhausted = [&](LONG, const char16_t*, const char16_t*, const char16_t*) {
        return tooLong();
    };
    const auto exhaustedIn = [&](LONG, const char16_t*, const char16_t*, const char16_t*,
                                 const CString&) { return tooLong(); };
    const HRESULT expected = asResult(0x8007000E);
    EXPECT_EQ(raisedBy([&] { return ResultCodeText(E_FAIL, exhausted); }), expected);
    EXPECT_EQ(raisedBy([&] { return ResultCodeText(E_FAIL, exhaustedIn, QStringLiteral("fi")); }),
              expected);

    ResultTexts more;
    more.add({5, 400, {}, {}, {}, ResultTextKind::Plain});
    more.add({6, 400, {}, {}, {}, ResultTextKind::DatabaseVersion});
    EXPECT_EQ(raisedBy([&] { return ResultCodeText(5, exhausted, &more); }), expected);
    EXPECT_EQ(raisedBy([&] { return ResultCodeText(6, exhausted, &more); }), expected);
}

} // namespace
} // namespace condtree::test
