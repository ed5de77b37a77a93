#include <condtree/refdata/Registry.h>

#include "refdata/ScriptedStore.h"
#include "refdata/SettingsFolder.h"

#include <gtest/gtest.h>

namespace condtree {
namespace {

constexpr const char* kMachineKey =
    "HKEY_LOCAL_MACHINE\\Software\\Veltrix\\Applications\\Larkspan Enterprise";

class RegistryTest : public testing::Test {
protected:
    test::SettingsFolder m_folder;
    test::ScriptedStore m_store{m_folder.paths()};
};

TEST_F(RegistryTest, NoKeyIsOpenAtFirst)
{
    const Registry key(m_store);
    EXPECT_EQ(key.key(), nullptr);
    EXPECT_EQ(key.status(), 0);
}

TEST_F(RegistryTest, OpeningAMissingKeyFails)
{
    Registry key(m_store);
    EXPECT_EQ(key.open(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_QUERY_VALUE),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(key.key(), nullptr);
    EXPECT_EQ(key.status(), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryTest, CreatingMakesTheKey)
{
    Registry key(m_store);
    EXPECT_EQ(key.create(HKEY_CURRENT_USER, QStringLiteral("A\\B"), KEY_READ_WRITE), ERROR_SUCCESS);
    EXPECT_NE(key.key(), nullptr);
    EXPECT_EQ(key.status(), ERROR_SUCCESS);
    EXPECT_NE(key.create(nullptr, QStringLiteral("A"), KEY_READ_WRITE), ERROR_SUCCESS);
    EXPECT_NE(key.status(), ERROR_SUCCESS);
    EXPECT_EQ(key.key(), nullptr);
    Registry other(m_store);
    EXPECT_EQ(other.open(HKEY_CURRENT_USER, QStringLiteral("A\\B"), KEY_QUERY_VALUE),
              ERROR_SUCCESS);
}

TEST_F(RegistryTest, OpeningAnotherKeyClosesTheFirst)
{
    Registry key(m_store);
    key.create(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE);
    EXPECT_EQ(m_store.closed, 0);
    key.create(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE);
    EXPECT_EQ(m_store.closed, 1);
    key.open(HKEY_CURRENT_USER, QStringLiteral("missing"), KEY_READ_WRITE);
    EXPECT_EQ(m_store.closed, 2);
    EXPECT_EQ(key.key(), nullptr);
}

TEST_F(RegistryTest, ClosingStoresTheStatusAndClearsTheHandle)
{
    Registry key(m_store);
    key.create(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE);
    m_store.closeResult = ERROR_ACCESS_DENIED;
    key.close();
    EXPECT_EQ(key.key(), nullptr);
    EXPECT_EQ(key.status(), ERROR_ACCESS_DENIED);
    key.close();
    EXPECT_EQ(m_store.closed, 1) << "nothing is left to close";
}

TEST_F(RegistryTest, ItsEndClosesAnOpenKeyOnly)
{
    {
        const Registry none(m_store);
    }
    EXPECT_EQ(m_store.closed, 0);
    {
        Registry key(m_store);
        key.create(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE);
    }
    EXPECT_EQ(m_store.closed, 1);
}

TEST_F(RegistryTest, AQueryNeedsAnOpenKeyAndKeepsItsStatus)
{
    Registry key(m_store);
    DWORD size = 0;
    EXPECT_EQ(key.query(QStringLiteral("x"), nullptr, nullptr, &size), ERROR_INVALID_HANDLE);
    EXPECT_EQ(key.status(), ERROR_INVALID_HANDLE);
    EXPECT_EQ(m_store.queries, 0);
    key.create(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE);
    EXPECT_EQ(key.query(QStringLiteral("x"), nullptr, nullptr, &size), ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(key.status(), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistryTest, TheIconLibraryIsLookedUpInTheMachinesSettings)
{
    EXPECT_EQ(IconLibraryPath(m_store), QStringLiteral("WfIcons.dll"));
    ASSERT_EQ(m_store.opened.size(), 1U);
    EXPECT_EQ(m_store.opened[0].first, HKEY_LOCAL_MACHINE);
    EXPECT_EQ(m_store.opened[0].second,
              QStringLiteral("Software\\Veltrix\\Applications\\Larkspan Enterprise"));
    EXPECT_EQ(m_store.access, KEY_QUERY_VALUE);
    EXPECT_FALSE(QFile::exists(m_folder.paths().machine)) << "looking makes nothing";
}

struct LocationRow {
    const char* why;
    QByteArray line;
    QString path;
};

TEST_F(RegistryTest, TheIconLibraryLiesInTheDirectoryOfTheLocation)
{
    const QString bare = QStringLiteral("WfIcons.dll");
    const QByteArray fits = QByteArray("C:").append(127, 'a');
    const LocationRow rows[] = {
        {"without a backslash", "\"Location\"=\"C:\\\\Prog\"",
         QStringLiteral("C:\\Prog\\WfIcons.dll")},
        {"with one", "\"Location\"=\"C:\\\\Prog\\\\\"", QStringLiteral("C:\\Prog\\WfIcons.dll")},
        {"a slash is no backslash", "\"Location\"=\"/opt/x/\"",
         QStringLiteral("/opt/x/\\WfIcons.dll")},
        {"name in another case", "\"LOCATION\"=\"/opt\"", QStringLiteral("/opt\\WfIcons.dll")},
        {"no value", "\"Other\"=\"C:\\\\Prog\"", bare},
        {"an empty value", "\"Location\"=\"\"", bare},
        {"129 characters", "\"Location\"=\"" + fits + "\"",
         QString::fromLatin1(fits) + QStringLiteral("\\") + bare},
        {"130 characters", "\"Location\"=\"" + fits + "b\"", bare},
        {"without its null", "\"Location\"=hex(1):41,00,42,00", QStringLiteral("AB\\WfIcons.dll")},
        {"text behind a null", "\"Location\"=hex(1):41,00,00,00,42,00,00,00",
         QStringLiteral("A\\WfIcons.dll")},
        {"any type is read", "\"Location\"=hex(2):41,00,00,00", QStringLiteral("A\\WfIcons.dll")},
    };
    for (const LocationRow& row : rows) {
        SCOPED_TRACE(row.why);
        test::SettingsFolder::writeKey(m_folder.paths().machine, kMachineKey, row.line);
        EXPECT_EQ(IconLibraryPath(m_store), row.path);
    }
}

TEST_F(RegistryTest, TheUsersSettingsDoNotTellTheIconLibrary)
{
    test::SettingsFolder::writeKey(
        m_folder.paths().user,
        "HKEY_CURRENT_USER\\Software\\Veltrix\\Applications\\Larkspan Enterprise",
        "\"Location\"=\"C:\\\\Prog\"");
    EXPECT_EQ(IconLibraryPath(m_store), QStringLiteral("WfIcons.dll"));
}

TEST_F(RegistryTest, TheKeyOfTheIconLibraryIsClosed)
{
    test::SettingsFolder::writeKey(m_folder.paths().machine, kMachineKey, "");
    EXPECT_EQ(IconLibraryPath(m_store), QStringLiteral("WfIcons.dll"));
    EXPECT_EQ(m_store.closed, 1);
}

} // namespace
} // namespace condtree
