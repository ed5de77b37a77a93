#include <condtree/platform/StrMgr.h>
#include <condtree/strmgr/StringTable.h>

#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace condtree {
namespace {

const QString kTestFolder = QStringLiteral(CONDTREE_TEST_TRANSLATIONS);
const QString kTitle = QStringLiteral("VELTRIX KIRO");
const QString kKey = QStringLiteral("TS");

/// Starts in English and leaves English behind.
class Strings : public testing::Test {
protected:
    void SetUp() override { load({}); }
    void TearDown() override { load({}); }

    static void load(const QString& language)
    {
        ASSERT_TRUE(loadLanguage(*QCoreApplication::instance(), language, {kTestFolder}));
    }
    static StringTable in(const char* language, const QString& key = kKey)
    {
        return StringTable(kTitle, key, QLatin1String(language), {kTestFolder});
    }
};

TEST_F(Strings, AreThoseOfTheirNumberSectionAndKey)
{
    const StringTable table(kTitle, kKey);
    EXPECT_EQ(table.string(733, u"Workflow"), QStringLiteral("File"));
    EXPECT_EQ(table.string(734, u"Workflow"), QStringLiteral("BOM"));
    EXPECT_EQ(table.string(38, u"Search"), QStringLiteral("And"));
    EXPECT_EQ(StringTable(kTitle, QStringLiteral("OpName")).string(106, u"Search"),
              QStringLiteral("String Contains"));
    EXPECT_EQ(StringTable(kTitle, QStringLiteral("ErrorCodes")).string(66, u"ErrorCodes"),
              QStringLiteral("An unspecified error occurred."));
}

TEST_F(Strings, AreNoneForAnUnknownNumberSectionKeyOrProduct)
{
    const StringTable table(kTitle, kKey);
    EXPECT_EQ(table.string(735, u"Workflow"), std::nullopt);
    EXPECT_EQ(table.string(735, u"Workflow", u"Whatever"), std::nullopt);
    EXPECT_EQ(table.string(733, u"Search"), std::nullopt);
    EXPECT_EQ(table.string(733, nullptr), std::nullopt);
    EXPECT_EQ(StringTable(kTitle, QStringLiteral("RefDlg")).string(733, u"Workflow"), std::nullopt);
    EXPECT_EQ(StringTable(kTitle, QString()).string(733, u"Workflow"), std::nullopt);
    EXPECT_EQ(StringTable(QStringLiteral("Another"), kKey).string(733, u"Workflow"), std::nullopt);
    EXPECT_EQ(StringTable(QString(), kKey).string(733, u"Workflow"), std::nullopt);
}

TEST_F(Strings, AreInTheLanguageOfTheApplication)
{
    const StringTable table(kTitle, kKey);
    load(QStringLiteral("xt"));
    EXPECT_EQ(table.string(733, u"Workflow"), QStringLiteral("Datei"));
    EXPECT_EQ(StringTable(kTitle, kKey, QString()).string(733, u"Workflow"),
              QStringLiteral("Datei"));
    load(QStringLiteral("xu"));
    EXPECT_EQ(table.string(733, u"Workflow"), QStringLiteral("File"));
    EXPECT_EQ(StringTable(QStringLiteral("Another"), kKey).string(733, u"Workflow"), std::nullopt);
}

TEST_F(Strings, AreInTheLanguageThatIsGivenAndLeaveTheApplicationsAlone)
{
    load(QStringLiteral("xu"));
    EXPECT_EQ(in("xt").string(733, u"Workflow"), QStringLiteral("Datei"));
    EXPECT_EQ(in("xt-AT").string(733, u"Workflow"), QStringLiteral("Datei"));
    // Not in that catalogue: English, not the application's language.
    EXPECT_EQ(in("xt", QStringLiteral("OpName")).string(100, u"Search"),
              QStringLiteral("String Equal To"));
    EXPECT_EQ(in("en", QStringLiteral("OpName")).string(106, u"Search"),
              QStringLiteral("String Contains"));
    EXPECT_EQ(TSS_internal(106, u"OpName", u"Search", u"?"), QStringLiteral("Texte contient"));
}

TEST_F(Strings, AreNotThoseOfAnotherNumberWithTheSameEnglishText)
{
    load(QStringLiteral("xt"));
    const StringTable applications(kTitle, kKey);
    const StringTable given = in("xt");
    for (const StringTable* table : {&applications, &given}) {
        EXPECT_EQ(table->string(733, u"Workflow", u"File"), QStringLiteral("Datei"));
        EXPECT_EQ(table->string(735, u"Workflow", u"File"), std::nullopt);
        EXPECT_EQ(table->string(106, u"Search", u"String Contains"), std::nullopt);
    }
}

TEST_F(Strings, OfAHostAreFoundByTheirEnglishText)
{
    const StringTable table = in("xt");
    EXPECT_EQ(table.string(-5, u"Workflow", u"Größe"), QStringLiteral("Maße %1 von %n"));
    EXPECT_EQ(table.string(-6, u"Workflow", u"Länge"), std::nullopt);
    EXPECT_EQ(table.string(-5, u"Workflow"), std::nullopt);
}

TEST_F(Strings, OfAMissingLanguageAreEnglishAndOneLogLine)
{
    const test::ExpectWarning warning(QStringLiteral("no texts for the language yy"));
    const StringTable table = in("yy");
    EXPECT_EQ(table.string(733, u"Workflow"), QStringLiteral("File"));
    EXPECT_EQ(table.string(734, u"Workflow"), QStringLiteral("BOM"));
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(Strings, OfAnotherProductAreNotLookedForInACatalogue)
{
    // No log line about the language, which does not matter.
    const StringTable table(QStringLiteral("Another"), kKey, QStringLiteral("yy"), {kTestFolder});
    EXPECT_EQ(table.string(733, u"Workflow"), std::nullopt);
}

TEST_F(Strings, AreLookedUpWithADefault)
{
    const auto text = [](LONG id, const char16_t* defaultText, const char* language = "") {
        return StringTableText(id, u"ErrorCodes", u"ErrorCodes", defaultText,
                               QLatin1String(language));
    };
    EXPECT_EQ(text(66, u"As the caller has it."), QStringLiteral("As the caller has it."));
    EXPECT_EQ(text(66, u""), QStringLiteral("An unspecified error occurred."));
    for (const char16_t* defaultText : {u"", u"As the caller has it."})
        EXPECT_EQ(text(66, defaultText, "de"),
                  QStringLiteral("Es ist ein nicht näher bezeichneter Fehler aufgetreten."));
    EXPECT_EQ(text(4711, u"A host's own."), QStringLiteral("A host's own."));
    EXPECT_EQ(text(4711, u"A host's own.", "de"), QStringLiteral("A host's own."));
    EXPECT_EQ(text(4711, nullptr), QString());
    EXPECT_EQ(StringTableText(66, nullptr, nullptr, u"x", {}), QStringLiteral("x"));
}

} // namespace
} // namespace condtree
