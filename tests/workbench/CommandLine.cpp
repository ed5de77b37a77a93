#include "Program.h"

#include <QDir>
#include <QImage>

using namespace condtree;
using namespace condtree::test;

namespace {

const QString kPrint = QStringLiteral("--print");
const QString kExport = QStringLiteral("--export");
const QString kImport = QStringLiteral("--import");
const QString kList = QStringLiteral("--list");
const QString kScreenshot = QStringLiteral("--screenshot");
const QString kStream = QStringLiteral("-");

using CommandLine = Program;

TEST_F(CommandLine, TheListHasATransitionALine)
{
    EXPECT_EQ(outputOf(run({kList})), "Document Approval/Submit for Review\n"
                                      "Document Approval/Request Changes\n"
                                      "Document Approval/Approve\n"
                                      "Document Approval/Release\n"
                                      "Document Approval/Withdraw\n"
                                      "Engineering Change/Evaluate\n"
                                      "Engineering Change/Send to Change Board\n"
                                      "Engineering Change/Implement\n"
                                      "Engineering Change/Close\n"
                                      "Purchased Part/Select Supplier\n"
                                      "Purchased Part/Approve for Purchase\n"
                                      "Quality Record/Start Investigation\n");
}

TEST_F(CommandLine, ANameWithControlCharactersStaysOnItsLineAndIsFoundAsItIsListed)
{
    // Older databases hold such names.
    sql(QStringLiteral("DROP TRIGGER transitions_name_update"));
    sql(QStringLiteral("UPDATE transitions SET name = 'With' || char(10) || 'draw' "
                       "WHERE name = 'Withdraw'"));
    const std::string listed = outputOf(run({kList}));
    EXPECT_EQ(std::count(listed.begin(), listed.end(), '\n'), 12);
    EXPECT_NE(listed.find("\nDocument Approval/With\\u000adraw\n"), std::string::npos) << listed;
    for (const char* title : {"Document Approval/With\\u000adraw", "Document Approval/With\ndraw"})
        EXPECT_EQ(outputOf(runOn(title, {kPrint})), "<Click here to add a condition>\n") << title;
}

TEST_F(CommandLine, TheTreeIsPrintedARowALine)
{
    EXPECT_EQ(outputOf(runOn("Document Approval/Submit for Review", {kPrint})),
              "Author | String Not Equal To |  | \n"
              "Document Number | Text Compare | DOC-[0-9]% | \n"
              "FilePath | String Contains | \\Projects\\ | \n"
              "Or\n"
              "  Category | String Equal To | Drawing | \n"
              "  Category | String Equal To | Data Sheet | \n"
              "  Title | String Contains | pump | every pump document\n"
              "  <Click here to add a condition>\n"
              "Sheet Count | Number Bigger Than or Equal | 1 | \n"
              "<Click here to add a condition>\n");
}

TEST_F(CommandLine, PeopleAreShownByNameAndThoseWhoLeftAreEmpty)
{
    EXPECT_EQ(outputOf(runOn("Document Approval/Approve", {kPrint})),
              "Approved | Binary Equal To | Yes | \n"
              "Due Date | Date Bigger Than or Equal | 2024-01-01 | \n"
              "Status | String Not Equal To | open | \n"
              "Or\n"
              "  Group | String Equal To | Quality | \n"
              "  Group | String Equal To | Document Control | \n"
              "  User | String Equal To |  | has left the company\n"
              "  <Click here to add a condition>\n"
              "Or\n"
              "  Weight | Number Less Than or Equal | 250 | kg\n"
              "  Safety Relevant | Binary Equal To | No | \n"
              "  <Click here to add a condition>\n"
              "<Click here to add a condition>\n");
}

TEST_F(CommandLine, WorkflowStatesAreShownByName)
{
    EXPECT_EQ(
        outputOf(runOn("Document Approval/Release", {kPrint})),
        "Revision | String Bigger Than or Equal | A | \n"
        "Approved | Binary Equal To | Yes | \n"
        "Approved On | Date Bigger Than | 2020-01-01 | \n"
        "Or\n"
        "  Child Reference State | String Equal To | Document Approval.Approved | \n"
        "  Child Reference State | String Equal To | Document Approval.Released for Production | \n"
        "  Child Reference State | Text Compare | %Approved% | any workflow\n"
        "  Child Reference State | String Equal To | Engineering Change.Change Closed | \n"
        "  <Click here to add a condition>\n"
        "Child Reference historic State | String Equal To | Document Approval.In Review | was "
        "reviewed once\n"
        "<Click here to add a condition>\n");
}

TEST_F(CommandLine, AGroupWithoutRowsAndAnEmptyConditionHaveTheirPlaceholders)
{
    EXPECT_EQ(outputOf(runOn("Engineering Change/Evaluate", {kPrint})),
              "Change Reason | String Not Equal To |  | \n"
              "Priority | Number Less Than or Equal | 3 | 1 is the highest\n"
              "Or\n"
              "  <Click here to add a condition>\n"
              "Project | String Does Not Contain | internal | \n"
              "<Click here to add a condition>\n");
    EXPECT_EQ(outputOf(runOn("Document Approval/Withdraw", {kPrint})),
              "<Click here to add a condition>\n");
}

TEST_F(CommandLine, EveryTransitionIsPrintedAsARowForEachRecordAndThePlaceholders)
{
    const auto database = m_database.open();
    const auto transitions = database->transitions();
    for (const SpTransition& transition : transitions.value()) {
        const QString title = workbench::transitionTitle(transition);
        const std::string tree = outputOf(runOn(qUtf8Printable(title), {kPrint}));
        const auto condition = database->load(transition);
        LONG expected = transition.records + 1;
        for (const SpConditionRecord& record : condition.value().records)
            expected += record.rowKind == 2 ? 1 : 0;
        EXPECT_EQ(std::count(tree.begin(), tree.end(), '\n'), expected) << title.toStdString();
        EXPECT_EQ(tree.find('?'), std::string::npos) << tree;
    }
}

TEST_F(CommandLine, WithoutATransitionTheFirstOneIsTaken)
{
    EXPECT_EQ(outputOf(run({kPrint})),
              outputOf(runOn("Document Approval/Submit for Review", {kPrint})));
    EXPECT_EQ(outputOf(run({kExport, kStream})),
              outputOf(runOn("Document Approval/Submit for Review", {kExport, kStream})));
}

TEST_F(CommandLine, AnExportHoldsTheRecordsAsTheyAreStored)
{
    EXPECT_EQ(
        outputOf(runOn("Engineering Change/Evaluate", {kExport, kStream})),
        "{\"format\":\"condtree-condition\",\"version\":1,\"records\":[\n"
        "{\"rowKind\":3,\"condType\":2,\"name\":\"Change Reason\",\"extra\":\"\",\"value\":\"\","
        "\"argType\":1,\"operator\":101},\n"
        "{\"rowKind\":3,\"condType\":2,\"name\":\"Priority\",\"extra\":\"1 is the highest\","
        "\"value\":\"<=3\",\"argType\":2,\"operator\":160},\n"
        "{\"rowKind\":2,\"condType\":0,\"name\":\"\",\"extra\":\"\",\"value\":\"\",\"argType\":0,"
        "\"operator\":0},\n"
        "{\"rowKind\":3,\"condType\":2,\"name\":\"Project\",\"extra\":\"\",\"value\":\"internal\","
        "\"argType\":1,\"operator\":107}\n"
        "]}\n");
}

TEST_F(CommandLine, ExportImportExportIsTheSameByteForByteForEveryTransition)
{
    const auto before = m_database.conditions();
    const auto list = run({kList});
    for (const QByteArray& line : list.output.trimmed().split('\n')) {
        const QString first = m_database.file("first.json");
        const QString second = m_database.file("second.json");
        outputOf(runOn(line, {kExport, first}));
        outputOf(runOn(line, {kImport, first}));
        outputOf(runOn(line, {kExport, second}));
        QFile a(first);
        QFile b(second);
        ASSERT_TRUE(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        const QByteArray bytes = a.readAll();
        EXPECT_GT(bytes.size(), 50);
        EXPECT_EQ(bytes, b.readAll()) << line.toStdString();
    }
    const auto after = m_database.conditions();
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(after[i].records, before[i].records) << i;
        EXPECT_EQ(after[i].version, before[i].version + 1) << i;
    }
}

TEST_F(CommandLine, AnImportReplacesTheConditionAndNoOther)
{
    const auto before = m_database.conditions();
    const Finished exported = runOn("Document Approval/Approve", {kExport, kStream});
    EXPECT_EQ(outputOf(runOn("Document Approval/Withdraw", {kImport, kStream}, exported.output)),
              "");
    EXPECT_EQ(outputOf(runOn("Document Approval/Withdraw", {kExport, kStream})),
              exported.output.toStdString());
    const auto after = m_database.conditions();
    constexpr std::size_t kApprove = 2;
    constexpr std::size_t kWithdraw = 4;
    EXPECT_EQ(after[kWithdraw].records, before[kApprove].records);
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (i != kWithdraw) {
            EXPECT_EQ(after[i].version, before[i].version) << i;
        }
    }
}

TEST_F(CommandLine, RecordsThatNoEditorMakesAreKeptExactly)
{
    const QByteArray odd = R"({"format":"condtree-condition","version":1,"records":[
{"rowKind":-7,"condType":2147483647,"name":"\u0001","extra":"\n","value":"\\ \"","argType":-2147483648,"operator":-1}
]}
)";
    outputOf(runOn("Document Approval/Withdraw", {kImport, kStream}, odd));
    EXPECT_EQ(outputOf(runOn("Document Approval/Withdraw", {kExport, kStream})), odd.toStdString());
}

TEST_F(CommandLine, TheTasksAreDoneInTheirOrderAndTheImportFirst)
{
    const Finished exported = runOn("Engineering Change/Evaluate", {kExport, kStream});
    const Finished printed = runOn("Engineering Change/Evaluate", {kPrint});
    const QString picture = m_database.file("w.png");
    // Behind the others on the line, yet before them.
    const Finished all =
        runOn("Document Approval/Withdraw",
              {kScreenshot, picture, kExport, kStream, kPrint, kImport, kStream}, exported.output);
    EXPECT_EQ(outputOf(all), printed.output.toStdString() + exported.output.toStdString());
    EXPECT_TRUE(QFile::exists(picture));
}

TEST_F(CommandLine, TheWindowIsDrawnToAPicture)
{
    const QString file = m_database.file("window.png");
    EXPECT_EQ(outputOf(runOn("Document Approval/Release", {kScreenshot, file})), "");
    const QImage picture(file, "PNG");
    ASSERT_FALSE(picture.isNull());
    EXPECT_GT(picture.width(), 600);
    EXPECT_GT(picture.height(), 300);
    const QString other = m_database.file("other.png");
    outputOf(runOn("Document Approval/Release", {kScreenshot, other}));
    EXPECT_EQ(QImage(other, "PNG"), picture);
    outputOf(runOn("Document Approval/Withdraw", {kScreenshot, other}));
    EXPECT_NE(QImage(other, "PNG"), picture);
    outputOf(runPlain({QStringLiteral("--db"), m_database.url(), kScreenshot, file}, {},
                      {{QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2")}}));
    EXPECT_EQ(QImage(file, "PNG").width(), 2 * picture.width());
}

TEST_F(CommandLine, APictureBehindAnImportShowsTheTransitionAsItIsNow)
{
    const Finished exported = runOn("Engineering Change/Evaluate", {kExport, kStream});
    const QString title = QStringLiteral("Document Approval/Withdraw");
    const QString both = m_database.file("both.png");
    const QString later = m_database.file("later.png");
    outputOf(runOn(qUtf8Printable(title), {kImport, kStream, kScreenshot, both}, exported.output));
    // The same, but for the import: only the time of the change could differ, and it stands still.
    outputOf(runOn(qUtf8Printable(title), {kScreenshot, later}));
    EXPECT_EQ(QImage(both, "PNG"), QImage(later, "PNG"));
}

TEST_F(CommandLine, WithoutADatabaseTheSampleIsMadeOnceInTheUsersFolder)
{
    const Finished first = runPlain({kList});
    EXPECT_EQ(outputOf(first), outputOf(run({kList})));
    EXPECT_TRUE(QFile::exists(m_database.file("data/condtree/sample.db")));
    // What was changed in it stays.
    const Finished exported = runPlain({kExport, kStream});
    outputOf(runPlain({QStringLiteral("--transition"), QStringLiteral("Document Approval/Withdraw"),
                       kImport, kStream},
                      exported.output));
    EXPECT_EQ(outputOf(runPlain({QStringLiteral("--transition"),
                                 QStringLiteral("Document Approval/Withdraw"), kExport, kStream})),
              exported.output.toStdString());
}

TEST_F(CommandLine, TheUserIsTheOneWhoChangesTheCondition)
{
    const Finished exported = run({kExport, kStream});
    outputOf(runOn("Document Approval/Withdraw",
                   {QStringLiteral("--user"), QStringLiteral("gdeluca"), kImport, kStream},
                   exported.output));
    const auto database = m_database.open();
    const auto transitions = database->transitions();
    const auto found = workbench::findTransition(transitions.value(),
                                                 QStringLiteral("Document Approval/Withdraw"));
    EXPECT_EQ(found.value().changedBy.str(), QStringLiteral("gdeluca"));
}

TEST_F(CommandLine, EnglishIsALanguage)
{
    EXPECT_EQ(outputOf(run({QStringLiteral("--lang"), QStringLiteral("en"), kPrint})),
              outputOf(run({kPrint})));
}

TEST_F(CommandLine, HelpAndVersionNeedNothing)
{
    const Finished help = runPlain({QStringLiteral("--help")});
    EXPECT_EQ(outputOf(help).substr(0, 27), "Usage: condtree-workbench [");
    EXPECT_EQ(outputOf(runPlain({QStringLiteral("--version")})).substr(0, 19),
              "condtree-workbench ");
    EXPECT_FALSE(QDir(m_database.file("data")).exists());
}

} // namespace
