#include "LanguageTexts.h"

#include "Catalogue.h"
#include "CatalogueFile.h"

#include <optional>

namespace condtree {

struct LanguageTexts::Kept {
    std::optional<QStringList> folders; ///< None: the library's, looked for when needed.
    CString language;
    std::unique_ptr<QTranslator> translator; ///< Null until a language was asked for.
};

LanguageTexts::LanguageTexts()
    : m_kept(std::make_shared<Kept>())
{
}

LanguageTexts::LanguageTexts(const QStringList& folders)
    : LanguageTexts()
{
    m_kept->folders = folders;
}

CString LanguageTexts::operator()(LONG id, const char16_t* key, const char16_t* section,
                                  const char16_t* defaultText, const CString& language) const
{
    const TextName name{id, viewOf(key), viewOf(section)};
    if (language.isEmpty())
        return localisedText(name, viewOf(defaultText), nullptr);
    Kept& kept = *m_kept;
    if (kept.translator == nullptr || kept.language != language) {
        kept.translator = translatorOf(language, kept.folders ? *kept.folders : languageFolders());
        kept.language = language;
    }
    return localisedText(name, viewOf(defaultText), kept.translator.get());
}

} // namespace condtree
