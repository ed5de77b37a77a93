#include "RealTimers.h"

#include <condtree/platform/TimerMessage.h>

#include <QCoreApplication>
#include <QTimer>

namespace condtree {

namespace {

QString nameOf(std::uintptr_t id)
{
    return QStringLiteral("condtree-timer-%1").arg(id);
}

QTimer* findTimer(const QObject& receiver, std::uintptr_t id)
{
    return receiver.findChild<QTimer*>(nameOf(id), Qt::FindDirectChildrenOnly);
}

QTimer* makeTimer(QObject& receiver, std::uintptr_t id)
{
    auto* timer = new QTimer(&receiver);
    timer->setObjectName(nameOf(id));
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &receiver, [to = &receiver, id] {
        TimerMessage message(id);
        QCoreApplication::sendEvent(to, &message);
    });
    return timer;
}

} // namespace

void startRealTimer(QObject* receiver, std::uintptr_t id, unsigned milliseconds)
{
    if (receiver == nullptr)
        return;
    QTimer* timer = findTimer(*receiver, id);
    if (timer == nullptr)
        timer = makeTimer(*receiver, id);
    timer->start(std::chrono::milliseconds(milliseconds));
}

void stopRealTimer(QObject* receiver, std::uintptr_t id)
{
    if (QTimer* timer = receiver == nullptr ? nullptr : findTimer(*receiver, id))
        timer->stop();
}

} // namespace condtree
