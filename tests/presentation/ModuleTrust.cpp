#include <condtree/presentation/ModuleTrust.h>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace condtree;

namespace {

const ModuleTrust kTrust{{0, 1000}, std::nullopt};
const ModuleTrust kWithGroup{{0, 1000}, 50};

struct Row {
    mode_t mode;
    uid_t owner;
    gid_t group;
    const char* problem;
    const char* withGroup;
};

const char* const kNotRegular = "it is no regular file";
const char* const kOtherUser = "it belongs to another user";
const char* const kWritable = "others may write it";

TEST(ModuleTrust, AFileMustBeRegularOfATrustedOwnerAndNotWrittenByOthers)
{
    const std::vector<Row> rows{
        {S_IFREG | 0644, 0, 0, "", ""},
        {S_IFREG | 0600, 1000, 1000, "", ""},
        {S_IFREG | 0755, 1000, 7, "", ""},
        {S_IFREG | 0644, 1001, 0, kOtherUser, kOtherUser},
        {S_IFREG | 0664, 1000, 50, kWritable, ""},
        {S_IFREG | 0664, 1000, 51, kWritable, kWritable},
        {S_IFREG | 0646, 1000, 50, kWritable, kWritable},
        {S_IFREG | 0666, 0, 50, kWritable, kWritable},
        {S_IFREG | S_ISVTX | 0666, 0, 50, kWritable, kWritable},
        {S_IFDIR | 0755, 0, 0, kNotRegular, kNotRegular},
        {S_IFIFO | 0600, 0, 0, kNotRegular, kNotRegular},
        {S_IFCHR | 0600, 0, 0, kNotRegular, kNotRegular},
        {S_IFBLK | 0600, 0, 0, kNotRegular, kNotRegular},
        {S_IFSOCK | 0600, 0, 0, kNotRegular, kNotRegular},
    };
    for (const Row& row : rows) {
        const FileAccess file{row.mode, row.owner, row.group};
        EXPECT_EQ(fileProblem(file, kTrust), QString::fromUtf8(row.problem)) << row.mode;
        EXPECT_EQ(fileProblem(file, kWithGroup), QString::fromUtf8(row.withGroup)) << row.mode;
    }
}

TEST(ModuleTrust, AFolderThatOthersMayWriteNeedsTheStickyBit)
{
    const char* const other = "a folder that it lies in belongs to another user";
    const char* const writable = "others may write a folder that it lies in";
    const std::vector<Row> rows{
        {S_IFDIR | 0755, 0, 0, "", ""},
        {S_IFDIR | 0700, 1000, 0, "", ""},
        {S_IFDIR | 0755, 1001, 0, other, other},
        {S_IFDIR | S_ISVTX | 0777, 1001, 0, other, other},
        {S_IFDIR | 0775, 1000, 50, writable, ""},
        {S_IFDIR | 0775, 1000, 51, writable, writable},
        {S_IFDIR | 0757, 1000, 50, writable, writable},
        {S_IFDIR | 0777, 0, 50, writable, writable},
        {S_IFDIR | S_ISVTX | 0777, 0, 0, "", ""},
        {S_IFDIR | S_ISVTX | 0775, 1000, 51, "", ""},
    };
    for (const Row& row : rows) {
        const FileAccess folder{row.mode, row.owner, row.group};
        EXPECT_EQ(folderProblem(folder, kTrust), QString::fromUtf8(row.problem)) << row.mode;
        EXPECT_EQ(folderProblem(folder, kWithGroup), QString::fromUtf8(row.withGroup)) << row.mode;
    }
}

TEST(ModuleTrust, EveryFolderOnTheWayCounts)
{
    const QTemporaryDir temporary;
    const QString real = QDir(temporary.path()).canonicalPath();
    ASSERT_TRUE(QDir(real).mkpath(QStringLiteral("a/b")));
    const QString file = real + QStringLiteral("/a/b/file");
    const ModuleTrust trust = ModuleTrust::ofProcess();
    EXPECT_EQ(foldersProblem(file, trust), QString());
    for (const char* folder : {"/a", "/a/b"}) {
        const QByteArray path = real.toUtf8() + folder;
        chmod(path.constData(), 0777);
        EXPECT_EQ(foldersProblem(file, trust),
                  QStringLiteral("others may write a folder that it lies in"))
            << folder;
        chmod(path.constData(), 01777);
        EXPECT_EQ(foldersProblem(file, trust), QString()) << folder;
        chmod(path.constData(), 0755);
    }
    EXPECT_EQ(foldersProblem(file, {{geteuid() + 1}, std::nullopt}),
              QStringLiteral("a folder that it lies in belongs to another user"));
}

TEST(ModuleTrust, AFolderThatIsNotThereAndARelativePathAreProblems)
{
    const ModuleTrust trust = ModuleTrust::ofProcess();
    EXPECT_EQ(foldersProblem(QStringLiteral("/no such folder/file"), trust),
              QStringLiteral("a folder that it lies in cannot be read"));
    EXPECT_EQ(foldersProblem(QStringLiteral("file"), trust),
              QStringLiteral("its location is relative"));
    EXPECT_EQ(foldersProblem(QStringLiteral("/file"), {{0}, std::nullopt}), QString());
}

TEST(ModuleTrust, RootTheUserAndTheOwnerOfThisCodeAreTrusted)
{
    const ModuleTrust trust = ModuleTrust::ofProcess();
    struct stat code {};
    ASSERT_EQ(stat("/proc/self/exe", &code), 0);
    for (const uid_t owner : {uid_t{0}, geteuid(), code.st_uid})
        EXPECT_NE(std::find(trust.owners.begin(), trust.owners.end(), owner), trust.owners.end());
    EXPECT_LE(trust.owners.size(), 3U);
}

} // namespace
