#pragma once

#include <condtree/platform/Export.h>

#include <QEvent>

#include <cstdint>

namespace condtree {

/// What Services::startTimer sends to its receiver when the time has passed.
class CONDTREE_EXPORT TimerMessage final : public QEvent {
public:
    explicit TimerMessage(std::uintptr_t id)
        : QEvent(messageType())
        , m_id(id)
    {
    }

    /// The type of these events, the same for the whole process.
    [[nodiscard]] static QEvent::Type messageType();
    [[nodiscard]] std::uintptr_t id() const { return m_id; }

private:
    std::uintptr_t m_id;
};

} // namespace condtree
