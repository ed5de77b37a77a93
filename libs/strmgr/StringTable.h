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
    StringTable(const CString& title, CString key, const CString& language,
                const QStringList& folders = languageFolders());
    StringTable(const StringTable&) = delete;
    StringTable& operator=(const StringTable&) = delete;
    ~StringTable();

    /// The text of a number in a section; none where the table has no such text. What a host's own
    /// translator translates is found by its English text, english, which may be null.
    [[nodiscard]] std::optional<CString> string(LONG id, const char16_t* section,
                                                const char16_t* english = nullptr) const;

private:
    CString m_key;
    bool m_isOurs;
    /// Whether the texts are those of m_translator, or English when that is null, rather than the
    /// application's.
    bool m_hasLanguage = false;
    std::unique_ptr<QTranslator> m_translator;
};

/// A text of the product's string table; the default where there is none. An empty language is the
/// application's.
[[nodiscard]] CONDTREE_EXPORT CString StringTableText(LONG id, const char16_t* key,
                                                      const char16_t* section,
                                                      const char16_t* defaultText,
                                                      const CString& language);

} // namespace condtree
