#include <condtree/platform/StrMgr.h>
#include <condtree/strmgr/Language.h>

#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <tuple>
#include <vector>

namespace condtree {
namespace {

const QString kTestFolder = QStringLiteral(CONDTREE_TEST_TRANSLATIONS);

/// Starts in English and leaves English behind.
class Localised : public testing::Test {
protected:
    void SetUp() override { loadLanguage(*QCoreApplication::instance(), {}, {}); }
    void TearDown() override { SetUp(); }

    static bool load(const QString& language, const QStringList& folders = {kTestFolder})
    {
        return loadLanguage(*QCoreApplication::instance(), language, folders);
    }
    static qsizetype translators()
    {
        return QCoreApplication::instance()->findChildren<QTranslator*>().size();
    }
};

TEST_F(Localised, TheDefaultTextIsGivenWhereNoLanguageIsLoaded)
{
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("File"));
    EXPECT_EQ(TSS_internal(-1, u"X", u"Y", u"Größe 𝄞"), QStringLiteral("Größe 𝄞"));
}

TEST_F(Localised, ATextIsFoundByItsNumberKeyAndSection)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("Datei"));
    EXPECT_EQ(TSS_internal(734, u"TS", u"Workflow", u"File"), QStringLiteral("Akte"));
    EXPECT_EQ(TSS_internal(733, u"TS", u"Search", u"File"), QStringLiteral("Suchdatei"));
    EXPECT_EQ(TSS_internal(733, u"RefDlg", u"Workflow", u"File"), QStringLiteral("Verweisdatei"));
}

TEST_F(Localised, ANegativeNumberAndTextBeyondAsciiAreFoundAndPlaceMarkersKept)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(-5, u"TS", u"Workflow", u"Größe"), QStringLiteral("Maße %1 von %n"));
}

TEST_F(Localised, ATextWithoutATranslationFallsBackToItsDefault)
{
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"Files"), QStringLiteral("Files"));
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(733, u"TS", u"ItemMgr", u"File"), QStringLiteral("File"));
    EXPECT_EQ(TSS_internal(4711, u"TS", u"Workflow", u"Files"), QStringLiteral("Files"));
    EXPECT_EQ(TSS_internal(180, u"TS", u"Workflow", u"Group"), QStringLiteral("Group"));
}

TEST_F(Localised, ANumberIsTranslatedWhateverTheDefault)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    for (const char16_t* defaultText : {u"Files", u""})
        EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", defaultText), QStringLiteral("Datei"));
}

TEST_F(Localised, ANumberDoesNotTakeTheTextOfAnother)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(735, u"TS", u"Workflow", u"File"), QStringLiteral("File"));
    EXPECT_EQ(TSS_internal(733, u"Other", u"Workflow", u"File"), QStringLiteral("File"));
    EXPECT_EQ(TSS_internal(107, u"TS", u"Search", u"String Contains"),
              QStringLiteral("String Contains"));
    // Nor does a text of somebody else's class of the same name.
    EXPECT_EQ(QCoreApplication::translate("Workflow", "File"), QStringLiteral("File"));
}

TEST_F(Localised, ANumberThatIsNotTheProductsTakesAnEntryOfItsEnglishText)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(-6, u"TS", u"Workflow", u"Größe"), QStringLiteral("Maße %1 von %n"));
}

TEST_F(Localised, AnOperatorIsFoundByItsNumberWhateverTheDefault)
{
    for (const char16_t* defaultText : {u"?", u"String Contains", u""}) {
        ASSERT_TRUE(load(QStringLiteral("xt")));
        EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", defaultText),
                  QStringLiteral("Text enthält"));
        ASSERT_TRUE(load(QStringLiteral("en"), {}));
        EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", defaultText),
                  QStringLiteral("String Contains"));
    }
}

TEST_F(Localised, ANumberThatNamesNoOperatorHasItsDefault)
{
    for (const LONG id : {99, 109, 119, 126, 129, 136, 138, 140, 160}) {
        EXPECT_EQ(TSS_internal(id, u"OpName", u"Search", u"?"), QStringLiteral("?")) << id;
        EXPECT_EQ(TSS_internal(id, u"OpName", u"Search", u""), QString()) << id;
    }
}

TEST_F(Localised, EveryOperatorHasItsEnglishName)
{
    const std::vector<std::pair<LONG, const char*>> names{
        {100, "String Equal To"},
        {101, "String Not Equal To"},
        {102, "String Less Than"},
        {103, "String Bigger Than"},
        {104, "String Less Than or Equal"},
        {105, "String Bigger Than or Equal"},
        {106, "String Contains"},
        {107, "String Does Not Contain"},
        {108, "Text Compare"},
        {120, "Number Equal To"},
        {121, "Number Not Equal To"},
        {122, "Number Less Than"},
        {123, "Number Bigger Than"},
        {124, "Number Less Than or Equal"},
        {125, "Number Bigger Than or Equal"},
        {130, "Date Equal To"},
        {131, "Date Not Equal To"},
        {132, "Date Less Than"},
        {133, "Date Bigger Than"},
        {134, "Date Less Than or Equal"},
        {135, "Date Bigger Than or Equal"},
        {139, "Binary Equal To"},
    };
    for (const auto& [id, name] : names)
        EXPECT_EQ(TSS_internal(id, u"OpName", u"Search", u"?").toStdString(), name) << id;
}

TEST_F(Localised, AnEmptyDefaultIsNotTheCataloguesHeader)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    EXPECT_EQ(TSS_internal(1, u"", u"", u""), QString());
    EXPECT_EQ(TSS_internal(1, nullptr, nullptr, nullptr), QString());
}

TEST_F(Localised, AnotherLanguageReplacesTheOneBefore)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    ASSERT_TRUE(load(QStringLiteral("xu")));
    EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", u"?"), QStringLiteral("Texte contient"));
    // Not in the second catalogue, and the first one is gone.
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("File"));
    EXPECT_EQ(translators(), 1);
}

TEST_F(Localised, TheFirstFolderThatHasACatalogueIsTaken)
{
    const QTemporaryDir empty;
    ASSERT_TRUE(load(QStringLiteral("xt"),
                     {QString(), QStringLiteral("/nowhere"), empty.path(), kTestFolder}));
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("Datei"));

    const QTemporaryDir first;
    ASSERT_TRUE(QFile::copy(kTestFolder + QStringLiteral("/condtree_xu.qm"),
                            first.filePath(QStringLiteral("condtree_xt.qm"))));
    ASSERT_TRUE(load(QStringLiteral("xt"), {first.path(), kTestFolder}));
    EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", u"?"), QStringLiteral("Texte contient"));
}

TEST_F(Localised, AMissingCatalogueIsOneLogLineAndEnglish)
{
    ASSERT_TRUE(load(QStringLiteral("xt")));
    {
        const test::ExpectWarning warning(QStringLiteral("xx"));
        EXPECT_FALSE(load(QStringLiteral("xx")));
        EXPECT_EQ(warning.count(), 1);
    }
    EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("File"));
    EXPECT_EQ(translators(), 0);
}

TEST_F(Localised, ANameThatLeadsOutOfTheFolderIsNoLanguage)
{
    const test::ExpectWarning warning(QStringLiteral("no texts for the language"));
    EXPECT_FALSE(load(QStringLiteral("../translations/condtree_xt")));
    EXPECT_FALSE(load(QStringLiteral("x/../../xt")));
    EXPECT_EQ(warning.count(), 2);
}

TEST_F(Localised, EnglishNeedsNoCatalogue)
{
    EXPECT_TRUE(load(QStringLiteral("en"), {}));
    EXPECT_TRUE(load(QString(), {}));
    EXPECT_EQ(translators(), 0);
}

TEST_F(Localised, ALanguageIsFoundWithoutItsCountryOrScript)
{
    for (const char16_t* name : {u"xt_AT", u"xt-AT", u"xt_Latn_AT", u"xt-Latn-AT"}) {
        ASSERT_TRUE(load(QString::fromUtf16(name))) << QString::fromUtf16(name).toStdString();
        EXPECT_EQ(TSS_internal(733, u"TS", u"Workflow", u"File"), QStringLiteral("Datei"));
    }
}

TEST_F(Localised, ALanguageOfACountryGoesBeforeTheLanguage)
{
    const QTemporaryDir folder;
    const auto copy = [&](const char* from, const char* to) {
        return QFile::copy(kTestFolder + QLatin1String("/condtree_%1.qm").arg(QLatin1String(from)),
                           folder.filePath(QLatin1String("condtree_%1.qm").arg(QLatin1String(to))));
    };
    ASSERT_TRUE(copy("xt", "xt") && copy("xu", "xt_AT"));
    ASSERT_TRUE(load(QStringLiteral("xt-AT"), {folder.path()}));
    EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", u"?"), QStringLiteral("Texte contient"));
    ASSERT_TRUE(load(QStringLiteral("xt_CH"), {folder.path()}));
    EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", u"?"), QStringLiteral("Text enthält"));
}

TEST_F(Localised, ThePreferredLanguageIsTheFirstThatHasTexts)
{
    const struct {
        QStringList wanted;
        const char* language;
    } rows[] = {
        {{}, "en"},
        {{QStringLiteral("xt")}, "xt"},
        {{QStringLiteral("xt-AT"), QStringLiteral("xu")}, "xt-AT"},
        {{QStringLiteral("yy"), QStringLiteral("xu_FR"), QStringLiteral("xt")}, "xu_FR"},
        {{QStringLiteral("yy"), QStringLiteral("en-GB"), QStringLiteral("xt")}, "en"},
        {{QStringLiteral("C")}, "en"},
        {{QStringLiteral("en_US")}, "en"},
        {{QStringLiteral("english"), QStringLiteral("xt")}, "xt"},
        // None has: the first is named, so that loading it says so.
        {{QStringLiteral("yy"), QStringLiteral("zz")}, "yy"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(preferredLanguage(row.wanted, {kTestFolder}), QLatin1String(row.language))
            << row.wanted.join(u' ').toStdString();
}

TEST_F(Localised, EveryLanguageLiesBesideTheLibraryAndNamesAnOperatorItsWay)
{
    QStringList names;
    const QStringList languages = QStringLiteral(CONDTREE_LANGUAGES).split(u' ');
    ASSERT_GE(languages.size(), 5);
    for (const QString& language : languages) {
        ASSERT_TRUE(load(language, languageFolders())) << language.toStdString();
        names << TSS_internal(106, u"OpName", u"Search", u"?");
    }
    names << QStringLiteral("String Contains");
    EXPECT_EQ(names.removeDuplicates(), 0) << names.join(u' ').toStdString();
}

} // namespace
} // namespace condtree
