#include "ButtonReleasedMessage.h"

namespace condtree {

QEvent::Type ButtonReleasedMessage::messageType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace condtree
