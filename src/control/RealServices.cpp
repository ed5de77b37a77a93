#include "RealServices.h"

#include <condtree/control/MessageBox.h>
#include <condtree/control/RealIcons.h>
#include <condtree/control/RealTimers.h>
#include <condtree/platform/StrMgr.h>
#include <condtree/presentation/SystemMetrics.h>
#include <condtree/refdata/RegFileStore.h>

#include <QApplication>
#include <QCursor>
#include <QDateTime>
#include <QDialog>
#include <QScreen>

#include <chrono>

namespace condtree {

namespace {

int showMessageBox(QWidget* owner, const CString& text, unsigned type)
{
    showMessage(owner, text, type);
    return QDialog::Accepted;
}

SYSTEMTIME readLocalTime()
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    const auto field = [](int value) { return static_cast<std::uint16_t>(value); };
    return {field(date.year()),   field(date.month()), field(date.dayOfWeek() % 7),
            field(date.day()),    field(time.hour()),  field(time.minute()),
            field(time.second()), field(time.msec())};
}

DWORD readTickCount()
{
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<DWORD>(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

POINT readCursorPosition()
{
    const QPoint position = QCursor::pos();
    return {position.x(), position.y()};
}

int readBitsPerPixel()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? 0 : screen->depth();
}

} // namespace

Services realServices()
{
    Services services;
    services.messageBox = showMessageBox;
    services.string = &TSS_internal;
    services.localTime = readLocalTime;
    services.tickCount = readTickCount;
    services.cursorPos = readCursorPosition;
    services.systemMetric = realSystemMetric;
    services.doubleClickTime = [] {
        return static_cast<DWORD>(QApplication::doubleClickInterval());
    };
    services.bitsPerPixel = readBitsPerPixel;
    services.startTimer = startRealTimer;
    services.stopTimer = stopRealTimer;
    services.registry = std::make_shared<RegFileStore>();
    services.icons = iconsOf(services.registry);
    services.resultTexts = std::make_shared<ResultTexts>();
    return services;
}

} // namespace condtree
