// Nothing that the code shows may be missing in the catalogue of texts, and nothing in it may be
// left over. This test sees the folders that own texts; the library under test does not.
#include <condtree/model/ControlText.h>
#include <condtree/platform/ResultTexts.h>
#include <condtree/storedprocs/SpConnect.h>
#include <condtree/values/OperatorCatalogue.h>

#include <gtest/gtest.h>

#include <QFile>
#include <QStringList>

#include <algorithm>
#include <iterator>
#include <set>
#include <tuple>

namespace condtree {
namespace {

/// Key, section, number and English text.
using Text = std::tuple<QString, QString, LONG, QString>;
using Texts = std::set<Text>;

std::string toString(const Texts& texts)
{
    QStringList lines;
    for (const auto& [key, section, id, english] : texts)
        lines << QStringLiteral("%1/%2/%3 %4").arg(key, section).arg(id).arg(english);
    return lines.join(u'\n').toStdString();
}

/// The texts of a table, but those without English.
Texts tableOf(const char* path, qsizetype key, qsizetype section, qsizetype id, qsizetype text)
{
    QFile file(QFile::decodeName(path));
    if (!file.open(QIODevice::ReadOnly)) {
        ADD_FAILURE() << "cannot read " << path;
        return {};
    }
    Texts texts;
    bool isHeader = true;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        if (line.startsWith(u'#'))
            continue;
        const QStringList fields = line.split(u'\t');
        QString english = fields.at(text);
        english.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
        if (!isHeader && !english.isEmpty() && english != u"-")
            texts.emplace(fields.at(key), fields.at(section), fields.at(id).toInt(), english);
        isHeader = false;
    }
    return texts;
}

Texts catalogue()
{
    return tableOf(CONDTREE_TEXTS, 0, 1, 2, 3);
}

/// The messages of the data-access library's own codes: of the whole range, so that none is
/// forgotten.
Texts textsOfTheLibrary()
{
    ResultTexts added;
    SpAddResultTexts(added);
    Texts texts;
    for (DWORD code = 0x80040500; code <= 0x800405FF; ++code) {
        if (const ResultText* text = added.find(static_cast<HRESULT>(code)))
            texts.emplace(text->key, text->section, text->id, text->defaultText);
    }
    return texts;
}

Texts textsOfTheCode()
{
    Texts texts = tableOf(CONDTREE_RESULT_CODES, 3, 4, 1, 2);
    for (const TextRef& text : kControlTexts)
        texts.emplace(QString::fromUtf16(text.key), QString::fromUtf16(text.section), text.id,
                      QString::fromUtf16(text.defaultText));
    for (const OperatorEntry& entry : operatorCatalogue())
        texts.emplace(QStringLiteral("OpName"), QStringLiteral("Search"), entry.command,
                      QString::fromUtf16(entry.name));
    const Texts library = textsOfTheLibrary();
    texts.insert(library.begin(), library.end());
    return texts;
}

std::string difference(const Texts& from, const Texts& what)
{
    Texts rest;
    std::ranges::set_difference(from, what, std::inserter(rest, rest.end()));
    return toString(rest);
}

TEST(EveryText, OfTheCodeIsInTheCatalogue)
{
    EXPECT_GT(textsOfTheCode().size(), 60U);
    EXPECT_EQ(difference(textsOfTheCode(), catalogue()), "");
}

TEST(EveryText, OfTheDataAccessLibraryIsInItsRange)
{
    EXPECT_GE(textsOfTheLibrary().size(), 3U);
}

TEST(EveryText, OfTheCatalogueIsUsed)
{
    EXPECT_EQ(difference(catalogue(), textsOfTheCode()), "");
}

} // namespace
} // namespace condtree
