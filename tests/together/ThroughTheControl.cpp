// What a user of the control sees of a database that fails: the message of the result code, once,
// and a control that works again when the cause is gone. Everything here is real; the box is read
// by the first test, and is a list of messages in the others.
#include "TempDatabase.h"
#include "Unprivileged.h"
#include "control/MessageBoxScript.h"
#include "support/QtPrinters.h"
#include "support/WarningGuard.h"

#include <condtree/control/CondTreeCtrl.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/refdata/RegFileStore.h>
#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <gtest/gtest.h>

#include <QFile>

#include <functional>
#include <optional>

namespace condtree::test {
namespace {

const QString kPermissionText = QStringLiteral("You don't have permission to perform this action.");
const QString kNoDatabaseText =
    QStringLiteral("Could not open database. This could happen if the network connection is broken "
                   "or if the database has been removed.");
const QString kLockedText =
    QStringLiteral("An attempt was made to access a record in the database that is locked by "
                   "another user.\nThis can sometimes happen during high workload on the "
                   "database.\nUsually this is solved if you try the operation again.");

/// The pictures are not what these tests are about.
class NoIcons final : public IconLibrary {
public:
    IconResult loadIcon(const CString&, int, IconPixels&) override { return IconResult::NoLibrary; }
    IconResult loadImage(const CString&, int, IconPixels&) override
    {
        return IconResult::NoLibrary;
    }
};

Services withoutIcons(Services services)
{
    services.icons = std::make_shared<NoIcons>();
    return services;
}

/// A host's control: it reaches the loaders, and connects.
class HostCtrl final : public CondTreeCtrl {
public:
    explicit HostCtrl(const Services& services)
        : CondTreeCtrl(nullptr, withoutIcons(services))
        , m_services(services)
    {
    }
    using CondTreeCtrl::mbInitGroups;
    using CondTreeCtrl::mbInitUsers;
    using CondTreeCtrl::mbInitVars;

    /// Sets itself up with a database; tells the user when there is none to be had.
    void connectTo(const QString& url)
    {
        HRESULT hr = E_FAIL;
        const ManagerPtr manager(SpConnect(url, QStringLiteral("admin"), &hr));
        if (manager == nullptr)
            m_services.messageBox(this, ResultCodeText(hr), MB_OK);
        mvInitialize(manager.get(), 120, KiroVaultType{}, TreeType{});
    }

private:
    Services m_services;
};

struct Loader {
    const char* name;
    bool (HostCtrl::*load)();
};

const Loader kLoaders[] = {
    {"users", &HostCtrl::mbInitUsers},
    {"groups", &HostCtrl::mbInitGroups},
    {"variables", &HostCtrl::mbInitVars},
};

std::vector<TransCond> toTransConds(const std::vector<SpConditionRecord>& records)
{
    std::vector<TransCond> result;
    for (const SpConditionRecord& record : records)
        result.push_back({0, 0, record.rowKind, record.condType, record.name, record.extra,
                          record.value, record.argType, record.op});
    return result;
}

std::vector<SpConditionRecord> toRecords(const std::vector<TransCond>& conditions)
{
    std::vector<SpConditionRecord> result;
    for (const TransCond& each : conditions)
        result.push_back({each.lRowKind, each.lCondType, each.oName, each.oExtra, each.oValue,
                          each.lArgType, each.lOperator});
    return result;
}

class ThroughTheControl : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(SpMakeSampleDatabase(database.url()), S_OK); }

    /// The real ones, but for settings of the test's own.
    Services realBoxes()
    {
        Services result = realServices();
        result.registry = std::make_shared<RegFileStore>(RegFilePaths{
            folder.filePath(QStringLiteral("user")), folder.filePath(QStringLiteral("machine"))});
        return result;
    }

    Services services()
    {
        Services result = realBoxes();
        result.messageBox = [this](QWidget*, const CString& text, unsigned type) {
            EXPECT_EQ(type, MB_OK);
            messages.append(text);
            return 1;
        };
        return result;
    }

    /// A condition on users and groups, which are shown by names, through the control and back.
    void expectRowsToLoadAndSave(HostCtrl& control)
    {
        constexpr LONG requestChanges = 2;
        const ManagerPtr manager = database.connected();
        ASSERT_NE(manager, nullptr);
        SpTransitions& transitions = *SpTransitionsOf(manager.get());
        SpCondition condition;
        ASSERT_EQ(transitions.mhLoadCondition(requestChanges, condition), S_OK);
        ASSERT_GE(condition.records.size(), 4U);
        control.mvLoad(toTransConds(condition.records));
        EXPECT_EQ(control.moGetNameForUserId(4), QStringLiteral("Camille Moreau"));
        EXPECT_EQ(control.moGetNameForGroupId(4), QStringLiteral("Quality"));
        std::vector<TransCond> saved;
        control.mvSave(saved);
        EXPECT_EQ(toText(toRecords(saved)), toText(condition.records));
        EXPECT_EQ(messages, QStringList());
    }

    /// That every loader shows a message once a call while the connection has a fault, and none
    /// from when it is gone.
    void expectMessageUntil(const QString& message, const std::function<void()>& cause,
                            const std::function<void()>& cure)
    {
        for (const Loader& loader : kLoaders) {
            SCOPED_TRACE(loader.name);
            HostCtrl control(services());
            control.connectTo(database.url());
            ASSERT_EQ(messages, QStringList());
            cause();
            {
                const ExpectWarning log(QStringLiteral("failed"));
                EXPECT_FALSE((control.*loader.load)());
                EXPECT_EQ(messages, QStringList{message});
                EXPECT_FALSE((control.*loader.load)());
                EXPECT_EQ(messages, (QStringList{message, message})) << "once a call";
            }
            messages.clear();
            cure();
            EXPECT_TRUE((control.*loader.load)());
            EXPECT_EQ(messages, QStringList());
            expectRowsToLoadAndSave(control);
        }
    }

    /// The same for a database that cannot be connected to: the host says it, the control nothing.
    void expectMessageInstead(const QString& message, const std::function<void()>& cause,
                              const std::function<void()>& cure)
    {
        HostCtrl control(services());
        cause();
        {
            const ExpectWarning log(QStringLiteral("failed"));
            control.connectTo(database.url());
        }
        EXPECT_EQ(messages, QStringList{message});
        for (const Loader& loader : kLoaders)
            EXPECT_FALSE((control.*loader.load)()) << loader.name;
        EXPECT_EQ(messages, QStringList{message}) << "still once";
        messages.clear();
        cure();
        control.connectTo(database.url());
        for (const Loader& loader : kLoaders)
            EXPECT_TRUE((control.*loader.load)()) << loader.name;
        expectRowsToLoadAndSave(control);
    }

    TempDatabase database;
    std::optional<Unprivileged> unprivileged;
    QTemporaryDir folder;
    QStringList messages;
};

TEST_F(ThroughTheControl, ALockedDatabaseIsSaidToBeLockedInOneBoxThatTheUserCloses)
{
    HostCtrl control(realBoxes());
    control.connectTo(database.url());
    control.show();
    control.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    RawConnection other(database.path());
    ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE")));
    for (const Loader& loader : kLoaders) {
        SCOPED_TRACE(loader.name);
        const ExpectWarning log(QStringLiteral("failed"));
        QTimer watch;
        QObject::connect(&watch, &QTimer::timeout, &watch, [] {
            if (QWidget* another = QApplication::activeModalWidget()) {
                ADD_FAILURE() << "one box is enough";
                another->close();
            }
        });
        duringMessage([&] { EXPECT_FALSE((control.*loader.load)()); },
                      [&](QMessageBox& box) {
                          EXPECT_EQ(openBoxes().size(), 1U);
                          EXPECT_EQ(textOf(box).text(), kLockedText);
                          QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
                          watch.start(0);
                      });
        EXPECT_EQ(openBoxes().size(), 0U);
    }
    ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK")));
    control.activateWindow(); // as a desktop does when a box goes
    ASSERT_TRUE(QTest::qWaitForWindowActive(&control));
    EXPECT_TRUE(control.isEnabled());
    for (const Loader& loader : kLoaders)
        EXPECT_TRUE((control.*loader.load)()) << loader.name;
    expectRowsToLoadAndSave(control);
    const QModelIndex first = control.model()->index(0, 0);
    QTest::mouseClick(control.viewport(), Qt::LeftButton, {}, control.visualRect(first).center());
    EXPECT_EQ(control.currentIndex(), first) << "a click reaches the rows";
}

TEST_F(ThroughTheControl, ALockedDatabaseIsSaidToBeLocked)
{
    RawConnection other(database.path());
    expectMessageUntil(
        kLockedText, [&] { ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE"))); },
        [&] { ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK"))); });
}

TEST_F(ThroughTheControl, ADatabaseThatIsLockedAtFirstIsConnectedToLater)
{
    RawConnection other(database.path());
    expectMessageInstead(
        kLockedText, [&] { ASSERT_TRUE(other.run(QStringLiteral("BEGIN EXCLUSIVE"))); },
        [&] { ASSERT_TRUE(other.run(QStringLiteral("ROLLBACK"))); });
}

TEST_F(ThroughTheControl, ADatabaseThatBecomesGarbageCannotBeOpened)
{
    const QByteArray whole = database.bytes();
    const QByteArray garbage(whole.size(), '\x55');
    expectMessageUntil(
        kNoDatabaseText, [&] { database.setBytes(garbage); }, [&] { database.setBytes(whole); });
}

TEST_F(ThroughTheControl, AFileThatIsNoDatabaseCannotBeOpened)
{
    const QByteArray whole = database.bytes();
    expectMessageInstead(
        kNoDatabaseText, [&] { database.setBytes("a letter to the purchasing department"); },
        [&] { database.setBytes(whole); });
}

TEST_F(ThroughTheControl, ADatabaseThatLostATableCannotBeOpened)
{
    HostCtrl control(services());
    database.run({QStringLiteral("DROP TABLE user_settings")});
    const ExpectWarning log(QStringLiteral("\"user_settings\""));
    control.connectTo(database.url());
    EXPECT_EQ(messages, QStringList{kNoDatabaseText});
}

TEST_F(ThroughTheControl, AFileThatMayNotBeReadNeedsPermission)
{
    if (const QString why = whyPermissionsDoNotBind(database.folder()); !why.isEmpty())
        GTEST_SKIP() << "not checked: " << why.toStdString();
    expectMessageInstead(
        kPermissionText,
        [&] {
            setMode(database.path(), 0000);
            unprivileged.emplace();
        },
        [&] {
            unprivileged.reset();
            setMode(database.path(), 0644);
        });
}

TEST_F(ThroughTheControl, WhatAWriterLeftInADatabaseThatMayNotBeWrittenNeedsPermission)
{
    if (const QString why = whyPermissionsDoNotBind(database.folder()); !why.isEmpty())
        GTEST_SKIP() << "not checked: " << why.toStdString();
    // A writer that died leaves its journal: who reads next would have to undo what it began.
    QFile journal(database.path() + QStringLiteral("-journal"));
    setMode(database.path(), 0444);
    const auto leave = [&] {
        unprivileged.reset();
        ASSERT_TRUE(journal.open(QIODevice::WriteOnly));
        journal.write(QByteArray(512, '\x55'));
        journal.close();
        setMode(journal.fileName(), 0444);
        unprivileged.emplace();
    };
    const auto tidyUp = [&] {
        unprivileged.reset();
        ASSERT_TRUE(journal.remove());
        unprivileged.emplace();
    };
    unprivileged.emplace();
    expectMessageUntil(kPermissionText, leave, tidyUp);
    unprivileged.reset();
}

} // namespace
} // namespace condtree::test
