#pragma once

#include <QString>

#include <sys/resource.h>

namespace condtree::test {

// Disks that fail: the operating system really refuses to write.

/// From now on no file of this process, or of a program that it becomes, may grow beyond a size:
/// writing there fails, as it does beyond a quota. Binds root, too.
void allowSmallFilesOnly(qint64 size);

/// The same while it lives.
class SmallFiles {
public:
    explicit SmallFiles(qint64 size);
    SmallFiles(const SmallFiles&) = delete;
    SmallFiles& operator=(const SmallFiles&) = delete;
    ~SmallFiles();

private:
    using Handler = void (*)(int);
    rlimit m_before{};
    Handler m_signalBefore;
};

/// Makes a database file as large as a database may be, all of it holes: the next page that it
/// needs is one too many, and for SQLite that is the same as a full disk. False where the file
/// system has no files of that size.
[[nodiscard]] bool fillUp(const QString& path);

} // namespace condtree::test
