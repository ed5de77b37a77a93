#include "workbench/Files.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace condtree::workbench;

namespace {

class Files : public testing::Test {
protected:
    QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }

    QString fileOf(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path(name);
    }

    static std::string failureOf(const QString& path, qint64 limit)
    {
        const Outcome<QByteArray> content = readFile(path, limit);
        return content.hasValue() ? "(read)" : content.failure().text.toStdString();
    }

    QTemporaryDir m_folder;
};

TEST_F(Files, AFileIsReadUpToItsLimit)
{
    const QString file = fileOf("a", "12345");
    EXPECT_EQ(readFile(file, 5).value(), QByteArray("12345"));
    EXPECT_EQ(failureOf(file, 4),
              (file + QStringLiteral(": 5 bytes; the limit is 4 bytes")).toStdString());
}

TEST_F(Files, AnEmptyFileIsRead)
{
    EXPECT_EQ(readFile(fileOf("a", ""), 5).value(), QByteArray());
}

TEST_F(Files, WhatCannotBeReadIsNamed)
{
    EXPECT_EQ(failureOf(path("none"), 5),
              (path("none") + QStringLiteral(": cannot be read: No such file or directory"))
                  .toStdString());
    EXPECT_EQ(failureOf(m_folder.path(), 5),
              (m_folder.path() + QStringLiteral(": is a folder, not a file")).toStdString());
}

TEST_F(Files, OnlyRegularFilesAreRead)
{
    EXPECT_EQ(failureOf(QStringLiteral("/dev/zero"), 1000), "/dev/zero: is no regular file");
    // Nobody writes into it: opening it would wait.
    const QString pipe = path("pipe");
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(failureOf(pipe, 1000), (pipe + QStringLiteral(": is no regular file")).toStdString());
}

TEST_F(Files, AnErrorWhileReadingIsNoEnd)
{
    // A regular file, whose first page is never there.
    EXPECT_EQ(failureOf(QStringLiteral("/proc/self/mem"), 1000),
              "/proc/self/mem: cannot be read: Input/output error");
}

TEST_F(Files, AFileIsReplacedAsAWhole)
{
    const QString file = fileOf("a", "a long content");
    EXPECT_FALSE(writeFile(file, "new").has_value());
    EXPECT_EQ(readFile(file, 99).value(), QByteArray("new"));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden),
              QStringList{QStringLiteral("a")});
}

TEST_F(Files, WhatCannotBeWrittenIsNamedAndLeavesNothingBehind)
{
    const auto folder = writeFile(m_folder.path(), "x");
    ASSERT_TRUE(folder.has_value());
    EXPECT_EQ(folder->text, m_folder.path() + QStringLiteral(": is a folder, not a file"));
    const QString file = path("none/a");
    const auto missing = writeFile(file, "x");
    ASSERT_TRUE(missing.has_value());
    EXPECT_EQ(missing->text,
              file + QStringLiteral(": cannot be written: No such file or directory"));
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty());
}

TEST_F(Files, APipeIsWrittenToAndNotReplaced)
{
    // A pipe of the test's own: a device of the machine would be lost if the code were wrong.
    const QByteArray pipe = QFile::encodeName(path("pipe"));
    ASSERT_EQ(mkfifo(pipe.constData(), 0600), 0);
    const int reader = open(pipe.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    EXPECT_FALSE(writeFile(path("pipe"), "written").has_value());
    char content[16] = {};
    EXPECT_EQ(read(reader, content, sizeof content), 7);
    EXPECT_STREQ(content, "written");
    close(reader);
    struct stat status = {};
    ASSERT_EQ(stat(pipe.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}

} // namespace
