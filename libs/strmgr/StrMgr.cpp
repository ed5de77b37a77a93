#include <condtree/platform/StrMgr.h>

#include "OperatorNames.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QVarLengthArray>

#include <charconv>
#include <string_view>

namespace condtree {

namespace {

constexpr std::u16string_view kOperatorKey = u"OpName";

std::u16string_view viewOf(const char16_t* text)
{
    return text != nullptr ? std::u16string_view(text) : std::u16string_view();
}

CString owned(std::u16string_view text)
{
    return CString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// A short text in UTF-8, null-terminated, without a heap allocation where it is ASCII.
class NarrowText {
public:
    void append(std::u16string_view text)
    {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] >= 0x80) {
                const QByteArray rest = owned(text.substr(i)).toUtf8();
                m_bytes.append(rest.constData(), rest.size());
                return;
            }
            m_bytes.append(static_cast<char>(text[i]));
        }
    }

    void append(LONG number)
    {
        char digits[12];
        const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
        m_bytes.append(std::begin(digits), end - std::begin(digits));
    }

    /// Valid until the next append.
    [[nodiscard]] const char* terminated()
    {
        m_bytes.append('\0');
        return m_bytes.constData();
    }

private:
    QVarLengthArray<char, 256> m_bytes;
};

/// The English text under which the catalogues hold an entry.
std::u16string_view englishText(LONG id, std::u16string_view key, std::u16string_view defaultText)
{
    const auto name = key == kOperatorKey ? englishOperatorName(id) : std::u16string_view();
    return name.empty() ? defaultText : name;
}

} // namespace

CString TSS_internal(LONG id, const char16_t* key, const char16_t* section,
                     const char16_t* defaultText)
{
    const std::u16string_view keyText = viewOf(key);
    const std::u16string_view english = englishText(id, keyText, viewOf(defaultText));
    // An empty source is a catalogue's own header, and without an application nothing is installed.
    if (english.empty() || QCoreApplication::instance() == nullptr)
        return owned(english);

    NarrowText context;
    context.append(viewOf(section));
    NarrowText source;
    source.append(english);
    NarrowText disambiguation;
    disambiguation.append(keyText);
    disambiguation.append(u" ");
    disambiguation.append(id);
    return QCoreApplication::translate(context.terminated(), source.terminated(),
                                       disambiguation.terminated());
}

} // namespace condtree
