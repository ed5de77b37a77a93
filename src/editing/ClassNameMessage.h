#pragma once

#include <condtree/platform/Export.h>

#include <QEvent>

#include <cstddef>

namespace condtree {

/// The registered message "WM_GET_HWNDCLASSNAME": asks a window for the name of its class. A window
/// that does not know the message leaves the buffer as it is.
class CONDTREE_EXPORT ClassNameMessage final : public QEvent {
public:
    /// buffer holds capacity code units, the null at the end included.
    ClassNameMessage(char16_t* buffer, std::size_t capacity)
        : QEvent(messageType())
        , m_buffer(buffer)
        , m_capacity(capacity)
    {
    }

    /// The type of these events, the same for the whole process.
    [[nodiscard]] static QEvent::Type messageType();
    /// Copies a name into the buffer, cut to what fits. Without a buffer or room nothing happens.
    void answer(const char16_t* name) const;

private:
    char16_t* m_buffer;
    std::size_t m_capacity;
};

} // namespace condtree
