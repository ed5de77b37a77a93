#pragma once

#include <condtree/strmgr/Language.h>

#include <memory>

namespace condtree {

/// Looks texts of the product up in a language that is told with each of them; a
/// LanguageStringSource. The catalogue of the language that was asked last is kept, so that the
/// texts of one language read one file, or are one log line where it is missing or cannot be read.
/// Copies share what is kept, and are for one thread.
///
///     const LanguageTexts texts;       // once
///     ResultCodeText(code, texts, QStringLiteral("de"));
class CONDTREE_EXPORT LanguageTexts {
public:
    /// Catalogues from the folders that come with the library.
    LanguageTexts();
    explicit LanguageTexts(const QStringList& folders);

    /// The translation, else the default. An empty language is the application's.
    [[nodiscard]] CString operator()(LONG id, const char16_t* key, const char16_t* section,
                                     const char16_t* defaultText, const CString& language) const;

private:
    struct Kept;
    std::shared_ptr<Kept> m_kept;
};

} // namespace condtree
