#pragma once

#include <condtree/platform/WinTypes.h>

#include <string_view>

class QTranslator;

namespace condtree {

/// A text as the catalogues know it.
struct TextName {
    LONG id;
    std::u16string_view key;
    std::u16string_view section;
};

/// The English text of a name; empty where the catalogue has none.
[[nodiscard]] std::u16string_view englishText(const TextName& name);

/// The translation of a text by a translator, or by those of the application when it is null. Empty
/// when there is none. english is the text under which the translations hold it.
[[nodiscard]] CString translation(const TextName& name, std::u16string_view english,
                                  const QTranslator* translator);

/// A text of its own.
[[nodiscard]] inline CString owned(std::u16string_view text)
{
    return CString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

/// The text at a pointer; empty for null.
[[nodiscard]] inline std::u16string_view viewOf(const char16_t* text)
{
    return text != nullptr ? std::u16string_view(text) : std::u16string_view();
}

} // namespace condtree
