#include "FullDisk.h"

#include "TempDatabase.h"

#include <gtest/gtest.h>

#include <QFile>

#include <csignal>

namespace condtree::test {

void allowSmallFilesOnly(qint64 size)
{
    (void)std::signal(SIGXFSZ, SIG_IGN);
    rlimit small{};
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &small), 0);
    small.rlim_cur = static_cast<rlim_t>(size);
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
}

SmallFiles::SmallFiles(qint64 size)
    : m_signalBefore(std::signal(SIGXFSZ, SIG_IGN))
{
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
    allowSmallFilesOnly(size);
}

SmallFiles::~SmallFiles()
{
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &m_before), 0);
    (void)std::signal(SIGXFSZ, m_signalBefore);
}

bool fillUp(const QString& path)
{
    constexpr qint64 pageSize = 512;
    qint64 pages = 0;
    {
        RawConnection connection(path);
        EXPECT_TRUE(connection.run(QStringLiteral("PRAGMA page_size = %1").arg(pageSize)));
        EXPECT_TRUE(connection.run(QStringLiteral("VACUUM")));
        pages = connection.rows(QStringLiteral("PRAGMA max_page_count")).value(0).toLongLong();
    }
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    if (!file.resize(pages * pageSize))
        return false;
    EXPECT_TRUE(file.seek(28)); // where the header counts the pages
    QByteArray count;
    for (const int shift : {24, 16, 8, 0})
        count.append(static_cast<char>(pages >> shift & 0xff));
    return file.write(count) == 4;
}

} // namespace condtree::test
