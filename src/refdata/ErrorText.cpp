#include "ErrorText.h"

#include <condtree/refdata/OutOfMemory.h>
#include <condtree/refdata/ResultCatalogue.h>
#include <condtree/refdata/ResultFallbacks.h>

namespace condtree {

namespace {

CString catalogueText(HRESULT code, const StringSource& strings)
{
    const TextRef* text = findResultText(static_cast<DWORD>(code));
    return text == nullptr ? CString() : translated(*text, strings);
}

const char16_t* pointerTo(const CString& text)
{
    return reinterpret_cast<const char16_t*>(text.utf16());
}

/// Takes a copy: the source may be the host's, and add texts meanwhile.
CString plainText(ResultText text, const StringSource& strings)
{
    const TextRef ref{text.id, pointerTo(text.key), pointerTo(text.section),
                      pointerTo(text.defaultText)};
    const CString found = strings ? ref.from(strings) : CString();
    return found.isEmpty() ? text.defaultText : found;
}

CString hostText(HRESULT code, const StringSource& strings, const ResultTexts* texts)
{
    const ResultText* text = texts == nullptr ? nullptr : texts->find(code);
    if (text == nullptr)
        return {};
    switch (text->kind) {
    case ResultTextKind::Plain:
        return plainText(*text, strings);
    case ResultTextKind::DatabaseVersion:
        return databaseVersionText(strings);
    case ResultTextKind::SystemVersion:
        return systemVersionText(strings);
    case ResultTextKind::SymbolicName:
        return text->defaultText;
    }
    return {};
}

CString resultText(HRESULT code, const StringSource& strings, const ResultTexts* more)
{
    CString text = catalogueText(code, strings);
    if (text.isEmpty())
        text = hostText(code, strings, more);
    return text.isEmpty() ? fallbackText(code) : text;
}

} // namespace

_bstr_t ResultCodeText(HRESULT code, const StringSource& strings, const ResultTexts* more)
{
    return raisingOutOfMemory([&] { return resultText(code, strings, more); });
}

_bstr_t ResultCodeText(HRESULT code, const LanguageStringSource& strings, const CString& language,
                       const ResultTexts* more)
{
    if (!strings)
        return ResultCodeText(code, StringSource(), more);
    // Two references: small enough to be kept without an allocation.
    const StringSource inLanguage = [&strings, &language](LONG id, const char16_t* key,
                                                          const char16_t* section,
                                                          const char16_t* defaultText) {
        return strings(id, key, section, defaultText, language);
    };
    return ResultCodeText(code, inLanguage, more);
}

} // namespace condtree
