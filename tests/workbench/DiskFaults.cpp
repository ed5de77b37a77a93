#include "FullDisk.h"
#include "Program.h"

using namespace condtree;
using namespace condtree::test;

namespace {

const char* const kTransition = "Document Approval/Approve";

QString text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

struct Telling {
    const char* language;
    const char* line; ///< %1 is the file.
};

/// The program stores a condition on a disk that refuses.
class DiskFaults : public Program {
protected:
    /// A condition that needs more room than the sample's database has.
    QString largeFile() const
    {
        const QByteArray record =
            R"({"rowKind":3,"condType":2,"name":"Author","extra":"","value":")"
            + QByteArray(300, 'v') + R"(","argType":1,"operator":100})";
        return fileOf("large.json", R"({"format":"condtree-condition","version":1,"records":[)"
                                        + QByteArrayList(400, record).join(',') + "]}");
    }

    /// Expects a line of the language, nothing on the output, and a database as before.
    void expectRefused(const Telling& telling, const std::function<void()>& inChild = {}) const
    {
        const QString file = largeFile();
        const auto before = m_database.conditions();
        const Finished run =
            runPlain({text("--db"), m_database.url(), text("--lang"), text(telling.language),
                      text("--transition"), text(kTransition), text("--import"), file},
                     {}, {}, {}, inChild);
        EXPECT_EQ(run.errors.toStdString(), text(telling.line).arg(file).toStdString() + "\n");
        EXPECT_EQ(run.output.toStdString(), "");
        EXPECT_EQ(run.exitCode, 2);
        EXPECT_TRUE(sameConditions(m_database.conditions(), before));
    }
};

TEST_F(DiskFaults, ADatabaseThatCannotBeWrittenIsToldInTheUsersLanguage)
{
    for (const Telling& telling :
         {Telling{"en", "condtree-workbench: %1: cannot save the condition of Document "
                        "Approval/Approve: The database could not be written; your changes were "
                        "not saved."},
          Telling{"de",
                  "condtree-workbench: %1: Bedingung von Document Approval/Approve kann nicht "
                  "gespeichert werden: In die Datenbank konnte nicht geschrieben werden; Ihre "
                  "Änderungen wurden nicht gespeichert."}})
        expectRefused(telling, [] { allowSmallFilesOnly(1024); });
    outputOf(runOn(kTransition, {text("--import"), largeFile()}));
}

TEST_F(DiskFaults, AFullDiskIsToldInTheUsersLanguage)
{
    if (!fillUp(m_database.file("sample.db")))
        GTEST_SKIP() << "not checked: the file system has no files that are large enough";
    for (const Telling& telling :
         {Telling{"en", "condtree-workbench: %1: cannot save the condition of Document "
                        "Approval/Approve: The disk is full; your changes were not saved."},
          Telling{"de",
                  "condtree-workbench: %1: Bedingung von Document Approval/Approve kann nicht "
                  "gespeichert werden: Der Datenträger ist voll; Ihre Änderungen wurden nicht "
                  "gespeichert."}})
        expectRefused(telling);
}

} // namespace
