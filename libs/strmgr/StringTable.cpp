#include "StringTable.h"

#include "Catalogue.h"
#include "CatalogueFile.h"
#include "LanguageTexts.h"

#include <utility>

namespace condtree {

StringTable::StringTable(const CString& title, CString key)
    : m_key(std::move(key))
    , m_isOurs(title == kProductTitle)
{
}

StringTable::StringTable(const CString& title, CString key, const CString& language)
    : StringTable(title, std::move(key), language,
                  language.isEmpty() ? QStringList() : languageFolders())
{
}

StringTable::StringTable(const CString& title, CString key, const CString& language,
                         const QStringList& folders)
    : StringTable(title, std::move(key))
{
    if (m_isOurs && !language.isEmpty())
        m_translator = translatorOf(language, folders);
}

StringTable::~StringTable() = default;

std::optional<CString> StringTable::string(LONG id, const char16_t* section,
                                           const char16_t* english) const
{
    if (!m_isOurs)
        return std::nullopt;
    const std::u16string_view key(QStringView(m_key).utf16(),
                                  static_cast<std::size_t>(m_key.size()));
    return tableText({id, key, viewOf(section)}, viewOf(english), m_translator.get());
}

CString StringTableText(LONG id, const char16_t* key, const char16_t* section,
                        const char16_t* defaultText, const CString& language)
{
    if (language.isEmpty())
        return localisedText({id, viewOf(key), viewOf(section)}, viewOf(defaultText), nullptr);
    return LanguageTexts()(id, key, section, defaultText, language);
}

} // namespace condtree
