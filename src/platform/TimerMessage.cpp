#include "TimerMessage.h"

namespace condtree {

QEvent::Type TimerMessage::messageType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace condtree
