#include <condtree/presentation/IconModulePlaces.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFileInfo>

#include <vector>

using namespace condtree;

namespace {

const ModuleFolders kFolders{{QStringLiteral("/x"), QStringLiteral("/y/")},
                             QStringLiteral("/code")};

/// The places behind that of the library's path.
const std::vector<const char*> kRest{"/x/WfIcons.dll", "/y/WfIcons.dll", "/x/libWfIcons.so",
                                     "/y/libWfIcons.so", "/code/condtree/libWfIcons.so"};

struct Row {
    const char16_t* path;
    std::vector<const char*> first;
};

TEST(IconModulePlaces, TheLibrarysPathComesFirstThenTheLoadersFoldersThenTheInstalledModule)
{
    const std::vector<Row> rows{
        {u"WfIcons.dll", {}},
        {u"/opt/icons\\WfIcons.dll", {"/opt/icons/WfIcons.dll", "/opt/icons/libWfIcons.so"}},
        {u"\\opt\\icons\\WfIcons.dll", {"/opt/icons/WfIcons.dll", "/opt/icons/libWfIcons.so"}},
        {u"/opt/icons/\\WfIcons.dll", {"/opt/icons//WfIcons.dll", "/opt/icons//libWfIcons.so"}},
        {u"\\WfIcons.dll", {"/WfIcons.dll", "/libWfIcons.so"}},
        {u"C:\\Prog\\WfIcons.dll", {"C:/Prog/WfIcons.dll"}},
        {u"icons\\WfIcons.dll", {"icons/WfIcons.dll"}},
        {u".\\WfIcons.dll", {"./WfIcons.dll"}},
    };
    for (const Row& row : rows) {
        QStringList expected;
        for (const char* place : row.first)
            expected << QString::fromUtf8(place);
        for (const char* place : kRest)
            expected << QString::fromUtf8(place);
        EXPECT_EQ(iconModulePlaces(QString::fromUtf16(row.path), kFolders), expected)
            << QString::fromUtf16(row.path).toStdString();
    }
}

TEST(IconModulePlaces, FoldersThatAreRelativeOrNotKnownAreLeftOut)
{
    const ModuleFolders folders{
        {QString(), QStringLiteral("."), QStringLiteral("/x"), QStringLiteral("sub")}, QString()};
    EXPECT_EQ(iconModulePlaces(QStringLiteral("WfIcons.dll"), folders),
              (QStringList{QStringLiteral("/x/WfIcons.dll"), QStringLiteral("/x/libWfIcons.so")}));
}

TEST(IconModulePlaces, NoPlaceIsTriedTwice)
{
    const ModuleFolders folders{{QStringLiteral("/x"), QStringLiteral("/x")}, QString()};
    EXPECT_EQ(iconModulePlaces(QStringLiteral("/x\\WfIcons.dll"), folders),
              (QStringList{QStringLiteral("/x/WfIcons.dll"), QStringLiteral("/x/libWfIcons.so")}));
}

TEST(IconModulePlaces, TheProcesssFoldersAreTheLoadersAndThatOfThisCode)
{
    const ModuleFolders folders = ModuleFolders::ofProcess();
    EXPECT_EQ(folders.code, QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath());
    EXPECT_TRUE(folders.loader.contains(QStringLiteral("/usr/lib")));
    // From the environment of this test.
    EXPECT_TRUE(folders.loader.contains(QStringLiteral("/on the loaders path")));
}

} // namespace
