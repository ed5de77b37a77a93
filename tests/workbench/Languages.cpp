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
const char* const kDanishFailure = "condtree-workbench: der er ingen overgang \"x\"\n";

TEST_F(Languages, TheOptionChoosesTheLanguageOfConditionsAndMessages)
{
    for (const char* name : {"da", "da_DK", "da-DK", "da_AT"}) {
        EXPECT_EQ(firstRow({text("--lang"), text(name)}), kDanishRow) << name;
        EXPECT_EQ(failure({text("--lang"), text(name)}), kDanishFailure) << name;
    }
}

TEST_F(Languages, WithoutTheOptionItIsTheUsers)
{
    const auto with = [](const char* all, const char* language) {
        return Variables{{text("LC_ALL"), text(all)}, {text("LANGUAGE"), text(language)}};
    };
    EXPECT_EQ(firstRow({}, with("da_DK.UTF-8", "")), kDanishRow);
    EXPECT_EQ(failure({}, with("da_DK.UTF-8", "")), kDanishFailure);
    EXPECT_EQ(failure({}, with("en_GB.UTF-8", "nl:da:en")), kDanishFailure);
    EXPECT_EQ(failure({}, with("en_GB.UTF-8", "qq:da:en")), kDanishFailure);
    EXPECT_EQ(failure({}, with("da_DK.UTF-8", "en:da")), kEnglishFailure);
    EXPECT_EQ(failure({}, with("C.UTF-8", "")), kEnglishFailure);
}

TEST_F(Languages, TheOptionBeatsTheUsersLanguage)
{
    const Variables danish{{text("LC_ALL"), text("da_DK.UTF-8")}, {text("LANGUAGE"), text("da")}};
    EXPECT_EQ(firstRow({text("--lang"), text("en")}, danish), kEnglishRow);
    EXPECT_EQ(failure({text("--lang=en")}, danish), kEnglishFailure);
    EXPECT_EQ(failure({text("--lang=da")}, {{text("LC_ALL"), text("en_US.UTF-8")}}),
              kDanishFailure);
}

TEST_F(Languages, WhatIsSaidBeforeThereIsAWindowIsTranslatedToo)
{
    const auto said = [&](const QStringList& arguments) {
        return runPlain(arguments, {}, {{text("XDG_DATA_DIRS"), text(CONDTREE_TEST_LANGUAGES)}});
    };
    EXPECT_EQ(said({text("--nix"), text("--lang"), text("da")}).errors.toStdString(),
              "condtree-workbench: ukendt tilvalg \"--nix\"\n");
    EXPECT_EQ(said({text("--lang=da"), text("--nix")}).errors.toStdString(),
              "condtree-workbench: ukendt tilvalg \"--nix\"\n");
    EXPECT_EQ(said({text("--lang=da")}).errors.toStdString(),
              "condtree-workbench: der er ingen skærm\n");
    const std::string help = outputOf(said({text("--help"), text("--lang"), text("da")}));
    EXPECT_NE(help.find("  --help             vis denne tekst\n"), std::string::npos) << help;
}

TEST_F(Languages, PlacesAndReasonsAreTranslatedTogether)
{
    const auto refused = [&](const QStringList& arguments) {
        const Finished run = runWith(
            QStringList{text("--lang=da"), text("--transition"), text("Document Approval/Approve")}
            + arguments);
        EXPECT_EQ(run.exitCode, 2);
        return run.errors.toStdString();
    };
    EXPECT_EQ(refused({text("--import"), text("/tmp")}),
              "condtree-workbench: /tmp – er en mappe\n");
    // The toolkit's own words for the reason.
    EXPECT_EQ(refused({text("--export"), text("/no/such/x.json")}),
              "condtree-workbench: /no/such/x.json kan ikke skrives, fordi: "
              "Filen eller mappen findes ikke\n");
    const QString file = fileOf("bad.json", R"({"format":"condtree-condition","version":"1",
"records":[]})");
    EXPECT_EQ(refused({text("--import"), file}),
              "condtree-workbench: " + file.toStdString()
                  + " – version – der ventes et tal, ikke en tekst\n");
    const QString twice = fileOf("twice.json", R"({"a":1,"a":2})");
    EXPECT_EQ(refused({text("--import"), twice}),
              "condtree-workbench: " + twice.toStdString()
                  + " – not JSON: nøglen \"a\" står der to gange (byte 7, line 1)\n");
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

TEST_F(Languages, ABrokenCatalogueIsALineInTheLogAndTheOtherOneIsUsed)
{
    const QString folder = m_database.file("broken/condtree/translations");
    const QString good = text(CONDTREE_TEST_LANGUAGES "/condtree/translations/");
    struct Row {
        const char* broken;
        const char* whole;
        const char* row;
        const char* failure;
    };
    for (const Row& row : {Row{"condtree_da.qm", "workbench_da.qm", kEnglishRow, kDanishFailure},
                           Row{"workbench_da.qm", "condtree_da.qm", kDanishRow, kEnglishFailure}}) {
        QDir(folder).removeRecursively();
        ASSERT_TRUE(QDir().mkpath(folder));
        QFile file(folder + QLatin1Char('/') + text(row.broken));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("no catalogue");
        file.close();
        ASSERT_TRUE(
            QFile::copy(good + text(row.whole), folder + QLatin1Char('/') + text(row.whole)));
        const Variables here{{text("XDG_DATA_DIRS"), m_database.file("broken")}};
        const Finished run = runWith({text("--print"), text("--lang=da")}, here);
        EXPECT_EQ(run.exitCode, 0) << row.broken;
        EXPECT_TRUE(run.output.startsWith(row.row)) << run.output.toStdString();
        EXPECT_EQ(run.errors.count('\n'), 1) << run.errors.toStdString();
        const std::string said = failure({text("--lang=da")}, here);
        EXPECT_EQ(said.substr(said.find('\n') + 1), row.failure) << row.broken;
    }
}

} // namespace
