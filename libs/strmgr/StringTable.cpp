#include "StringTable.h"

#include "Catalogue.h"
#include "CatalogueFile.h"

#include <QTranslator>

#include <utility>

namespace condtree {

StringTable::StringTable(const CString& title, CString key)
    : m_key(std::move(key))
    , m_isOurs(title == kProductTitle)
{
}

StringTable::StringTable(const CString& title, CString key, const CString& language,
                         const QStringList& folders)
    : StringTable(title, std::move(key))
{
    m_hasLanguage = m_isOurs && !language.isEmpty();
    if (m_hasLanguage)
        m_translator = readCatalogue(language, folders).translator;
}

StringTable::~StringTable() = default;

std::optional<CString> StringTable::string(LONG id, const char16_t* section,
                                           const char16_t* english) const
{
    if (!m_isOurs)
        return std::nullopt;
    const std::u16string_view key(QStringView(m_key).utf16(),
                                  static_cast<std::size_t>(m_key.size()));
    const TextName name{id, key, viewOf(section)};
    const std::u16string_view known = englishText(name);
    const std::u16string_view source = known.empty() ? viewOf(english) : known;
    if (!m_hasLanguage || m_translator != nullptr) {
        CString text = translation(name, source, m_translator.get());
        if (!text.isEmpty() && (!known.empty() || text != owned(source)))
            return text;
    }
    return known.empty() ? std::nullopt : std::optional(owned(known));
}

CString StringTableText(LONG id, const char16_t* key, const char16_t* section,
                        const char16_t* defaultText, const CString& language)
{
    const StringTable table(CString::fromUtf16(kProductTitle), owned(viewOf(key)), language);
    const std::optional<CString> text = table.string(id, section, defaultText);
    return text ? *text : owned(viewOf(defaultText));
}

} // namespace condtree
