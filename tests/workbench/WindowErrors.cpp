#include "Program.h"

using namespace condtree;
using namespace condtree::test;

namespace {

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// The program is asked for its window, as from a desktop, and somebody closes the boxes it shows.
class WindowErrors : public Program {
protected:
    Finished runWithUser(const QStringList& arguments) const
    {
        return runPlain(
            arguments, {},
            {{text("QT_QPA_PLATFORM"), text("offscreen")},
             {text("QT_PLUGIN_PATH"), text(CONDTREE_TEST_PLUGINS)},
             {text("XDG_DATA_DIRS"), text(CONDTREE_TEST_LANGUAGES)},
             {text("QT_QPA_GENERIC_PLUGINS"), text("clickinguser:") + m_database.file("boxes")}});
    }

    /// Title, text, advice and button of every box since the last call, a line a box.
    std::string takeBoxes() const
    {
        QFile file(m_database.file("boxes"));
        if (!file.open(QIODevice::ReadOnly))
            return {};
        const std::string boxes = file.readAll().toStdString();
        file.remove();
        return boxes;
    }

    void expectTold(const QStringList& arguments, const QString& failure) const
    {
        const Finished run = runWithUser(arguments);
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_EQ(run.output.toStdString(), "");
        EXPECT_EQ(run.errors.toStdString(), "condtree-workbench: " + failure.toStdString() + "\n");
        EXPECT_EQ(takeBoxes(), "CondTree Workbench|" + failure.toStdString() + "||OK\n");
    }
};

TEST_F(WindowErrors, WhatIsNotThereIsToldInABoxAndOnALine)
{
    const QString db = text("--db");
    expectTold({db, m_database.url(), text("--transition"), text("x")},
               text("there is no transition \"x\""));
    expectTold({db, m_database.url(), text("--user"), text("x")},
               text("the database %1 has no user \"x\"").arg(m_database.url()));
    expectTold({db, SpSqliteUrl(text("/no/such/x.db"))},
               text("there is no database /no/such/x.db"));
}

TEST_F(WindowErrors, ADatabaseThatDoesNotOpenIsToldOnceWithItsReason)
{
    const QString name = text("lock");
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(text("QSQLITE"), name);
        other.setDatabaseName(m_database.file("sample.db"));
        ASSERT_TRUE(other.open());
        ASSERT_TRUE(QSqlQuery(other).exec(text("BEGIN EXCLUSIVE")));
        const QString locked = m_database.url() + text("?busy_timeout=0");
        const QString noDatabase = SpSqliteUrl(fileOf("text.db", QByteArray(5000, 'x')));
        for (const QString& url : {locked, noDatabase}) {
            const Finished run = runWithUser({text("--db"), url});
            EXPECT_EQ(run.exitCode, 2);
            const std::string line = run.errors.trimmed().toStdString();
            const std::string told = "condtree-workbench: cannot open the database ";
            EXPECT_EQ(line.substr(0, told.size()), told);
            EXPECT_GT(line.size(), told.size() + url.toStdString().size() + 20) << line;
            EXPECT_EQ(takeBoxes(),
                      "CondTree Workbench|" + line.substr(line.find("cannot open")) + "||OK\n");
        }
    }
    QSqlDatabase::removeDatabase(name);
}

TEST_F(WindowErrors, TheBoxIsInTheLanguageOfTheProgram)
{
    const Finished run = runWithUser({text("--lang"), text("da"), text("--db"), m_database.url(),
                                      text("--transition"), text("x")});
    EXPECT_EQ(run.errors.toStdString(), "condtree-workbench: der er ingen overgang \"x\"\n");
    EXPECT_EQ(takeBoxes(), "CondTree-værksted|der er ingen overgang \"x\"||OK\n");
}

TEST_F(WindowErrors, WithoutAWindowToOpenThereIsNoBox)
{
    const Finished run = runWithUser(
        {text("--list"), text("--db"), m_database.url(), text("--transition"), text("x")});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors.toStdString(), "condtree-workbench: there is no transition \"x\"\n");
    EXPECT_EQ(takeBoxes(), "");
}

} // namespace
