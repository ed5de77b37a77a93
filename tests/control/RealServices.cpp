#include <condtree/control/RealServices.h>
#include <condtree/refdata/ErrorText.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <QWidget>

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

} // namespace
} // namespace condtree
