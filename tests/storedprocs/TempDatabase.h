#pragma once

#include <condtree/platform/StoredProcs.h>
#include <condtree/storedprocs/SpTransitions.h>

#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>
#include <vector>

namespace condtree::test {

struct ReleaseManager {
    void operator()(SpMgr* manager) const { manager->Release(); }
};
using ManagerPtr = std::unique_ptr<SpMgr, ReleaseManager>;

/// A connection past the library, as another program would have it; waits for no lock.
class RawConnection {
public:
    explicit RawConnection(const QString& path);
    RawConnection(const RawConnection&) = delete;
    RawConnection& operator=(const RawConnection&) = delete;
    ~RawConnection();

    /// Runs a statement; whether it succeeded.
    bool run(const QString& sql);
    /// Every row of a query, its columns joined by '|'.
    [[nodiscard]] QStringList rows(const QString& sql);
    [[nodiscard]] QSqlDatabase& handle() { return m_handle; }

private:
    QString m_name;
    QSqlDatabase m_handle;
};

/// A database file in a folder of its own that goes with it. Nothing exists at first.
class TempDatabase {
public:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("condition.db")); }
    /// Waits little for locks, so that the tests of locks are quick.
    [[nodiscard]] QString url() const;

    /// Logs in; a failure fails the test and gives null.
    [[nodiscard]] ManagerPtr connected(const QString& user = QStringLiteral("admin")) const;
    /// Runs statements past the library; a failure fails the test.
    void run(const QStringList& statements) const;
    [[nodiscard]] QStringList rows(const QString& sql) const;
    /// The one value of a query.
    [[nodiscard]] QString value(const QString& sql) const;
    /// Every row of every table, as text.
    [[nodiscard]] QStringList everything() const;

    [[nodiscard]] QByteArray bytes() const;
    void setBytes(const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/// A procedure object of a manager by its number.
template <class Proc>
[[nodiscard]] Proc& procOf(const ManagerPtr& manager, SPID id)
{
    return static_cast<Proc&>(*manager->mpoGetProc(id));
}

/// A condition as text, a record a line.
[[nodiscard]] QString toText(const std::vector<SpConditionRecord>& records);

} // namespace condtree::test
