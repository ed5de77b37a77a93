// What a disk, a copy that broke off or a foreign tool may make of a catalogue: its texts or none
// of them, and never a crash.
#include <condtree/platform/StrMgr.h>
#include <condtree/strmgr/LanguageTexts.h>

#include "support/WarningGuard.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTranslator>
#include <QtEndian>

#include <memory>
#include <optional>
#include <random>
#include <vector>

namespace condtree {
namespace {

struct Name {
    LONG id;
    const char16_t* key;
    const char16_t* section;
    const char16_t* english;
};

/// From the first and the last section of a catalogue, and a number that it does not have.
const Name kNames[] = {
    {66, u"ErrorCodes", u"ErrorCodes", u"An unspecified error occurred."},
    {15, u"TS", u"ItemMgr", u"Item"},
    {106, u"OpName", u"Search", u"String Contains"},
    {39, u"TS", u"Search", u"Or"},
    {58, u"TS", u"Workflow", u"Yes"},
    {733, u"TS", u"Workflow", u"File"},
    {4711, u"TS", u"Workflow", u"Not there"},
};

QStringList texts()
{
    QStringList all;
    for (const Name& name : kNames)
        all << TSS_internal(name.id, name.key, name.section, name.english);
    return all;
}

class DamagedCatalogues : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(load(QStringLiteral("en"), {})); }
    void TearDown() override { SetUp(); }

    static bool load(const QString& language, const QStringList& folders)
    {
        return loadLanguage(*QCoreApplication::instance(), language, folders);
    }

    /// The German catalogue.
    static QByteArray german()
    {
        for (const QString& folder : languageFolders()) {
            QFile file(folder + QStringLiteral("/condtree_de.qm"));
            if (file.open(QIODevice::ReadOnly))
                return file.readAll();
        }
        return {};
    }

    /// The texts with these bytes as the language, by which way ever; none where it is refused,
    /// which must be one log line and English.
    std::optional<QStringList> textsOf(const QByteArray& bytes)
    {
        QFile file(m_folder.filePath(QStringLiteral("condtree_xb.qm")));
        // Written over: emptying a file first takes a disk longer than all the rest.
        EXPECT_TRUE(file.open(QIODevice::ReadWrite));
        EXPECT_EQ(file.write(bytes), bytes.size());
        EXPECT_TRUE(file.size() == bytes.size() || file.resize(bytes.size()));
        file.close();
        std::optional<test::ExpectWarning> warning(QStringLiteral("condtree_xb.qm"));
        const bool isGood = load(QStringLiteral("xb"), {m_folder.path()});
        const int lines = warning->count();
        if (isGood)
            qWarning("condtree_xb.qm"); // what is expected must come
        warning.reset();
        EXPECT_EQ(lines, isGood ? 0 : 1);
        QStringList found = texts();
        if (isGood)
            return found;
        EXPECT_EQ(found, m_english);
        EXPECT_EQ(QCoreApplication::instance()->findChildren<QTranslator*>().size(), 0);
        return std::nullopt;
    }

    QTemporaryDir m_folder;
    QStringList m_english = texts();
};

TEST_F(DamagedCatalogues, WhatIsNoCatalogueIsRefused)
{
    for (const QByteArray& bytes : {QByteArray("not a catalogue at all"), QByteArray(),
                                    QByteArray(4096, '\xff'), QByteArray(4096, '\0')})
        EXPECT_EQ(textsOf(bytes), std::nullopt) << bytes.size();
}

TEST_F(DamagedCatalogues, EveryBeginningOfACatalogueHasAllTextsOrIsRefused)
{
    const QByteArray whole = german();
    const std::optional<QStringList> all = textsOf(whole);
    ASSERT_TRUE(all);
    EXPECT_EQ(all->at(3), QStringLiteral("Oder"));
    int good = 0;
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const std::optional<QStringList> found = textsOf(whole.first(size));
        good += found ? 1 : 0;
        EXPECT_EQ(found.value_or(*all), *all);
        if (HasFailure())
            FAIL() << "cut to " << size;
    }
    // That without the plural rules, which the texts do not need.
    EXPECT_EQ(good, 1);
    EXPECT_EQ(textsOf(whole + '\0'), std::nullopt);
}

TEST_F(DamagedCatalogues, AFlippedBitIsRefusedOrInTheLettersOfATranslation)
{
    const QByteArray whole = german();
    ASSERT_FALSE(whole.isEmpty());
    std::mt19937 random(20240601);
    int refused = 0;
    constexpr int kFlips = 3000;
    for (int i = 0; i < kFlips; ++i) {
        const auto bit = static_cast<qsizetype>(random() % static_cast<unsigned>(whole.size() * 8));
        QByteArray bytes = whole;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        const std::optional<QStringList> found = textsOf(bytes);
        refused += found ? 0 : 1;
        if (HasFailure())
            FAIL() << "bit " << bit;
    }
    // Most bytes are letters of translations.
    EXPECT_GT(refused, kFlips / 5);
    EXPECT_LT(refused, kFlips * 4 / 5);
}

TEST_F(DamagedCatalogues, EveryBitBesideTheTranslationsAndNamesIsChecked)
{
    const QByteArray whole = german();
    // Up to the length of the first translation, behind the table of hashes.
    ASSERT_GT(whole.size(), 500);
    const qsizetype end = 23 + 5 + qFromBigEndian<quint32>(whole.constData() + 24) + 5 + 5;
    ASSERT_GT(end, 500);
    for (qsizetype bit = 0; bit < end * 8; ++bit) {
        if (bit / 8 == 21 || bit / 8 == 22)
            continue; // the name of the language
        QByteArray bytes = whole;
        bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ (1 << bit % 8));
        ASSERT_EQ(textsOf(bytes), std::nullopt) << bit;
    }
}

TEST_F(DamagedCatalogues, ACatalogueWithoutTextsIsRefused)
{
    const QByteArray whole = german();
    EXPECT_EQ(textsOf(whole.first(16)), std::nullopt);
    EXPECT_EQ(textsOf(whole.first(23)), std::nullopt);                 // its language
    EXPECT_EQ(textsOf(whole.first(23) + whole.last(7)), std::nullopt); // and its plural rules
}

TEST_F(DamagedCatalogues, ACatalogueThatDependsOnFilesOrHasASectionTwiceIsRefused)
{
    const QByteArray whole = german();
    const QByteArray rules = whole.last(7);
    EXPECT_NE(textsOf(whole), std::nullopt);
    EXPECT_EQ(textsOf(whole + rules), std::nullopt);
    EXPECT_EQ(textsOf(whole + QByteArray("\x96\0\0\0\x06\0\0\0\x02\0x", 11)), std::nullopt);
    EXPECT_EQ(textsOf(whole + QByteArray("\x2e\0\0\0\x01x", 6)), std::nullopt);
    EXPECT_EQ(textsOf(whole + QByteArray("\x2f\0\0\0\0", 5)), std::nullopt);
}

TEST_F(DamagedCatalogues, ANamedLanguageIsRefusedLikewise)
{
    QFile file(m_folder.filePath(QStringLiteral("condtree_xb.qm")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(german().first(5000));
    file.close();
    const test::ExpectWarning warning(QStringLiteral("condtree_xb.qm"));
    const LanguageTexts inLanguage(QStringList{m_folder.path()});
    for (const Name& name : kNames)
        EXPECT_EQ(inLanguage(name.id, name.key, name.section, name.english, QStringLiteral("xb")),
                  QString::fromUtf16(name.english));
    EXPECT_EQ(warning.count(), 1);
}

} // namespace
} // namespace condtree
