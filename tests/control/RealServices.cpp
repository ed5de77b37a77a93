#include "support/WarningGuard.h"

#include <condtree/control/CondTreeParts.h>
#include <condtree/control/RealIcons.h>
#include <condtree/control/RealServices.h>
#include <condtree/platform/IconLibrary.h>
#include <condtree/refdata/ErrorText.h>
#include <condtree/refdata/RegFileStore.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QMessageBox>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeView>
#include <QWidget>

#include <memory>

namespace condtree {
namespace {

TEST(RealServices, TextsComeFromTheStringLibrary)
{
    EXPECT_EQ(realServices().string(58, u"TS", u"Workflow", u"Yes"), QStringLiteral("Yes"));
}

TEST(RealServices, TheClockIsTheLocalOne)
{
    const QDateTime before = QDateTime::currentDateTime();
    const SYSTEMTIME now = realServices().localTime();
    const QDateTime told(QDate(now.wYear, now.wMonth, now.wDay),
                         QTime(now.wHour, now.wMinute, now.wSecond, now.wMilliseconds));
    EXPECT_LE(before.toMSecsSinceEpoch(), told.toMSecsSinceEpoch());
    EXPECT_LE(told.toMSecsSinceEpoch(), QDateTime::currentMSecsSinceEpoch());
    EXPECT_EQ(now.wDayOfWeek, told.date().dayOfWeek() % 7);
}

TEST(RealServices, TicksNeverGoBack)
{
    const Services services = realServices();
    const DWORD first = services.tickCount();
    EXPECT_LT(services.tickCount() - first, 60000U);
}

TEST(RealServices, TheScreenTellsItsDepthAndMetrics)
{
    const Services services = realServices();
    EXPECT_EQ(services.bitsPerPixel(), QGuiApplication::primaryScreen()->depth());
    EXPECT_GE(services.systemMetric(SM_CXSMICON), 16);
    EXPECT_EQ(services.doubleClickTime(), static_cast<DWORD>(QApplication::doubleClickInterval()));
    QCursor::setPos(11, 12);
    EXPECT_EQ(services.cursorPos(), (POINT{11, 12}));
}

TEST(RealServices, AMessageIsABoxThatIsWaitedFor)
{
    QWidget owner;
    owner.show();
    QString seen;
    QTimer::singleShot(0, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        seen = box->text();
        box->close();
    });
    realServices().messageBox(&owner, QStringLiteral("text"), MB_OK);
    EXPECT_EQ(seen, QStringLiteral("text"));
}

TEST(RealServices, TheMessageOfAResultCodeTakesTheStringLibrarysTexts)
{
    EXPECT_EQ(ResultCodeText(E_FAIL), QStringLiteral("An unspecified error occurred."));
}

TEST(RealServices, TheIconLibraryIsLookedForWhereTheSettingsNameIt)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("machine.reg")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Windows Registry Editor Version 5.00\r\n\r\n"
               "[HKEY_LOCAL_MACHINE\\Software\\Veltrix\\Applications\\Larkspan Enterprise]\r\n"
               "\"Location\"=\""
               + folder.path().toUtf8() + "\"\r\n");
    file.close();
    // It is there, and no module.
    QFile library(folder.filePath(QStringLiteral("WfIcons.dll")));
    ASSERT_TRUE(library.open(QIODevice::WriteOnly));
    library.write("hello");
    library.close();

    const test::ExpectWarning warning(folder.path() + QStringLiteral("/WfIcons.dll is not loaded"));
    const auto registry = std::make_shared<RegFileStore>(
        RegFilePaths{folder.filePath(QStringLiteral("user.reg")), file.fileName()});
    IconPixels pixels;
    const CString name = QStringLiteral("PNG_AND");
    EXPECT_EQ(iconsOf(registry)->loadIcon(name, 3, pixels), IconResult::NoLibrary);

    // A control whose settings are a host's own looks there, too.
    Services services;
    services.registry = registry;
    QTreeView view;
    const CondTreeParts parts(view, services);
    EXPECT_EQ(parts.services.icons->loadImage(name, 3, pixels), IconResult::NoLibrary);
    EXPECT_EQ(warning.count(), 2);

    qputenv("CONDTREE_REGISTRY_DIR", folder.path().toUtf8());
    EXPECT_EQ(realServices().icons->loadIcon(name, 3, pixels), IconResult::NoLibrary);
    qunsetenv("CONDTREE_REGISTRY_DIR");
    EXPECT_EQ(warning.count(), 3);
}

} // namespace
} // namespace condtree
