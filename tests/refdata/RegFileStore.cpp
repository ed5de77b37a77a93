#include <condtree/refdata/RegFileStore.h>

#include "refdata/SettingsFolder.h"
#include "support/WarningGuard.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <array>

#include <sys/stat.h>

namespace condtree {
namespace {

using test::bytesOf;
using test::SettingsFolder;

constexpr const char* kKey = "HKEY_CURRENT_USER\\A";

/// Sets an environment variable while it lives.
class Environment {
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        m_wasSet = qEnvironmentVariableIsSet(name);
        qputenv(name, value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment()
    {
        if (m_wasSet)
            qputenv(m_name, m_before);
        else
            qunsetenv(m_name);
    }

private:
    const char* m_name;
    QByteArray m_before;
    bool m_wasSet;
};

class RegFileStoreTest : public testing::Test {
protected:
    /// Opens a key of the user that must be there.
    HKEY open(RegFileStore& store, const char16_t* subKey, DWORD access = KEY_READ_WRITE)
    {
        HKEY key = nullptr;
        EXPECT_EQ(store.openKey(HKEY_CURRENT_USER, QString::fromUtf16(subKey), access, key),
                  ERROR_SUCCESS);
        return key;
    }
    HKEY create(RegFileStore& store, const char16_t* subKey)
    {
        HKEY key = nullptr;
        EXPECT_EQ(
            store.createKey(HKEY_CURRENT_USER, QString::fromUtf16(subKey), KEY_READ_WRITE, key),
            ERROR_SUCCESS);
        return key;
    }
    LONG set(RegFileStore& store, HKEY key, const char16_t* name, DWORD number)
    {
        return store.setValue(key, QString::fromUtf16(name), REG_DWORD, bytesOf(number));
    }
    /// A number; -1 when it cannot be read.
    qint64 number(RegFileStore& store, HKEY key, const char16_t* name)
    {
        DWORD value = 0;
        DWORD size = sizeof value;
        const LONG status = store.queryValue(key, QString::fromUtf16(name), nullptr, &value, &size);
        return status == ERROR_SUCCESS ? qint64{value} : -1;
    }
    void writeUser(const QByteArray& lines)
    {
        SettingsFolder::writeKey(m_folder.paths().user, kKey, lines);
    }
    QByteArray userText() { return SettingsFolder::read(m_folder.paths().user); }
    QString path(const char* name) { return m_folder.folder() + u'/' + QLatin1String(name); }

    SettingsFolder m_folder;
    RegFileStore m_store{m_folder.paths()};
};

TEST_F(RegFileStoreTest, AMissingFileIsEmptyAndIsNotMadeByOpening)
{
    HKEY key = reinterpret_cast<HKEY>(std::uintptr_t{5});
    EXPECT_EQ(m_store.openKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_QUERY_VALUE, key),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(key, nullptr);
    EXPECT_FALSE(QFile::exists(m_folder.paths().user));
}

TEST_F(RegFileStoreTest, CreatingMakesTheFileWithTheKey)
{
    create(m_store, u"Software\\Maker");
    EXPECT_EQ(userText(), QByteArray("Windows Registry Editor Version 5.00\n\n"
                                     "[HKEY_CURRENT_USER\\Software\\Maker]\n"));
    open(m_store, u"software");
    open(m_store, u"SOFTWARE\\maker");
    EXPECT_FALSE(QFile::exists(m_folder.paths().machine));
    EXPECT_EQ(QDir(m_folder.folder()).entryList(QDir::Files | QDir::Hidden),
              QStringList(QStringLiteral("user.reg")))
        << "nothing is left beside it";
}

TEST_F(RegFileStoreTest, CreatingMakesTheFoldersToo)
{
    RegFileStore store({path("new/folder/user.reg"), path("machine.reg")});
    create(store, u"A");
    EXPECT_TRUE(QFile::exists(path("new/folder/user.reg")));
}

TEST_F(RegFileStoreTest, CreatingAKeyThatIsThereWritesNothing)
{
    writeUser("; the administrator's comment\n\"x\"=dword:1");
    const QByteArray before = userText();
    EXPECT_EQ(number(m_store, create(m_store, u"a"), u"X"), 1);
    EXPECT_EQ(userText(), before);
}

TEST_F(RegFileStoreTest, TheRootsAreFilesOfTheirOwn)
{
    HKEY key = nullptr;
    EXPECT_EQ(m_store.createKey(HKEY_LOCAL_MACHINE, QStringLiteral("M"), KEY_READ_WRITE, key),
              ERROR_SUCCESS);
    EXPECT_TRUE(
        SettingsFolder::read(m_folder.paths().machine).endsWith("\n[HKEY_LOCAL_MACHINE\\M]\n"));
    EXPECT_FALSE(QFile::exists(m_folder.paths().user));
    EXPECT_EQ(m_store.openKey(HKEY_CURRENT_USER, QStringLiteral("M"), KEY_QUERY_VALUE, key),
              ERROR_FILE_NOT_FOUND);
}

TEST_F(RegFileStoreTest, ARootItselfIsAlwaysThere)
{
    EXPECT_NE(open(m_store, u""), nullptr);
    EXPECT_FALSE(QFile::exists(m_folder.paths().user));
}

TEST_F(RegFileStoreTest, AnUnknownRootIsNoHandle)
{
    const HKEY root = reinterpret_cast<HKEY>(std::uintptr_t{0x80000003U});
    HKEY key = nullptr;
    EXPECT_EQ(m_store.openKey(root, QStringLiteral("A"), KEY_QUERY_VALUE, key),
              ERROR_INVALID_HANDLE);
    EXPECT_EQ(m_store.createKey(nullptr, QStringLiteral("A"), KEY_READ_WRITE, key),
              ERROR_INVALID_HANDLE);
    EXPECT_EQ(key, nullptr);
}

TEST_F(RegFileStoreTest, BackslashesAroundASubKeyDoNotCount)
{
    writeUser("\"x\"=dword:7");
    EXPECT_EQ(number(m_store, open(m_store, u"\\A\\"), u"x"), 7);
}

TEST_F(RegFileStoreTest, AQueryGivesTypeBytesAndSize)
{
    writeUser("\"x\"=hex(5):01,02,03,04\n@=\"v\"");
    const HKEY key = open(m_store, u"A");
    std::array<std::uint8_t, 6> data{9, 9, 9, 9, 9, 9};
    DWORD type = 0;
    DWORD size = 6;
    EXPECT_EQ(m_store.queryValue(key, QStringLiteral("X"), &type, data.data(), &size),
              ERROR_SUCCESS);
    EXPECT_EQ(type, REG_DWORD_BIG_ENDIAN);
    EXPECT_EQ(size, 4U);
    EXPECT_EQ(data, (std::array<std::uint8_t, 6>{1, 2, 3, 4, 9, 9}));
    EXPECT_EQ(m_store.queryValue(key, QString(), &type, nullptr, nullptr), ERROR_SUCCESS);
    EXPECT_EQ(type, REG_SZ);
}

TEST_F(RegFileStoreTest, AQueryWithoutDataGivesTheSize)
{
    writeUser("\"x\"=\"four\"");
    DWORD size = 1;
    EXPECT_EQ(m_store.queryValue(open(m_store, u"A"), QStringLiteral("x"), nullptr, nullptr, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(size, 10U) << "five units with the null";
}

TEST_F(RegFileStoreTest, TooLittleRoomIsMoreDataAndTellsTheSize)
{
    writeUser("\"x\"=hex:01,02,03");
    std::array<std::uint8_t, 3> data{9, 9, 9};
    DWORD type = 0;
    DWORD size = 2;
    EXPECT_EQ(
        m_store.queryValue(open(m_store, u"A"), QStringLiteral("x"), &type, data.data(), &size),
        ERROR_MORE_DATA);
    EXPECT_EQ(size, 3U);
    EXPECT_EQ(type, REG_BINARY);
    EXPECT_EQ(data, (std::array<std::uint8_t, 3>{9, 9, 9}));
}

TEST_F(RegFileStoreTest, AQueryNeedsAKeyAValueARightAndTheRoom)
{
    writeUser("\"x\"=dword:1");
    DWORD data = 0;
    DWORD size = sizeof data;
    const CString name = QStringLiteral("x");
    EXPECT_EQ(m_store.queryValue(nullptr, name, nullptr, &data, &size), ERROR_INVALID_HANDLE);
    EXPECT_EQ(m_store.queryValue(open(m_store, u"A"), QStringLiteral("y"), nullptr, &data, &size),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(m_store.queryValue(open(m_store, u"A"), name, nullptr, &data, nullptr),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(m_store.queryValue(open(m_store, u"A", 0x2), name, nullptr, &data, &size),
              ERROR_ACCESS_DENIED);
}

TEST_F(RegFileStoreTest, AValueIsWrittenThrough)
{
    const HKEY key = create(m_store, u"A");
    EXPECT_EQ(set(m_store, key, u"x", 5), ERROR_SUCCESS);
    EXPECT_EQ(number(m_store, key, u"x"), 5);
    EXPECT_TRUE(userText().endsWith("[HKEY_CURRENT_USER\\A]\n\"x\"=dword:00000005\n"));
    EXPECT_EQ(set(m_store, key, u"X", 6), ERROR_SUCCESS);
    EXPECT_TRUE(userText().endsWith("[HKEY_CURRENT_USER\\A]\n\"x\"=dword:00000006\n"));
}

TEST_F(RegFileStoreTest, WritingKeepsWhatElseTheFileHolds)
{
    SettingsFolder::write(
        m_folder.paths().user,
        "Windows Registry Editor Version 5.00\n[HKEY_USERS\\Other]\n\"o\"=hex(7):00,00\n"
        "[HKEY_CURRENT_USER\\A]\n\"y\"=\"kept\"\n");
    EXPECT_EQ(set(m_store, open(m_store, u"A"), u"x", 1), ERROR_SUCCESS);
    EXPECT_EQ(userText(),
              QByteArray("Windows Registry Editor Version 5.00\n\n"
                         "[HKEY_CURRENT_USER\\A]\n\"x\"=dword:00000001\n\"y\"=\"kept\"\n\n"
                         "[HKEY_USERS\\Other]\n\"o\"=hex(7):00,00\n"));
}

TEST_F(RegFileStoreTest, WritingNeedsAKeyARightAndAName)
{
    const HKEY key = create(m_store, u"A");
    const QByteArray before = userText();
    EXPECT_EQ(set(m_store, nullptr, u"x", 1), ERROR_INVALID_HANDLE);
    EXPECT_EQ(set(m_store, open(m_store, u"A", KEY_QUERY_VALUE), u"x", 1), ERROR_ACCESS_DENIED);
    EXPECT_EQ(set(m_store, key, u"a\nb", 1), ERROR_INVALID_PARAMETER);
    HKEY other = nullptr;
    EXPECT_EQ(m_store.createKey(HKEY_CURRENT_USER, QStringLiteral("B\tC"), KEY_READ_WRITE, other),
              ERROR_INVALID_PARAMETER);
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(userText(), before);
}

TEST_F(RegFileStoreTest, AClosedKeyIsNoKeyAndItsHandleIsNotUsedAgain)
{
    writeUser("\"x\"=dword:1");
    const HKEY key = open(m_store, u"A");
    EXPECT_EQ(m_store.closeKey(key), ERROR_SUCCESS);
    EXPECT_EQ(m_store.closeKey(key), ERROR_INVALID_HANDLE);
    EXPECT_EQ(m_store.closeKey(nullptr), ERROR_INVALID_HANDLE);
    EXPECT_NE(open(m_store, u"A"), key);
    EXPECT_EQ(number(m_store, key, u"x"), -1);
}

TEST_F(RegFileStoreTest, TwoStoresSeeEachOthersWritesWhenAKeyIsOpened)
{
    RegFileStore other(m_folder.paths());
    const HKEY mine = create(m_store, u"A");
    EXPECT_EQ(set(other, open(other, u"A"), u"x", 8), ERROR_SUCCESS);
    EXPECT_EQ(number(m_store, mine, u"x"), -1) << "read when the key was opened";
    EXPECT_EQ(number(m_store, open(m_store, u"A"), u"x"), 8);
    EXPECT_EQ(set(m_store, mine, u"y", 9), ERROR_SUCCESS);
    EXPECT_EQ(number(other, open(other, u"A"), u"x"), 8) << "a write keeps the other store's";
    EXPECT_EQ(number(other, open(other, u"A"), u"y"), 9);
}

TEST_F(RegFileStoreTest, AnExportInUtf16IsReadAndReplacedByUtf8)
{
    const QString text = QStringLiteral("Windows Registry Editor Version 5.00\r\n\r\n"
                                        "[HKEY_CURRENT_USER\\A]\r\n\"x\"=dword:00000003\r\n\r\n");
    SettingsFolder::write(
        m_folder.paths().user,
        "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(text.utf16()), text.size() * 2));
    const HKEY key = open(m_store, u"A");
    EXPECT_EQ(number(m_store, key, u"x"), 3);
    EXPECT_EQ(set(m_store, key, u"y", 4), ERROR_SUCCESS);
    EXPECT_TRUE(userText().endsWith("\"x\"=dword:00000003\n\"y\"=dword:00000004\n"));
}

TEST_F(RegFileStoreTest, AMalformedFileIsReportedReadAsEmptyAndNeverOverwritten)
{
    writeUser("\"x\"=dword:1\n\"y\"=oops");
    const QByteArray before = userText();
    const test::ExpectWarning warning(m_folder.paths().user + QStringLiteral(":5: "));
    HKEY key = nullptr;
    EXPECT_EQ(m_store.openKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_QUERY_VALUE, key),
              ERROR_FILE_NOT_FOUND);
    EXPECT_EQ(m_store.createKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE, key),
              ERROR_WRITE_FAULT);
    EXPECT_EQ(key, nullptr);
    EXPECT_EQ(set(m_store, open(m_store, u""), u"x", 1), ERROR_WRITE_FAULT);
    EXPECT_EQ(userText(), before);
    EXPECT_EQ(warning.count(), 1) << "the same report is not repeated";
}

TEST_F(RegFileStoreTest, AFileThatIsMalformedAgainIsReportedAgain)
{
    const test::ExpectWarning warning(QStringLiteral("user.reg:4: "));
    writeUser("oops");
    open(m_store, u"");
    writeUser("\"x\"=dword:1");
    EXPECT_EQ(number(m_store, open(m_store, u"A"), u"x"), 1) << "a mended file is read";
    EXPECT_EQ(warning.count(), 1);
    writeUser("oops");
    open(m_store, u"");
    EXPECT_EQ(warning.count(), 2);
}

TEST_F(RegFileStoreTest, AFileThatGoesBadWhileAKeyIsOpenIsNotOverwritten)
{
    const HKEY key = create(m_store, u"A");
    writeUser("oops");
    const test::ExpectWarning warning(QStringLiteral("user.reg:4: "));
    EXPECT_EQ(set(m_store, key, u"x", 1), ERROR_WRITE_FAULT);
    EXPECT_TRUE(userText().endsWith("oops\n"));
}

TEST_F(RegFileStoreTest, WhatIsNoRegularFileIsReportedAndLeftAlone)
{
    ASSERT_TRUE(QDir().mkpath(m_folder.paths().user));
    const test::ExpectWarning warning(m_folder.paths().user
                                      + QStringLiteral(": the file cannot be read"));
    HKEY key = nullptr;
    EXPECT_EQ(m_store.createKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE, key),
              ERROR_WRITE_FAULT);
    EXPECT_TRUE(QFileInfo(m_folder.paths().user).isDir());
    EXPECT_EQ(warning.count(), 1);
}

TEST_F(RegFileStoreTest, APipeIsReportedAndNotWaitedFor)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(m_folder.paths().user).constData(), 0600), 0);
    const test::ExpectWarning warning(m_folder.paths().user
                                      + QStringLiteral(": the file cannot be read"));
    HKEY key = nullptr;
    EXPECT_EQ(m_store.openKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_QUERY_VALUE, key),
              ERROR_FILE_NOT_FOUND);
}

TEST_F(RegFileStoreTest, AFolderThatCannotBeMadeIsAWriteFault)
{
    SettingsFolder::write(path("file"), "in the way");
    RegFileStore store({path("file/user.reg"), path("machine.reg")});
    HKEY key = nullptr;
    EXPECT_EQ(store.createKey(HKEY_CURRENT_USER, QStringLiteral("A"), KEY_READ_WRITE, key),
              ERROR_WRITE_FAULT);
    EXPECT_EQ(key, nullptr);
}

TEST(RegFilePathsTest, AFolderOfItsOwnHoldsBothFiles)
{
    const Environment folder("CONDTREE_REGISTRY_DIR", "/settings");
    const RegFilePaths paths = RegFilePaths::standard();
    EXPECT_EQ(paths.user, QStringLiteral("/settings/user.reg"));
    EXPECT_EQ(paths.machine, QStringLiteral("/settings/machine.reg"));
}

TEST(RegFilePathsTest, OtherwiseTheyLieInTheConfigurationFolders)
{
    const Environment folder("CONDTREE_REGISTRY_DIR", "");
    const Environment user("XDG_CONFIG_HOME", "/home/one/settings");
    const Environment machine("XDG_CONFIG_DIRS", "/etc/first:/etc/second");
    const RegFilePaths paths = RegFilePaths::standard();
    EXPECT_EQ(paths.user, QStringLiteral("/home/one/settings/condtree/user.reg"));
    EXPECT_EQ(paths.machine, QStringLiteral("/etc/first/condtree/machine.reg"));
}

TEST(RegFilePathsTest, TheMachinesFileIsTheFirstThatThereIs)
{
    const QTemporaryDir folder;
    const QString second = folder.filePath(QStringLiteral("second/condtree/machine.reg"));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(second).path()));
    QFile file(second);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const Environment own("CONDTREE_REGISTRY_DIR", "");
    const QString folders = folder.filePath(QStringLiteral("first")) + QLatin1Char(':')
                            + folder.filePath(QStringLiteral("second"));
    const Environment machine("XDG_CONFIG_DIRS", folders.toLocal8Bit());
    EXPECT_EQ(RegFilePaths::standard().machine, second);
}

TEST(RegFilePathsTest, TheMachinesFolderHasADefaultAndIsAbsolute)
{
    const Environment folder("CONDTREE_REGISTRY_DIR", "");
    const QString standard = QStringLiteral("/etc/xdg/condtree/machine.reg");
    const Environment none("XDG_CONFIG_DIRS", "");
    EXPECT_EQ(RegFilePaths::standard().machine, standard);
    const Environment relative("XDG_CONFIG_DIRS", "relative");
    EXPECT_EQ(RegFilePaths::standard().machine, standard);
    const Environment mixed("XDG_CONFIG_DIRS", "relative::/etc/third");
    EXPECT_EQ(RegFilePaths::standard().machine, QStringLiteral("/etc/third/condtree/machine.reg"));
}

/// The same files in another process.
class TwoProcesses : public RegFileStoreTest {
protected:
    TwoProcesses() { qputenv("CONDTREE_REGISTRY_DIR", m_folder.folder().toUtf8()); }
    ~TwoProcesses() override { qunsetenv("CONDTREE_REGISTRY_DIR"); }

    static QString finished(QProcess& process)
    {
        EXPECT_TRUE(process.waitForFinished(60000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return QString::fromUtf8(process.readAllStandardOutput());
    }
    static void start(QProcess& process, const QStringList& arguments)
    {
        process.start(QStringLiteral(CONDTREE_SETTINGS_PROCESS), arguments);
    }
    static QString run(const QStringList& arguments)
    {
        QProcess process;
        start(process, arguments);
        return finished(process);
    }
};

TEST_F(TwoProcesses, WhatOneWritesTheOtherReads)
{
    EXPECT_EQ(run({QStringLiteral("set"), QStringLiteral("A\\B"), QStringLiteral("x"),
                   QStringLiteral("77")}),
              QStringLiteral("0"));
    const HKEY key = open(m_store, u"a\\b");
    EXPECT_EQ(number(m_store, key, u"X"), 77);
    EXPECT_EQ(set(m_store, key, u"y", 78), ERROR_SUCCESS);
    EXPECT_EQ(run({QStringLiteral("get"), QStringLiteral("A\\B"), QStringLiteral("y")}),
              QStringLiteral("78"));
    EXPECT_EQ(run({QStringLiteral("get"), QStringLiteral("A\\B"), QStringLiteral("z")}),
              QStringLiteral("?2"));
}

TEST_F(TwoProcesses, TypesSurviveFromOneToTheOther)
{
    const HKEY key = create(m_store, u"A");
    m_store.setValue(key, QStringLiteral("x"), REG_SZ, bytesOf(QStringLiteral("1")));
    EXPECT_EQ(
        run({QStringLiteral("set"), QStringLiteral("A"), QStringLiteral("y"), QStringLiteral("1")}),
        QStringLiteral("0"));
    const HKEY again = open(m_store, u"A");
    DWORD type = 0;
    EXPECT_EQ(m_store.queryValue(again, QStringLiteral("x"), &type, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(type, REG_SZ);
    EXPECT_EQ(m_store.queryValue(again, QStringLiteral("y"), &type, nullptr, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(type, REG_DWORD);
}

TEST_F(TwoProcesses, WritingAtTheSameTimeLosesNothing)
{
    constexpr int kCount = 40;
    QProcess one;
    QProcess two;
    const QString count = QString::number(kCount);
    start(one, {QStringLiteral("fill"), QStringLiteral("A"), QStringLiteral("one"), count});
    start(two, {QStringLiteral("fill"), QStringLiteral("A"), QStringLiteral("two"), count});
    EXPECT_EQ(finished(one), QStringLiteral("0"));
    EXPECT_EQ(finished(two), QStringLiteral("0"));
    const HKEY key = open(m_store, u"A");
    for (int i = 0; i < kCount; ++i) {
        for (const char* prefix : {"one", "two"}) {
            const QString name = QLatin1String(prefix) + QString::number(i);
            EXPECT_EQ(number(m_store, key, reinterpret_cast<const char16_t*>(name.utf16())), i);
        }
    }
}

} // namespace
} // namespace condtree
