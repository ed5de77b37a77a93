#include "Program.h"
#include "ReasonTexts.h"
#include "TempDatabase.h"

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
    Finished runWithUser(const QStringList& arguments,
                         const std::function<void()>& inChild = {}) const
    {
        return runPlain(
            arguments, {},
            {{text("QT_QPA_PLATFORM"), text("offscreen")},
             {text("QT_PLUGIN_PATH"), text(CONDTREE_TEST_PLUGINS)},
             {text("XDG_DATA_DIRS"), text(CONDTREE_TEST_LANGUAGES)},
             {text("QT_QPA_GENERIC_PLUGINS"), text("clickinguser:") + m_database.file("boxes")}},
            {}, inChild);
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

    void expectTold(const QStringList& arguments, const QString& failure,
                    const std::function<void()>& inChild = {}) const
    {
        const Finished run = runWithUser(arguments, inChild);
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
    const auto told = [](const QString& url, const char* reason) {
        return text("cannot open the database %1: %2").arg(url, text(reason));
    };
    const QString noDatabase = SpSqliteUrl(fileOf("text.db", QByteArray(5000, 'x')));
    expectTold({text("--db"), noDatabase}, told(noDatabase, kCannotOpen));
    const QString locked = m_database.url() + text("?busy_timeout=0");
    RawConnection other(m_database.file("sample.db"));
    ASSERT_TRUE(other.run(text("BEGIN EXCLUSIVE")));
    expectTold({text("--db"), locked}, told(locked, kLocked));
}

TEST_F(WindowErrors, ADatabaseThatMayNotBeReadNeedsPermission)
{
    if (const QString why = whyPermissionsDoNotBindIt(); !why.isEmpty())
        GTEST_SKIP() << "not checked: " << why.toStdString();
    setMode(fileOf("boxes", {}), 0666);
    setMode(m_database.file("sample.db"), 0000);
    expectTold({text("--db"), m_database.url()},
               text("cannot open the database %1: %2").arg(m_database.url(), text(kPermission)),
               becomeUnprivileged);
}

TEST_F(WindowErrors, TheBoxIsInTheLanguageOfTheProgram)
{
    const Finished run = runWithUser({text("--lang"), text("de"), text("--db"), m_database.url(),
                                      text("--transition"), text("x")});
    EXPECT_EQ(run.errors.toStdString(), "condtree-workbench: Übergang \"x\" ist nicht vorhanden\n");
    EXPECT_EQ(takeBoxes(), "CondTree Workbench|Übergang \"x\" ist nicht vorhanden||OK\n");
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
