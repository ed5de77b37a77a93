#include <condtree/control/CondTreeCtrl.h>

#include "presentation/ModuleFiles.h"
#include "support/WarningGuard.h"
#include "together/LocationSettings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QIcon>

#include <vector>

// When the module that is installed with the control takes the place of the library that the
// settings name.
namespace condtree::test {

namespace {

/// Whether the rows of a control have pictures.
bool hasPictures()
{
    CondTreeCtrl control;
    control.mvInitialize(nullptr, 120, KiroVaultType{}, TreeType{});
    control.mvLoad({});
    const QModelIndex placeholder = control.model()->index(0, 0);
    EXPECT_TRUE(placeholder.isValid());
    return !placeholder.data(Qt::DecorationRole).value<QIcon>().isNull();
}

struct Refused {
    const char* name;
    QByteArray library;
    mode_t folderMode;
    const char* line;
};

// In one test, refusals first: once a library is bound, no control looks for one.
TEST(IconFallback, TheInstalledModuleStandsInForARelativeLocationAndNotForARefusedLibrary)
{
    const LocationSettings settings;
    const std::vector<Refused> rows{
        {"a folder that all may write", ModuleFiles::module("Good"), 0777,
         "others may write a folder that it lies in"},
        {"no library", "hello", 0700, "it is no ELF file"},
        {"no entry points", ModuleFiles::module("NoEntryPoints"), 0700,
         "the icon library has no ghLoadWFPngImageIconAsPerDPI"},
    };
    for (const Refused& row : rows) {
        const ModuleFiles files;
        files.write("WfIcons.dll", row.library);
        chmod(files.path("").toUtf8().constData(), row.folderMode);
        settings.setMachines(files.path(""));
        const ExpectWarning warning(QString::fromUtf8(row.line));
        EXPECT_FALSE(hasPictures()) << row.name;
        EXPECT_EQ(warning.count(), 1) << row.name;
    }

    const ModuleFiles files;
    files.write("WfIcons.dll", ModuleFiles::module("NoPictures"));
    settings.setMachines(QDir::current().relativeFilePath(files.path("")));
    const ExpectWarning warning(
        QStringLiteral("WfIcons.dll is not looked for: its location is relative"));
    EXPECT_TRUE(hasPictures());
    EXPECT_EQ(warning.count(), 1);
    EXPECT_TRUE(hasPictures()); // bound by now: nobody looks, and nobody complains
    EXPECT_EQ(warning.count(), 1);
}

} // namespace

} // namespace condtree::test
