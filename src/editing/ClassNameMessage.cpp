#include "ClassNameMessage.h"

#include <algorithm>
#include <string_view>

namespace condtree {

QEvent::Type ClassNameMessage::messageType()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

void ClassNameMessage::answer(const char16_t* name) const
{
    if (m_buffer == nullptr || m_capacity == 0)
        return;
    const std::u16string_view copied = std::u16string_view(name).substr(0, m_capacity - 1);
    *std::copy(copied.begin(), copied.end(), m_buffer) = u'\0';
}

} // namespace condtree
