#include <condtree/refdata/ControlSettings.h>

#include "refdata/ScriptedStore.h"
#include "refdata/SettingsFolder.h"
#include "support/FakeLibrary.h"

#include <QDir>
#include <gtest/gtest.h>

namespace condtree {
namespace {

constexpr const char* kUserKey =
    "HKEY_CURRENT_USER\\Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin";

class ControlSettingsTest : public testing::Test {
protected:
    ControlSettingsTest() { m_manager.reset(m_library.get()); }

    [[nodiscard]] bool showsSecondName() const
    {
        return m_settings.shownUserName() == ShownName::Second;
    }

    test::SettingsFolder m_folder;
    test::ScriptedStore m_store{m_folder.paths()};
    test::FakeLibraryHolder m_library;
    ManagerRef m_manager;
    ControlSettings m_settings{m_manager, m_store};
};

TEST_F(ControlSettingsTest, EverySettingHasItsDefault)
{
    EXPECT_EQ(m_settings.dateStyle, 120);
    EXPECT_EQ(m_settings.vaultType, 0);
    EXPECT_EQ(m_settings.treeType, 0);
    EXPECT_EQ(m_settings.transitionType, 0);
    EXPECT_EQ(m_settings.currentUserId(), 0);
    EXPECT_FALSE(showsSecondName());
    EXPECT_EQ(m_store.created.size(), 0U);
}

TEST_F(ControlSettingsTest, WithoutAManagerNothingIsRead)
{
    m_manager.reset(nullptr);
    EXPECT_FALSE(m_settings.mbInitSettings());
    EXPECT_EQ(m_settings.currentUserId(), 0);
}

TEST_F(ControlSettingsTest, TheConnectedUsersIdAndSettingsAreRead)
{
    m_library->userName = QStringLiteral("j\u00FCrgen");
    m_library->userId = 42;
    m_library->settings = {{24, QStringLiteral("1")}};
    m_library->settingsFlag = true;
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_EQ(m_library->connectNumber, -1);
    EXPECT_EQ(m_library->askedUserName, QStringLiteral("j\u00FCrgen"));
    EXPECT_EQ(m_library->askedUserId, 42);
    EXPECT_FALSE(m_library->settingsFlag);
    EXPECT_EQ(m_settings.currentUserId(), 42);
    EXPECT_TRUE(showsSecondName());
}

struct EntryRow {
    const char16_t* entry;
    bool isSecond;
};

TEST_F(ControlSettingsTest, OnlyExactlyOneSelectsTheSecondName)
{
    const EntryRow rows[] = {{u"1", true},   {u"10", false},    {u"0", false},  {u"", false},
                             {u" 1", false}, {u"01", false},    {u"1 ", false}, {u"true", false},
                             {u"2", false},  {u"\u0661", false}};
    for (const EntryRow& row : rows) {
        SCOPED_TRACE(QString::fromUtf16(row.entry).toStdString());
        ControlSettings settings(m_manager, m_store);
        m_library->settings = {{24, QStringLiteral("1")}};
        settings.mbInitSettings();
        m_library->settings = {{24, QString::fromUtf16(row.entry)}};
        EXPECT_TRUE(settings.mbInitSettings());
        EXPECT_EQ(settings.shownUserName() == ShownName::Second, row.isSecond);
    }
}

TEST_F(ControlSettingsTest, OtherEntriesDoNotSelectTheSecondName)
{
    m_library->settings = {{23, QStringLiteral("1")}, {25, QStringLiteral("1")}};
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_FALSE(showsSecondName());
}

TEST_F(ControlSettingsTest, AnAbsentEntryKeepsTheName)
{
    m_library->settings = {{24, QStringLiteral("1")}};
    m_settings.mbInitSettings();
    m_library->settings.clear();
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_TRUE(showsSecondName());
}

TEST_F(ControlSettingsTest, FailuresAreNotExamined)
{
    m_library->userId = 42;
    m_library->settings = {{24, QStringLiteral("1")}};
    m_library->getConnectInfo.results = {E_FAIL};
    m_library->getUserId.results = {E_FAIL};
    m_library->getUserSettings.results = {E_FAIL};
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_EQ(m_library->getUserId.calls, 1);
    EXPECT_EQ(m_library->askedUserName, QString());
    EXPECT_EQ(m_library->getUserSettings.calls, 1);
    EXPECT_EQ(m_library->askedUserId, 0);
    EXPECT_EQ(m_settings.currentUserId(), 0);
    EXPECT_FALSE(showsSecondName());
}

TEST_F(ControlSettingsTest, WhatAFailingCallFillsInIsTakenOver)
{
    m_library->userName = QStringLiteral("ann");
    m_library->userId = 42;
    m_library->settings = {{24, QStringLiteral("1")}};
    for (test::FakeLibrary::Operation* operation :
         {&m_library->getConnectInfo, &m_library->getUserId, &m_library->getUserSettings}) {
        operation->results = {E_FAIL};
        operation->fillsInOnFailure = true;
    }
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_EQ(m_library->askedUserName, QStringLiteral("ann"));
    EXPECT_EQ(m_settings.currentUserId(), 42);
    EXPECT_TRUE(showsSecondName());
}

TEST_F(ControlSettingsTest, WithoutTheUserProcedureTheIdStaysZero)
{
    m_library->userId = 42;
    m_library->missing = {SPID_USER};
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_EQ(m_settings.currentUserId(), 0);
    EXPECT_EQ(m_library->getUserSettings.calls, 1);
}

TEST_F(ControlSettingsTest, WithoutTheSettingsProcedureTheNameStays)
{
    m_library->userId = 42;
    m_library->settings = {{24, QStringLiteral("1")}};
    m_library->missing = {SPID_SETTINGS};
    EXPECT_TRUE(m_settings.mbInitSettings());
    EXPECT_EQ(m_settings.currentUserId(), 42);
    EXPECT_FALSE(showsSecondName());
}

struct ValueRow {
    const char* line;
    bool isEnabled;
};

TEST_F(ControlSettingsTest, ChildReferenceStatesAreOfferedUnlessTheValueReadsAsZero)
{
    const ValueRow rows[] = {
        {"", true},
        {"\"HasChildRefState\"=dword:00000000", false},
        {"\"HasChildRefState\"=dword:00000001", true},
        {"\"HasChildRefState\"=dword:00000005", true},
        {"\"HasChildRefState\"=dword:00010000", true},
        {"\"haschildrefstate\"=dword:00000000", false},
        {"\"Other\"=dword:00000000", true},
        {"@=dword:00000000", true},
        // Big-endian numbers: read as the four bytes stand, then the halves exchanged.
        {"\"HasChildRefState\"=hex(5):00,00,00,00", false},
        {"\"HasChildRefState\"=hex(5):00,01,00,00", true},
        {"\"HasChildRefState\"=hex(5):00,00,00,01", true},
        {"\"HasChildRefState\"=hex(5):01,00,00,00", true},
        // Other types and sizes count as absent.
        {"\"HasChildRefState\"=hex(4):00,00", true},
        {"\"HasChildRefState\"=hex(4):00,00,00,00,00", true},
        {"\"HasChildRefState\"=hex(4):", true},
        {"\"HasChildRefState\"=hex(5):00,00", true},
        {"\"HasChildRefState\"=hex(b):00,00,00,00,00,00,00,00", true},
        {"\"HasChildRefState\"=hex(b):00,00,00,00", true},
        {"\"HasChildRefState\"=hex:00,00,00,00", true},
        {"\"HasChildRefState\"=\"0\"", true},
        {"\"HasChildRefState\"=\"\"", true},
    };
    for (const ValueRow& row : rows) {
        SCOPED_TRACE(row.line);
        test::SettingsFolder::writeKey(m_folder.paths().user, kUserKey, row.line);
        EXPECT_EQ(m_settings.mbChildRefStateEnabled(), row.isEnabled);
    }
}

TEST_F(ControlSettingsTest, WithoutSettingsTheKeyIsMadeAndStaysOpen)
{
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
    ASSERT_EQ(m_store.created.size(), 1U);
    EXPECT_EQ(m_store.created[0].first, HKEY_CURRENT_USER);
    EXPECT_EQ(m_store.created[0].second,
              QStringLiteral("Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin"));
    EXPECT_EQ(m_store.access, 0x2001FU);
    EXPECT_EQ(m_store.closed, 0);
    EXPECT_TRUE(test::SettingsFolder::read(m_folder.paths().user).contains(kUserKey));
}

TEST_F(ControlSettingsTest, EveryCallClosesTheKeyOfTheOneBefore)
{
    {
        ControlSettings settings(m_manager, m_store);
        settings.mbChildRefStateEnabled();
        settings.mbChildRefStateEnabled();
        EXPECT_EQ(m_store.created.size(), 2U);
        EXPECT_EQ(m_store.closed, 1);
    }
    EXPECT_EQ(m_store.closed, 2) << "the end closes the last";
}

TEST_F(ControlSettingsTest, EveryCallSeesTheValueAsItIsNow)
{
    test::SettingsFolder::writeKey(m_folder.paths().user, kUserKey,
                                   "\"HasChildRefState\"=dword:00000000");
    EXPECT_FALSE(m_settings.mbChildRefStateEnabled());
    test::SettingsFolder::writeKey(m_folder.paths().user, kUserKey,
                                   "\"HasChildRefState\"=dword:00000001");
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
}

TEST_F(ControlSettingsTest, TheMachinesValueDoesNotCount)
{
    test::SettingsFolder::writeKey(
        m_folder.paths().machine,
        "HKEY_LOCAL_MACHINE\\Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin",
        "\"HasChildRefState\"=dword:00000000");
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
}

TEST_F(ControlSettingsTest, AValueThatCannotBeReadOffersThem)
{
    test::SettingsFolder::writeKey(m_folder.paths().user, kUserKey,
                                   "\"HasChildRefState\"=dword:00000000");
    m_store.queryResults = {ERROR_ACCESS_DENIED};
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
    m_store.queryResults = {ERROR_SUCCESS, ERROR_ACCESS_DENIED};
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
    test::SettingsFolder::writeKey(m_folder.paths().user, kUserKey,
                                   "\"HasChildRefState\"=hex(5):00,00,00,00");
    m_store.queryResults = {ERROR_SUCCESS, ERROR_ACCESS_DENIED};
    EXPECT_TRUE(m_settings.mbChildRefStateEnabled());
    EXPECT_FALSE(m_settings.mbChildRefStateEnabled());
}

TEST_F(ControlSettingsTest, AKeyThatCannotBeMadeOffersThem)
{
    test::SettingsFolder::write(m_folder.folder() + QStringLiteral("/file"), "in the way");
    const QString path = m_folder.folder() + QStringLiteral("/file/user.reg");
    test::ScriptedStore store({path, path});
    ControlSettings settings(m_manager, store);
    EXPECT_TRUE(settings.mbChildRefStateEnabled());
    EXPECT_EQ(store.queries, 0);
}

TEST_F(ControlSettingsTest, ExhaustedMemoryIsRaisedAsAResultCode)
{
    m_store.duringQuery = [] { throw std::bad_alloc(); };
    try {
        m_settings.mbChildRefStateEnabled();
        ADD_FAILURE() << "nothing was raised";
    } catch (const _com_error& error) {
        EXPECT_EQ(error.Error(), static_cast<HRESULT>(0x8007000EU));
    }
}

} // namespace
} // namespace condtree
