#pragma once

#include <condtree/platform/Export.h>

#include <QEvent>

namespace condtree {

/// What the control sends to its parent's parent when the left button was released over it: after
/// clicks, and after a drag that moved a row. A drag that ended without moving one is not told.
class CONDTREE_EXPORT ButtonReleasedMessage final : public QEvent {
public:
    ButtonReleasedMessage()
        : QEvent(messageType())
    {
    }

    /// The type of these events, the same for the whole process.
    [[nodiscard]] static QEvent::Type messageType();
};

} // namespace condtree
