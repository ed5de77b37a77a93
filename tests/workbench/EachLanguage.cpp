#include "Program.h"

using namespace condtree;
using namespace condtree::test;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// What the program says in one of its languages, of each of the catalogues that it comes with.
struct Said {
    const char* language;
    const char* row;     ///< The first row of the condition that is printed: an operator.
    const char* group;   ///< Its group.
    const char* usage;   ///< The first line of the help.
    const char* failure; ///< Of a database, %1, that is none.
};

const Said kSaid[] = {
    {"en", "Author | String Not Equal To |  | ", "Or", "Usage: condtree-workbench [OPTION]...",
     "cannot open the database %1: Could not open database. This could happen if the network "
     "connection is broken or if the database has been removed."},
    {"de", "Author | Text ist ungleich |  | ", "Oder", "Aufruf: condtree-workbench [OPTION]...",
     "Datenbank %1 kann nicht geöffnet werden: Die Datenbank konnte nicht geöffnet werden. "
     "Möglicherweise ist die Netzwerkverbindung unterbrochen, oder die Datenbank wurde entfernt."},
    {"es", "Author | Texto distinto de |  | ", "O", "Uso: condtree-workbench [OPCIÓN]...",
     "no se puede abrir la base de datos %1: No se pudo abrir la base de datos. Es posible que se "
     "haya interrumpido la conexión de red o que se haya eliminado la base de datos."},
    {"fr", "Author | Texte différent de |  | ", "Ou",
     "Utilisation\u00A0: condtree-workbench [OPTION]...",
     "impossible d’ouvrir la base de données %1\u00A0: Impossible d’ouvrir la base de données. La "
     "connexion réseau est peut-être interrompue ou la base de données a été supprimée."},
    {"ja", "Author | 文字列が等しくない |  | ", "または",
     "使用法: condtree-workbench [オプション]...",
     "データベース %1 を開けません: "
     "データベースを開けませんでした。ネットワーク接続が切れているか、"
     "データベースが削除された可能性があります。"},
    {"sv", "Author | Text inte lika med |  | ", "Eller",
     "Användning: condtree-workbench [FLAGGA]...",
     "databasen %1 kan inte öppnas: Databasen kunde inte öppnas. Nätverksanslutningen kan vara "
     "bruten eller databasen kan ha tagits bort."},
};

using EachLanguage = Program;

TEST_F(EachLanguage, PrintsOperatorsAndGroups)
{
    for (const Said& said : kSaid) {
        const QStringList lines =
            QString::fromStdString(
                outputOf(run({text("--print"), text("--lang"), text(said.language)})))
                .split(u'\n');
        EXPECT_EQ(lines.value(0).toStdString(), said.row);
        EXPECT_TRUE(lines.contains(text(said.group))) << said.language << '\n'
                                                      << lines.join(u'\n').toStdString();
    }
}

TEST_F(EachLanguage, SaysHowTheProgramIsUsed)
{
    for (const Said& said : kSaid) {
        const std::string help =
            outputOf(runPlain({text("--help"), text("--lang"), text(said.language)}));
        EXPECT_EQ(help.substr(0, help.find('\n')), said.usage);
    }
}

TEST_F(EachLanguage, SaysWhyADatabaseDoesNotOpen)
{
    const QString url = SpSqliteUrl(fileOf("text.db", QByteArray(5000, 'x')));
    for (const Said& said : kSaid) {
        const Finished failed =
            runPlain({text("--db"), url, text("--list"), text("--lang"), text(said.language)});
        EXPECT_EQ(failed.errors.toStdString(),
                  "condtree-workbench: " + text(said.failure).arg(url).toStdString() + "\n");
        EXPECT_EQ(failed.exitCode, 2);
    }
}

} // namespace
