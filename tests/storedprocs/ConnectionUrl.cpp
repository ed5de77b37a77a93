#include "TempDatabase.h"
#include "support/WarningGuard.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

namespace condtree::test {
namespace {

HRESULT resultOf(const QString& url)
{
    HRESULT hr = E_FAIL;
    const ManagerPtr manager(SpConnect(url, QStringLiteral("admin"), &hr));
    EXPECT_EQ(manager != nullptr, SUCCEEDED(hr));
    return hr;
}

TEST(ConnectionUrl, ThatIsNoneOfOursIsAnInvalidArgument)
{
    const TempDatabase place;
    const QString good = SpSqliteUrl(place.path());
    const struct {
        const char* what;
        QString url;
    } rows[] = {
        {"nothing", QString()},
        {"a path", place.path()},
        {"another scheme", QStringLiteral("mysql://host/db")},
        {"a file URL", QStringLiteral("file://") + place.path()},
        {"no path", QStringLiteral("sqlite://")},
        {"the root folder", QStringLiteral("sqlite:///")},
        {"the root folder, cleaned", QStringLiteral("sqlite:///tmp/..")},
        {"a relative path", QStringLiteral("sqlite://x.db")},
        {"a byte that is no UTF-8", good + QStringLiteral("%FF")},
        {"a null in the path", good + QStringLiteral("%00")},
        {"a null in the URL", good + QChar(0)},
        {"half a surrogate pair", good + QChar(0xD800)},
        {"an unknown option", good + QStringLiteral("?mode=memory")},
        {"an empty option", good + QStringLiteral("?")},
        {"a timeout without number", good + QStringLiteral("?busy_timeout=")},
        {"a timeout that is no number", good + QStringLiteral("?busy_timeout=long")},
        {"a negative timeout", good + QStringLiteral("?busy_timeout=-1")},
        {"a timeout of over a minute", good + QStringLiteral("?busy_timeout=60001")},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(resultOf(row.url), E_INVALIDARG) << row.what;
        EXPECT_EQ(SpMakeSampleDatabase(row.url), E_INVALIDARG) << row.what;
    }
    EXPECT_TRUE(QDir(place.folder()).isEmpty());
}

TEST(ConnectionUrl, OfAServerIsNotImplementedAndTheLogSaysSo)
{
    const ExpectWarning log(QStringLiteral("PostgreSQL"));
    EXPECT_EQ(resultOf(QStringLiteral("postgresql://admin@localhost:5432/condition")), E_NOTIMPL);
}

TEST(ConnectionUrl, OfAPathFindsThatFileWhateverItsName)
{
    const TempDatabase place;
    const QString names[] = {
        QStringLiteral("plain.db"),        QStringLiteral("with blank.db"),
        QStringLiteral("100%.db"),         QStringLiteral("what?.db"),
        QStringLiteral("a#b&c=d+e.db"),    QStringLiteral("%41.db"),
        QStringLiteral("Prüfung 検査.db"), QStringLiteral("semi;colon'quote\".db"),
    };
    for (const QString& name : names) {
        const QString path = place.folder() + u'/' + name;
        EXPECT_EQ(resultOf(SpSqliteUrl(path)), S_OK) << name.toStdString();
        EXPECT_TRUE(QFile::exists(path)) << name.toStdString();
    }
    EXPECT_EQ(QDir(place.folder()).entryList(QDir::Files).size(), std::ssize(names));
}

TEST(ConnectionUrl, IsReadLeniently)
{
    const TempDatabase place;
    EXPECT_EQ(resultOf(QStringLiteral("SQLite://") + place.folder() + QStringLiteral("/A b%2E.db")),
              S_OK);
    EXPECT_TRUE(QFile::exists(place.folder() + QStringLiteral("/A b..db")));
    EXPECT_EQ(resultOf(QStringLiteral("sqlite:///") + place.folder()
                       + QStringLiteral("/./two.db?busy_timeout=0")),
              S_OK);
    EXPECT_TRUE(QFile::exists(place.folder() + QStringLiteral("/two.db")));
    EXPECT_EQ(resultOf(QStringLiteral("sqlite://") + place.folder()
                       + QStringLiteral("/three.db?busy_timeout=60000")),
              S_OK);
}

TEST(ConnectionUrl, IsEmptyForWhatIsNoAbsolutePath)
{
    EXPECT_EQ(SpSqliteUrl(QStringLiteral("/a b/c.db")), QStringLiteral("sqlite:///a%20b/c.db"));
    EXPECT_EQ(SpSqliteUrl(QStringLiteral("c.db")), QString());
    EXPECT_EQ(SpSqliteUrl(QString()), QString());
    EXPECT_EQ(SpSqliteUrl(QStringLiteral("/c") + QChar(0)), QString());
    EXPECT_EQ(SpSqliteUrl(QStringLiteral("/c") + QChar(0xDC00)), QString());
}

} // namespace
} // namespace condtree::test
