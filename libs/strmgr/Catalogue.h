#pragma once

#include <condtree/platform/WinTypes.h>

#include <optional>
#include <span>
#include <string_view>

class QTranslator;

namespace condtree {

/// A text as the catalogues know it.
struct TextName {
    LONG id;
    std::u16string_view key;
    std::u16string_view section;

    [[nodiscard]] constexpr auto operator<=>(const TextName&) const = default;
};

/// A text of the product.
struct CatalogueText {
    TextName name;
    std::u16string_view english;
};

/// Every text of the product, ascending by name.
[[nodiscard]] std::span<const CatalogueText> catalogueTexts();

/// What a catalogue file tells texts of the same English apart by.
[[nodiscard]] QByteArray disambiguationOf(const TextName& name);

// Texts by a translator, or by those of the application where it is null. A translation is looked
// for under the product's English text of the name and then under the caller's, english.

/// The text that the product or a translator has under a name; none where neither has one.
[[nodiscard]] std::optional<CString> tableText(const TextName& name, std::u16string_view english,
                                               const QTranslator* translator);

/// A translation, else the caller's English text. The product's in place of an operator's English
/// name, which callers do not know, and where the caller has none.
[[nodiscard]] CString localisedText(const TextName& name, std::u16string_view english,
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
