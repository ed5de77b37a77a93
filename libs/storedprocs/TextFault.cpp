#include "TextFault.h"

#include <QChar>

#include <algorithm>

namespace condtree {

TextFault textFault(QStringView text, std::int64_t bytesAllowed)
{
    std::int64_t utf8Size = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == 0)
            return TextFault::Null;
        if (!QChar::isSurrogate(unit)) {
            utf8Size += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
            continue;
        }
        const bool isPair =
            QChar::isHighSurrogate(unit) && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (!isPair)
            return TextFault::Unpaired;
        utf8Size += 4;
        ++i;
    }
    const std::int64_t utf16Size = std::int64_t{text.size()} * 2;
    if (bytesAllowed >= 0 && std::min(utf8Size, utf16Size) > bytesAllowed)
        return TextFault::TooLong;
    return TextFault::None;
}

} // namespace condtree
