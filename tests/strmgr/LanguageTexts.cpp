#include <condtree/platform/StrMgr.h>
#include <condtree/strmgr/LanguageTexts.h>
#include <condtree/strmgr/StringTable.h>

#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace condtree {
namespace {

const QString kTestFolder = QStringLiteral(CONDTREE_TEST_TRANSLATIONS);

/// Typed by hand: the numbers of the messages of result codes.
const LONG kMessages[] = {0,  1,  3,  4,  5,  6,  7,  8,  9,   10,  11, 12,
                          13, 26, 27, 32, 33, 34, 64, 66, 183, 196, 274};

CString file(const LanguageTexts& texts, const char* language)
{
    return texts(733, u"TS", u"Workflow", u"File", QLatin1String(language));
}

TEST(LanguageTexts, AreInTheLanguageOfEachCall)
{
    const LanguageTexts texts(QStringList{kTestFolder});
    EXPECT_EQ(file(texts, "xt"), QStringLiteral("Datei"));
    EXPECT_EQ(file(texts, "xu"), QStringLiteral("File"));
    EXPECT_EQ(file(texts, "en"), QStringLiteral("File"));
    EXPECT_EQ(file(texts, "xt"), QStringLiteral("Datei"));
    EXPECT_EQ(file(texts, ""), QStringLiteral("File"));
}

TEST(LanguageTexts, OfNoLanguageAreTheApplications)
{
    const LanguageTexts texts(QStringList{kTestFolder});
    QCoreApplication& application = *QCoreApplication::instance();
    ASSERT_TRUE(loadLanguage(application, QStringLiteral("xt"), {kTestFolder}));
    EXPECT_EQ(file(texts, ""), QStringLiteral("Datei"));
    EXPECT_EQ(file(texts, "en"), QStringLiteral("File"));
    EXPECT_TRUE(loadLanguage(application, {}, {}));
}

TEST(LanguageTexts, ReadTheFileOnceForTheLanguageAskedLast)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("condtree_xt.qm"));
    ASSERT_TRUE(QFile::copy(kTestFolder + QStringLiteral("/condtree_xt.qm"), path));
    const LanguageTexts texts(QStringList{folder.path()});
    const LanguageTexts copy = texts; // NOLINT: what is kept is shared
    EXPECT_EQ(file(texts, "xt"), QStringLiteral("Datei"));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(file(texts, "xt"), QStringLiteral("Datei"));
    EXPECT_EQ(file(copy, "xt"), QStringLiteral("Datei"));
    EXPECT_EQ(file(texts, ""), QStringLiteral("File"));
    EXPECT_EQ(file(texts, "xt"), QStringLiteral("Datei"));
}

TEST(LanguageTexts, OfAMissingLanguageAreOneLogLineForAllTexts)
{
    const test::ExpectWarning warning(QStringLiteral("no texts for the language yy"));
    const LanguageTexts texts(QStringList{kTestFolder});
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(file(texts, "yy"), QStringLiteral("File"));
    EXPECT_EQ(warning.count(), 1);
}

TEST(LanguageTexts, AreTheSameByEveryWay)
{
    QStringList languages = QStringLiteral(CONDTREE_LANGUAGES).split(u' ');
    languages << QStringLiteral("en");
    const LanguageTexts inLanguage;
    for (const QString& language : languages) {
        SCOPED_TRACE(language.toStdString());
        ASSERT_TRUE(loadLanguage(*QCoreApplication::instance(), language));
        const StringTable service(QString::fromUtf16(kProductTitle), QStringLiteral("ErrorCodes"));
        for (const LONG id : kMessages) {
            const char16_t* section = u"ErrorCodes";
            const QString english =
                StringTable(QString::fromUtf16(kProductTitle), QStringLiteral("ErrorCodes"),
                            QStringLiteral("en"), {})
                    .string(id, section)
                    .value_or(QString());
            ASSERT_FALSE(english.isEmpty()) << id;
            const auto* text = reinterpret_cast<const char16_t*>(english.utf16());
            const QString found = TSS_internal(id, section, section, text);
            EXPECT_EQ(found == english, language == u"en") << id;
            EXPECT_EQ(StringTableText(id, section, section, text, {}), found) << id;
            EXPECT_EQ(inLanguage(id, section, section, text, language), found) << id;
            EXPECT_EQ(service.string(id, section, text), found) << id;
            EXPECT_EQ(service.string(id, section), found) << id;
        }
    }
    EXPECT_TRUE(loadLanguage(*QCoreApplication::instance(), {}, {}));
}

} // namespace
} // namespace condtree
