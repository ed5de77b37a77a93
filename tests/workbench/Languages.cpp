#include "Program.h"

#include <QDir>

using namespace condtree;
using namespace condtree::test;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

using Variables = QList<std::pair<QString, QString>>;

const char* const kEnglishRow = "Author | String Not Equal To |  | \n";
const char* const kGermanRow = "Author | Text ist ungleich |  | \n";
// Of a language that only the tests have.
const char* const kDanishRow = "Author | Tekst ikke lig med |  | \n";

class Languages : public Program {
protected:
    /// Runs it on the sample where the test's languages are installed.
    Finished runWith(const QStringList& arguments, Variables variables = {}) const
    {
        if (std::none_of(variables.begin(), variables.end(),
                         [](const auto& v) { return v.first == text("XDG_DATA_DIRS"); }))
            variables.append({text("XDG_DATA_DIRS"), text(CONDTREE_TEST_LANGUAGES)});
        return runPlain(QStringList{text("--db"), m_database.url()} + arguments, {}, variables);
    }

    std::string firstRow(const QStringList& arguments, const Variables& variables = {}) const
    {
        const std::string tree =
            outputOf(runWith(QStringList{text("--print")} + arguments, variables));
        return tree.substr(0, tree.find('\n') + 1);
    }

    /// What the program says of a transition that is not there.
    std::string failure(const QStringList& arguments, const Variables& variables = {}) const
    {
        const Finished run = runWith(
            QStringList{text("--list"), text("--transition"), text("x")} + arguments, variables);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.output.toStdString(), "");
        return run.errors.toStdString();
    }
};

const char* const kEnglishFailure = "condtree-workbench: there is no transition \"x\"\n";
const char* const kGermanFailure = "condtree-workbench: Übergang \"x\" ist nicht vorhanden\n";

TEST_F(Languages, TheOptionChoosesTheLanguageOfConditionsAndMessages)
{
    for (const char* name : {"de", "de_AT", "de-AT", "DE", "de_DE.UTF-8", "de_DE@euro"}) {
        EXPECT_EQ(firstRow({text("--lang"), text(name)}), kGermanRow) << name;
        EXPECT_EQ(failure({text("--lang"), text(name)}), kGermanFailure) << name;
    }
    for (const char* name : {"en", "EN", "C", "POSIX", "C.UTF-8"}) {
        EXPECT_EQ(firstRow({text("--lang"), text(name)}), kEnglishRow) << name;
        EXPECT_EQ(failure({text("--lang"), text(name)}), kEnglishFailure) << name;
    }
}

TEST_F(Languages, WithoutTheOptionItIsTheUsers)
{
    const auto with = [](const char* all, const char* language) {
        return Variables{{text("LC_ALL"), text(all)}, {text("LANGUAGE"), text(language)}};
    };
    EXPECT_EQ(firstRow({}, with("de_DE.UTF-8", "")), kGermanRow);
    EXPECT_EQ(failure({}, with("de_DE.UTF-8", "")), kGermanFailure);
    EXPECT_EQ(failure({}, with("en_GB.UTF-8", "nl:de:en")), kGermanFailure);
    EXPECT_EQ(failure({}, with("en_GB.UTF-8", "qq:de:en")), kGermanFailure);
    EXPECT_EQ(failure({}, with("de_DE.UTF-8", "en:de")), kEnglishFailure);
    EXPECT_EQ(failure({}, with("C.UTF-8", "")), kEnglishFailure);
}

TEST_F(Languages, TheOptionBeatsTheUsersLanguage)
{
    const Variables german{{text("LC_ALL"), text("de_DE.UTF-8")}, {text("LANGUAGE"), text("de")}};
    EXPECT_EQ(firstRow({text("--lang"), text("en")}, german), kEnglishRow);
    EXPECT_EQ(failure({text("--lang=en")}, german), kEnglishFailure);
    EXPECT_EQ(failure({text("--lang=de")}, {{text("LC_ALL"), text("en_US.UTF-8")}}),
              kGermanFailure);
}

TEST_F(Languages, WhatIsSaidBeforeThereIsAWindowIsTranslatedToo)
{
    const auto said = [&](const QStringList& arguments) { return runPlain(arguments); };
    EXPECT_EQ(said({text("--nix"), text("--lang"), text("de")}).errors.toStdString(),
              "condtree-workbench: unbekannte Option \"--nix\"\n");
    EXPECT_EQ(said({text("--lang=de"), text("--nix")}).errors.toStdString(),
              "condtree-workbench: unbekannte Option \"--nix\"\n");
    EXPECT_EQ(said({text("--lang=de")}).errors.toStdString(),
              "condtree-workbench: kein Display, auf dem ein Fenster geöffnet werden kann: weder "
              "DISPLAY noch WAYLAND_DISPLAY ist gesetzt\n");
    const std::string help = outputOf(said({text("--help"), text("--lang"), text("de")}));
    EXPECT_NE(help.find("  --help             diese Hilfe ausgeben\n"), std::string::npos) << help;
}

TEST_F(Languages, PlacesAndReasonsAreTranslatedTogether)
{
    const auto refused = [&](const QStringList& arguments) {
        const Finished run = runWith(
            QStringList{text("--lang=de"), text("--transition"), text("Document Approval/Approve")}
            + arguments);
        EXPECT_EQ(run.exitCode, 2);
        return run.errors.toStdString();
    };
    EXPECT_EQ(refused({text("--import"), text("/tmp")}),
              "condtree-workbench: /tmp: ist ein Ordner, keine Datei\n");
    // The toolkit's own words for the reason.
    EXPECT_EQ(refused({text("--export"), text("/no/such/x.json")}),
              "condtree-workbench: /no/such/x.json: kann nicht geschrieben werden: "
              "Die Datei oder das Verzeichnis konnte nicht gefunden werden\n");
    const QString file = fileOf("bad.json", R"({"format":"condtree-condition","version":"1",
"records":[]})");
    EXPECT_EQ(refused({text("--import"), file}),
              "condtree-workbench: " + file.toStdString()
                  + ": version: erwartet wird eine Zahl, nicht ein Text\n");
    const QString twice = fileOf("twice.json", R"({"a":1,"a":2})");
    EXPECT_EQ(
        refused({text("--import"), twice}),
        "condtree-workbench: " + twice.toStdString()
            + ": kein gültiges JSON: der Schlüssel \"a\" kommt zweimal vor (Byte 7, Zeile 1)\n");
}

TEST_F(Languages, AMissingLanguageIsALineInTheLogAndEnglish)
{
    const std::string english = outputOf(runWith({text("--print")}));
    for (const char* name : {"qq", "qq_DK", "../da", "a/../../b"}) {
        const Finished run = runWith({text("--print"), text("--lang"), text(name)});
        EXPECT_EQ(run.exitCode, 0) << name;
        EXPECT_EQ(run.output.toStdString(), english) << name;
        EXPECT_EQ(run.errors.count('\n'), 1) << run.errors.toStdString();
        EXPECT_TRUE(run.errors.contains(name)) << run.errors.toStdString();
    }
    // The user's own, too.
    const Finished own = runWith({text("--print")}, {{text("LC_ALL"), text("nl_NL.UTF-8")}});
    EXPECT_EQ(own.exitCode, 0);
    EXPECT_EQ(own.output.toStdString(), english);
    EXPECT_EQ(own.errors.count('\n'), 1) << own.errors.toStdString();
}

TEST_F(Languages, ALanguageOfConditionsAloneLeavesTheMessagesInEnglishAndALineInTheLogSaysSo)
{
    const QByteArray line = "condtree.workbench: no texts of the workbench for the language da\n";
    const Finished printed = runWith({text("--print"), text("--lang=da")});
    EXPECT_TRUE(printed.output.startsWith(kDanishRow)) << printed.output.toStdString();
    EXPECT_EQ(printed.errors.toStdString(), line.toStdString());
    EXPECT_EQ(failure({text("--lang=da")}), line.toStdString() + kEnglishFailure);
}

/// Damage that makes the toolkit's own reader read beyond the end of a catalogue is among these.
std::vector<QByteArray> damaged(const QByteArray& whole)
{
    std::vector<QByteArray> result;
    constexpr qsizetype kCuts = 40;
    for (qsizetype i = 0; i < kCuts; ++i)
        result.push_back(whole.first(whole.size() * i / kCuts));
    for (const qsizetype at : {16, 17, 18, 19, 20, 21, 40, 100, 500})
        for (const int bit : {0, 7}) {
            QByteArray flipped = whole;
            flipped[at % whole.size()] = static_cast<char>(flipped[at % whole.size()] ^ (1 << bit));
            result.push_back(flipped);
        }
    return result;
}

TEST_F(Languages, NoFileOfTheUsersTakesThePlaceOfTheProgramsOwnTexts)
{
    const QString folder = m_database.file("data/condtree/translations");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile builtIn(text(":/translations/workbench_fr.qm"));
    ASSERT_TRUE(builtIn.open(QIODevice::ReadOnly));
    const QByteArray french = builtIn.readAll();
    ASSERT_GT(french.size(), 5000);
    std::vector<QByteArray> contents = damaged(french);
    contents.push_back(french); // whole, but not German
    for (const QByteArray& content : contents) {
        QFile file(folder + text("/workbench_de.qm"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        ASSERT_EQ(runPlain({text("--nix"), text("--lang=de")}).errors.toStdString(),
                  "condtree-workbench: unbekannte Option \"--nix\"\n")
            << content.size();
    }
}

TEST_F(Languages, ABrokenCatalogueOfConditionsIsALineInTheLogAndEnglish)
{
    const QString folder = m_database.file("broken/condtree/translations");
    ASSERT_TRUE(QDir().mkpath(folder));
    QFile file(folder + text("/condtree_da.qm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no catalogue");
    file.close();
    const Variables here{{text("XDG_DATA_DIRS"), m_database.file("broken")}};
    const Finished run = runWith({text("--print"), text("--lang=da")}, here);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_TRUE(run.output.startsWith(kEnglishRow)) << run.output.toStdString();
    EXPECT_EQ(run.errors.count('\n'), 1) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.contains(file.fileName().toUtf8())) << run.errors.toStdString();
}

} // namespace
