// Messages that a host brings for codes of its own.
#include "ErrorTextSources.h"

#include <gtest/gtest.h>

#include <ios>

namespace condtree::test {
namespace {

constexpr DWORD kCode = 0x80040501;

ResultText plain(DWORD code, const char16_t* defaultText, LONG id = 400)
{
    return {asResult(code),
            id,
            QStringLiteral("RefDlg"),
            QStringLiteral("Dialogs"),
            QString::fromUtf16(defaultText),
            ResultTextKind::Plain};
}

ResultText ofKind(ResultTextKind kind, const char16_t* defaultText = u"")
{
    ResultText text = plain(kCode, defaultText);
    text.kind = kind;
    return text;
}

class ErrorTextHost : public testing::Test {
protected:
    std::string text(DWORD code) { return textOf(code, &texts); }
    CString translated(DWORD code)
    {
        return ResultCodeText(asResult(code), asked.source(), &texts);
    }
    CString translatedIntoFinnish(DWORD code)
    {
        return ResultCodeText(asResult(code), asked.languageSource(), QStringLiteral("fi"), &texts);
    }

    ResultTexts texts;
    Asked asked;
};

TEST_F(ErrorTextHost, AMessageIsUsedFromWhenItIsAdded)
{
    EXPECT_EQ(text(kCode), "IDispatch error #769");
    texts.add(plain(kCode, u"The host's."));
    EXPECT_EQ(text(kCode), "The host's.");
    EXPECT_EQ(textOf(kCode), "IDispatch error #769");
    texts.add(plain(kCode, u"Another."));
    EXPECT_EQ(text(kCode), "Another.");
    EXPECT_EQ(text(kCode + 1), "IDispatch error #770");
    EXPECT_EQ(text(kCode - 1), "IDispatch error #768");
}

TEST_F(ErrorTextHost, AMessageIsTranslatedByItsIdKeyAndSection)
{
    texts.add(plain(kCode, u"The host's."));
    EXPECT_EQ(translated(kCode), QStringLiteral("translated 400"));
    EXPECT_EQ(asked.texts, QStringList(QStringLiteral("400 RefDlg Dialogs The host's.")));
}

TEST_F(ErrorTextHost, AMessageIsTranslatedIntoTheLanguage)
{
    texts.add(plain(kCode, u"The host's."));
    EXPECT_EQ(translatedIntoFinnish(kCode), QStringLiteral("translated 400 into fi"));
    EXPECT_EQ(asked.texts, QStringList(QStringLiteral("400 RefDlg Dialogs The host's.")));
    EXPECT_EQ(asked.languages, QStringList(QStringLiteral("fi")));
}

TEST_F(ErrorTextHost, WithoutASourceOrATranslationTheDefaultIsUsed)
{
    texts.add(plain(kCode, u"The host's."));
    const QString expected = QStringLiteral("The host's.");
    EXPECT_EQ(ResultCodeText(asResult(kCode), silent, &texts), expected);
    EXPECT_EQ(ResultCodeText(asResult(kCode), StringSource(), &texts), expected);
    EXPECT_EQ(ResultCodeText(asResult(kCode), LanguageStringSource(), CString(), &texts), expected);
}

TEST_F(ErrorTextHost, AMessageWithoutADefaultIsShownWhenItIsTranslated)
{
    texts.add(plain(kCode, u""));
    texts.add(plain(0x80040232, u"", 401));
    EXPECT_EQ(translated(kCode), QStringLiteral("translated 400"));
    EXPECT_EQ(text(kCode), "IDispatch error #769");
    EXPECT_EQ(ResultCodeText(asResult(kCode), StringSource(), &texts).toStdString(),
              "IDispatch error #769");
    EXPECT_EQ(text(0x80040232), "Archive server revision control error 0 (0x080040232)");
}

TEST_F(ErrorTextHost, AMessageWithoutKeyAndSectionAsksWithEmptyOnes)
{
    texts.add({asResult(kCode), 7, {}, {}, QStringLiteral("Bare."), ResultTextKind::Plain});
    EXPECT_EQ(translated(kCode), QStringLiteral("translated 7"));
    EXPECT_EQ(asked.texts, QStringList(QStringLiteral("7   Bare.")));
}

TEST_F(ErrorTextHost, AMessageComesBeforeTheRangesAndTheSystem)
{
    for (const DWORD code : {0x80072EE0U, 0x80072EE7U, 0x80072FA0U, 0x80040232U, 0x800402C4U,
                             0x80040231U, 0x80070005U, 0x80040154U, 0x80040000U, 0x80040F00U,
                             0x80550000U, 0x00040220U, 0x00000002U, 0xFFFFFFFFU}) {
        texts.add(plain(code, u"The host's."));
        EXPECT_EQ(text(code), "The host's.") << std::hex << code;
    }
}

TEST_F(ErrorTextHost, TheControlsOwnMessagesAreNeverReplaced)
{
    for (const DWORD code : {0x00000000U, 0x00000001U, 0x00040218U, 0x00040219U, 0x80004001U,
                             0x80004003U, 0x80004005U, 0x8000FFFFU, 0x80040201U, 0x80040206U,
                             0x8004020BU, 0x80040221U, 0x8007000EU, 0x80070057U}) {
        for (const ResultTextKind kind :
             {ResultTextKind::Plain, ResultTextKind::DatabaseVersion, ResultTextKind::SystemVersion,
              ResultTextKind::SymbolicName}) {
            ResultText other = plain(code, u"The host's.");
            other.kind = kind;
            texts.add(other);
            EXPECT_EQ(text(code), textOf(code)) << std::hex << code;
            EXPECT_EQ(ResultCodeText(asResult(code), silent, &texts).toStdString(), textOf(code));
        }
    }
}

TEST_F(ErrorTextHost, ACodeThatIsKnownWithoutATextTakesTheHosts)
{
    texts.add(plain(0x80040200, u"The host's."));
    EXPECT_EQ(text(0x80040200), "The host's.");
    EXPECT_EQ(translated(0x80040200), QStringLiteral("translated 2"));
}

TEST_F(ErrorTextHost, TheMessageOfTheDatabaseVersionNamesTheSupportedOnes)
{
    texts.add(ofKind(ResultTextKind::DatabaseVersion, u"Not used."));
    EXPECT_EQ(text(kCode), "The SQL Server version is not supported by Tamsel.\n"
                           "Supported versions:\n"
                           "  SQL Server 2019 or later.\n"
                           "  For SQL Server 2019 Cumulative Update 22 or later.");
    EXPECT_EQ(ResultCodeText(asResult(kCode), silent, &texts).toStdString(), text(kCode));
    EXPECT_EQ(ResultCodeText(asResult(kCode), StringSource(), &texts).toStdString(), text(kCode));
}

TEST_F(ErrorTextHost, TheMessageOfTheDatabaseVersionIsTranslatedByItsParts)
{
    texts.add(ofKind(ResultTextKind::DatabaseVersion));
    EXPECT_EQ(translatedIntoFinnish(kCode),
              QStringLiteral("translated 183 into fi\ntranslated 196 into fi\n"
                             "  SQL Server 2019 or later.\n"
                             "  For SQL Server 2019 Cumulative Update 22 or later."));
    EXPECT_EQ(asked.texts,
              (QStringList{QStringLiteral("183 ErrorCodes ErrorCodes The SQL Server version is "
                                          "not supported by Tamsel."),
                           QStringLiteral("196 ErrorCodes ErrorCodes Supported versions:")}));
    EXPECT_EQ(asked.languages, (QStringList{QStringLiteral("fi"), QStringLiteral("fi")}));
}

TEST_F(ErrorTextHost, TheMessageOfTheSystemVersionNamesWhatThePlatformAsksFor)
{
    texts.add(ofKind(ResultTextKind::SystemVersion, u"Not used."));
    EXPECT_EQ(text(kCode), "The operating system version is not supported\n"
                           "The following is the minimum requirement:\n"
                           "  Debian 12 or later.");
    EXPECT_EQ(ResultCodeText(asResult(kCode), silent, &texts).toStdString(), text(kCode));
}

TEST_F(ErrorTextHost, TheMessageOfTheSystemVersionIsTranslatedButForTheRequirements)
{
    texts.add(ofKind(ResultTextKind::SystemVersion));
    EXPECT_EQ(translated(kCode), QStringLiteral("translated 274\n  Debian 12 or later."));
    EXPECT_EQ(asked.texts,
              QStringList(QStringLiteral(
                  "274 ErrorCodes ErrorCodes The operating system version is not supported\n"
                  "The following is the minimum requirement:")));
}

TEST_F(ErrorTextHost, ASymbolicNameIsShownAsItIs)
{
    texts.add(ofKind(ResultTextKind::SymbolicName, u"HOST_E_ODD"));
    EXPECT_EQ(translated(kCode), QStringLiteral("HOST_E_ODD"));
    EXPECT_EQ(translatedIntoFinnish(kCode), QStringLiteral("HOST_E_ODD"));
    EXPECT_EQ(asked.texts, QStringList());
    texts.add(ofKind(ResultTextKind::SymbolicName));
    EXPECT_EQ(text(kCode), "IDispatch error #769");
}

TEST_F(ErrorTextHost, ASourceMayReplaceTheMessageThatItIsAskedFor)
{
    texts.add(plain(kCode, u"The first one."));
    const auto replacing = [this](LONG, const char16_t*, const char16_t*, const char16_t*) {
        texts.add(plain(kCode, u"The second one."));
        return CString();
    };
    EXPECT_EQ(ResultCodeText(asResult(kCode), replacing, &texts).toStdString(), "The first one.");
    EXPECT_EQ(text(kCode), "The second one.");
}

} // namespace
} // namespace condtree::test
