#pragma once

#include <condtree/platform/Export.h>

#include <QEvent>

namespace condtree {

/// What the control sends to its parent's parent when the left button was released: after clicks,
/// and after drags. Not where a row is let go on itself, on no target, or in its own subtree.
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
