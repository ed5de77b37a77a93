#pragma once

#include <condtree/strmgr/Language.h>

#include <memory>
#include <optional>

class QTranslator;

namespace condtree {

/// The product whose texts a string table holds.
inline constexpr const char16_t* kProductTitle = u"VELTRIX KIRO";

/// The string-table service: the texts of a product under one key, numbered within sections.
class CONDTREE_EXPORT StringTable {
public:
    /// The texts in the application's language. A product with another title has none.
    StringTable(const CString& title, CString key);
    /// The texts in a given language, whatever the application's is; reads its catalogue. A
    /// language without a catalogue, or with one that cannot be read, is one log line and English;
    /// an empty one is the application's.
    StringTable(const CString& title, CString key, const CString& language);
    /// The same with the catalogues of given folders.
    StringTable(const CString& title, CString key, const CString& language,
                const QStringList& folders);
    StringTable(const StringTable&) = delete;
    StringTable& operator=(const StringTable&) = delete;
    ~StringTable();

    /// The text of a number in a section: its translation, else the product's English one; none
    /// where the number has neither. english, which may be null, is the text under which a number
    /// that is not the product's is translated: by a catalogue file to which it was added, or, in
    /// the application's language, by a translator of the host's. As their format has it, an entry
    /// without a disambiguation is that of every number with its section and English text; the
    /// product's own entries are never those of other numbers.
    [[nodiscard]] std::optional<CString> string(LONG id, const char16_t* section,
                                                const char16_t* english = nullptr) const;

private:
    CString m_key;
    bool m_isOurs;
    /// Null for the application's language.
    std::unique_ptr<QTranslator> m_translator;
};

/// A text of the product by the service, as a function: its translation, else the default, else the
/// product's English text. An empty language is the application's, where it is TSS_internal. A
/// given one is read from its file by every call; for several texts, LanguageTexts keeps it.
[[nodiscard]] CONDTREE_EXPORT CString StringTableText(LONG id, const char16_t* key,
                                                      const char16_t* section,
                                                      const char16_t* defaultText,
                                                      const CString& language);

} // namespace condtree
