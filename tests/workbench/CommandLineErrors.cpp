#include "Program.h"
#include "ReasonTexts.h"
#include "TempDatabase.h"

#include <QFileInfo>

using namespace condtree;
using namespace condtree::test;

namespace {

const char* const kTransition = "Document Approval/Approve";

class CommandLineErrors : public Program {
protected:
    /// Expects one line on the error stream, nothing on the output and the exit code 2.
    static void expectError(const Finished& run, const QString& line, const std::string& name)
    {
        EXPECT_EQ(run.errors.toStdString(), "condtree-workbench: " + line.toStdString() + "\n")
            << name;
        EXPECT_EQ(run.output.toStdString(), "") << name;
        EXPECT_EQ(run.exitCode, 2) << name;
    }

    /// Imports a file, which must be refused with a line that begins with the file's name.
    void expectImportRefused(const QString& file, const QString& line,
                             const std::string& name) const
    {
        expectError(runOn(kTransition, {QStringLiteral("--import"), file}),
                    file + QStringLiteral(": ") + line, name);
    }
};

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

TEST_F(CommandLineErrors, AWrongCommandLineIsRefusedWithoutADatabaseOrADisplay)
{
    struct Row {
        const char* name;
        QStringList arguments;
        const char* line;
    };
    const Row rows[] = {
        {"unknown", {text("--foo")}, "unknown option \"--foo\""},
        {"unknown beside a task", {text("--list"), text("--foo")}, "unknown option \"--foo\""},
        {"a word", {text("x.json")}, "unexpected argument \"x.json\""},
        {"no value", {text("--export")}, "--export needs a value: FILE"},
        {"no value before another",
         {text("--transition"), text("--print")},
         "--transition needs a value: NAME"},
        {"import alone", {text("--import"), text("x")}, "--import needs --transition"},
    };
    for (const Row& row : rows)
        expectError(runPlain(row.arguments), text(row.line), row.name);
    EXPECT_FALSE(QFile::exists(m_database.file("data")));
}

TEST_F(CommandLineErrors, WhatIsNotThereIsNamed)
{
    struct Row {
        const char* name;
        QStringList arguments;
        QString line;
    };
    const Row rows[] = {
        {"a transition",
         {text("--print"), text("--transition"), text("Nothing/Here")},
         text("there is no transition \"Nothing/Here\"")},
        {"a transition's name alone",
         {text("--print"), text("--transition"), text("Approve")},
         text("there is no transition \"Approve\"")},
        {"a transition in another case",
         {text("--print"), text("--transition"), text("document approval/approve")},
         text("there is no transition \"document approval/approve\"")},
        {"a transition for the list",
         {text("--list"), text("--transition"), text("x")},
         text("there is no transition \"x\"")},
        {"a user",
         {text("--list"), text("--user"), text("nobody")},
         text("the database %1 has no user \"nobody\"").arg(m_database.url())},
    };
    for (const Row& row : rows)
        expectError(run(row.arguments), row.line, row.name);
}

TEST_F(CommandLineErrors, ADatabaseThatCannotBeOpenedIsNamedWithTheReason)
{
    struct Row {
        QString url;
        const char* reason;
    };
    const Row rows[] = {
        {SpSqliteUrl(fileOf("text.db", QByteArray(5000, 'x'))), kCannotOpen},
        {text("sqlite:///tmp"), kCannotOpen},
        {text("postgresql://host/db"), "The called method is not implemented."},
        {text("nonsense"), "An invalid argument was given to the method."},
    };
    for (const Row& row : rows)
        expectError(runPlain({text("--db"), row.url, text("--list")}),
                    text("cannot open the database %1: %2").arg(row.url, text(row.reason)),
                    row.url.toStdString());
}

TEST_F(CommandLineErrors, ADatabaseThatIsLockedIsSaidToBeUntilItIsNot)
{
    const QString url = m_database.url() + text("?busy_timeout=0");
    const QStringList list{text("--db"), url, text("--list")};
    RawConnection other(m_database.file("sample.db"));
    ASSERT_TRUE(other.run(text("BEGIN EXCLUSIVE")));
    expectError(runPlain(list), text("cannot open the database %1: %2").arg(url, text(kLocked)),
                "locked");
    ASSERT_TRUE(other.run(text("ROLLBACK")));
    outputOf(runPlain(list));
}

TEST_F(CommandLineErrors, ADatabaseThatSomebodyWritesIsReadButNotSavedTo)
{
    const QString url = m_database.url() + text("?busy_timeout=0");
    const QString file = m_database.file("mine.json");
    const QStringList at{text("--db"), url, text("--transition"), text(kTransition)};
    RawConnection other(m_database.file("sample.db"));
    ASSERT_TRUE(other.run(text("BEGIN IMMEDIATE")));
    outputOf(runPlain(at + QStringList{text("--export"), file}));
    expectError(
        runPlain(at + QStringList{text("--import"), file}),
        text("%1: cannot save the condition of %2: %3").arg(file, text(kTransition), text(kLocked)),
        "locked");
    ASSERT_TRUE(other.run(text("ROLLBACK")));
    outputOf(runPlain(at + QStringList{text("--import"), file}));
}

TEST_F(CommandLineErrors, ADatabaseThatMayNotBeReadNeedsPermission)
{
    if (const QString why = whyPermissionsDoNotBindIt(); !why.isEmpty())
        GTEST_SKIP() << "not checked: " << why.toStdString();
    const QStringList list{text("--db"), m_database.url(), text("--list")};
    const auto runAsNobody = [&] { return runPlain(list, {}, {}, {}, becomeUnprivileged); };
    setMode(m_database.file("sample.db"), 0000);
    expectError(runAsNobody(),
                text("cannot open the database %1: %2").arg(m_database.url(), text(kPermission)),
                "mode 0");
    setMode(m_database.file("sample.db"), 0644);
    outputOf(runAsNobody());
}

TEST_F(CommandLineErrors, ADatabaseThatIsMissingIsNotMade)
{
    for (const char* file : {"/no/such/folder/x.db", "new.db"}) {
        const QString path = *file == '/' ? text(file) : m_database.file(file);
        expectError(runPlain({text("--db"), SpSqliteUrl(path), text("--list")}),
                    text("there is no database ") + path, file);
        EXPECT_FALSE(QFile::exists(path));
    }
}

TEST_F(CommandLineErrors, ARefusedImportTouchesNoDatabase)
{
    const QString bad = fileOf("bad.json", "{}");
    // Even one that opening would bring up to date or make.
    const QString empty = fileOf("empty.db", "");
    const QStringList import{text("--transition"), text("x"), text("--import"), bad};
    const QString line = bad + text(": format: the field is missing");
    expectError(runPlain(QStringList{text("--db"), SpSqliteUrl(empty)} + import), line, "empty");
    EXPECT_EQ(QFileInfo(empty).size(), 0);
    expectError(runPlain(import), line, "the sample");
    EXPECT_FALSE(QFile::exists(m_database.file("data")));
    const auto bytes = [&] {
        QFile file(m_database.file("sample.db"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray before = bytes();
    EXPECT_FALSE(before.isEmpty());
    expectImportRefused(bad, text("format: the field is missing"), "the database");
    EXPECT_EQ(bytes(), before);
}

TEST_F(CommandLineErrors, AFileOfManySmallValuesIsRefusedBeforeItTakesTheMemory)
{
    QByteArray lists(67'000'000, '[');
    for (qsizetype i = 0; i + 3 < lists.size(); i += 4)
        lists.replace(i, 4, "[0],");
    expectImportRefused(fileOf("lists.json", lists),
                        text("more than 4000000 values (byte 7999999, line 1)"), "lists");
}

TEST_F(CommandLineErrors, WithoutADisplayAWindowIsAnErrorOfOneLine)
{
    const QStringList arguments{text("--db"), m_database.url()};
    expectError(runPlain(arguments),
                text("there is no display to open a window on: neither DISPLAY nor "
                     "WAYLAND_DISPLAY is set"),
                "none");
    const auto with = [&](const char* name, const char* value) {
        const Finished failed = runPlain(arguments, {}, {{text(name), text(value)}});
        EXPECT_EQ(failed.exitCode, 2) << value;
        EXPECT_TRUE(failed.errors.startsWith("condtree-workbench: ")) << value;
        EXPECT_EQ(failed.errors.count('\n'), 1) << failed.errors.toStdString();
    };
    with("QT_QPA_PLATFORM", "xcb");
    with("QT_QPA_PLATFORM", "nonsense");
    with("DISPLAY", ":4711");
}

TEST_F(CommandLineErrors, NoPlatformThatIsNamedKeepsATaskFromItsWork)
{
    const Finished listed = run({text("--list")});
    for (const char* platform : {"xcb", "nonsense", "offscreenx", "offscreen:configfile=/none"}) {
        const Finished named = runPlain({text("--db"), m_database.url(), text("--list")}, {},
                                        {{text("QT_QPA_PLATFORM"), text(platform)}});
        outputOf(named);
        EXPECT_EQ(named.output, listed.output) << platform;
        EXPECT_EQ(outputOf(run({text("-platform"), text(platform), text("--list")})),
                  listed.output.toStdString());
    }
}

TEST_F(CommandLineErrors, WhatTheControlTellsOfIsAnErrorOfPrintingAndDrawing)
{
    struct Row {
        const char* table;
        const char* column;
    };
    for (const auto& [table, column] : {Row{"users", "full_name"}, Row{"card_variables", "name"}}) {
        // A column under another name: the library misses it only when it reads this table.
        sql(text("ALTER TABLE %1 RENAME COLUMN %2 TO away").arg(text(table), text(column)));
        const QString picture = m_database.file("picture.png");
        const Finished drawn =
            runOn("Document Approval/Request Changes", {text("--screenshot"), picture});
        EXPECT_EQ(drawn.exitCode, 2) << table;
        EXPECT_EQ(drawn.errors.count('\n'), 1) << drawn.errors.toStdString();
        EXPECT_FALSE(QFile::exists(picture));
        sql(text("ALTER TABLE %1 RENAME COLUMN away TO %2").arg(text(table), text(column)));
        outputOf(runOn("Document Approval/Request Changes", {text("--screenshot"), picture}));
        EXPECT_TRUE(QFile::remove(picture));
    }
}

TEST_F(CommandLineErrors, AFailureAfterAnotherTaskKeepsWhatThatDid)
{
    const Finished listed = run({text("--list"), text("--export"), text("/no/such/folder/x.json")});
    EXPECT_EQ(listed.exitCode, 2);
    EXPECT_EQ(listed.output.count('\n'), 12);
    EXPECT_EQ(listed.errors.toStdString(),
              "condtree-workbench: /no/such/folder/x.json: cannot be written: No such file or "
              "directory\n");
}

TEST_F(CommandLineErrors, WhatCannotBeWrittenIsNamed)
{
    expectError(run({text("--screenshot"), text("/no/such/folder/x.png")}),
                text("/no/such/folder/x.png: cannot be written: No such file or directory"),
                "a picture");
    // Through an open stream only: a file name could replace the device if the code were wrong.
    for (const char* task : {"--list", "--print", "--export=-"})
        expectError(
            runPlain({text("--db"), m_database.url(), text(task)}, {}, {}, text("/dev/full")),
            text("standard output: cannot be written: No space left on device"), task);
}

const QByteArray kGoodImport = R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":2,"name":"","extra":"","value":"v","argType":1,"operator":100}
]}
)";

/// The import with another text in the place of a part.
QByteArray importWith(const char* part, const char* other)
{
    return QByteArray(kGoodImport).replace(part, other);
}

struct BadImport {
    const char* name;
    QByteArray content;
    const char* line;
};

const std::vector<BadImport> kBadImports{
    {"empty", "", "the file is empty"},
    {"no JSON", "hello\n", "not JSON: illegal value (byte 1, line 1)"},
    {"cut", kGoodImport.first(100), "not JSON: unterminated string (byte 100, line 2)"},
    {"another format", importWith("condtree-condition", "x"),
     "format: \"condtree-condition\" is expected, not \"x\""},
    {"another version", importWith("\"version\":1", "\"version\":2"),
     "version: 1 is expected, not 2"},
    {"a field is missing", importWith(",\"operator\":100", ""),
     "records[0].operator: the field is missing"},
    {"a field is of another type", importWith(":100", ":\"100\""),
     "records[0].operator: a number is expected, not a text"},
    {"an unknown field", importWith("\"extra\"", "\"extr\\na\":\"\",\"extra\""),
     "records[0]: the field \"extr\\u000aa\" is unknown"},
    {"a fraction", importWith(":100", ":1.5"),
     "records[0].operator: 1.5 is no whole number of 32 bits"},
    {"too large a number", importWith(":100", ":2147483648"),
     "records[0].operator: 2147483648 is no whole number of 32 bits"},
    {"a key twice", importWith("\"argType\":1", "\"argType\":1,\"argType\":1"),
     "not JSON: the key \"argType\" is given twice (byte 126, line 2)"},
    {"an unpaired surrogate", importWith("\"v\"", "\"\\ud800\""),
     "records[0].value: the text holds the unpaired surrogate U+D800"},
    {"a null character", importWith("\"v\"", "\"\\u0000\""),
     "records[0].value: the text holds U+0000"},
    {"too deep", QByteArray(100000, '['),
     "not JSON: too deeply nested document (byte 1025, line 1)"},
    {"UTF-16", QByteArray("\xFF\xFE{\0", 4), "the text is in UTF-16 or UTF-32; UTF-8 is expected"},
};

TEST_F(CommandLineErrors, EveryBadImportIsOneLineAndLeavesTheDatabaseAlone)
{
    const auto before = m_database.conditions();
    for (const BadImport& row : kBadImports)
        expectImportRefused(fileOf("bad.json", row.content), text(row.line), row.name);
    EXPECT_TRUE(sameConditions(m_database.conditions(), before));
}

TEST_F(CommandLineErrors, AFileThatIsTooLargeIsRefusedByItsSize)
{
    const auto before = m_database.conditions();
    QFile file(m_database.file("large.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(100'000'000)); // without blocks on the disk
    file.close();
    expectImportRefused(file.fileName(), text("100000000 bytes; the limit is 67108864 bytes"),
                        "large");
    expectError(runOn(kTransition, {text("--import"), text("-")}, QByteArray(67'108'865, ' ')),
                text("standard input: more than the limit of 67108864 bytes"), "a large stream");
    // Blanks up to the limit are read, and are still no condition.
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(67'108'864, ' '));
    file.close();
    expectImportRefused(file.fileName(), text("not JSON: illegal value (byte 67108864, line 1)"),
                        "blanks");
    EXPECT_TRUE(sameConditions(m_database.conditions(), before));
}

TEST_F(CommandLineErrors, WhatIsNoFileCannotBeImported)
{
    const auto before = m_database.conditions();
    expectImportRefused(m_database.file("none.json"),
                        text("cannot be read: No such file or directory"), "missing");
    expectImportRefused(text("/tmp"), text("is a folder, not a file"), "a folder");
    expectImportRefused(text("/dev/zero"), text("is no regular file"), "a device");
    EXPECT_TRUE(sameConditions(m_database.conditions(), before));
}

TEST_F(CommandLineErrors, WhatTheDatabaseRefusesNamesTheFileAndLeavesTheConditionAlone)
{
    const auto before = m_database.conditions();
    QByteArray json = R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":3,"condType":2,"name":"","extra":"","value":"VALUE","argType":1,"operator":100}
]}
)";
    const QString file = fileOf("huge.json", json.replace("VALUE", QByteArray(20'000'000, 'x')));
    const Finished refused = runOn(kTransition, {text("--import"), file});
    EXPECT_EQ(refused.exitCode, 2);
    EXPECT_TRUE(refused.errors.startsWith("condtree-workbench: " + file.toUtf8()
                                          + ": cannot save the condition of " + kTransition + ": "))
        << refused.errors.left(300).toStdString();
    EXPECT_EQ(refused.errors.count('\n'), 1);
    EXPECT_TRUE(sameConditions(m_database.conditions(), before));
}

} // namespace
