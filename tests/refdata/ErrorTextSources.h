#pragma once

#include <condtree/refdata/ErrorText.h>

#include <QStringList>

#include <string>

namespace condtree::test {

inline HRESULT asResult(DWORD code)
{
    return static_cast<HRESULT>(code);
}

/// A source without translations.
inline CString untranslated(LONG, const char16_t*, const char16_t*, const char16_t* defaultText)
{
    return QString::fromUtf16(defaultText);
}

/// A source that knows no text at all, not even the English one.
inline CString silent(LONG, const char16_t*, const char16_t*, const char16_t*)
{
    return {};
}

inline std::string textOf(DWORD code, const ResultTexts* more = nullptr)
{
    return ResultCodeText(asResult(code), untranslated, more).toStdString();
}

/// Sources that translate everything and note what they are asked, as "id key section default".
struct Asked {
    QStringList texts;
    QStringList languages;

    StringSource source()
    {
        return [this](LONG id, const char16_t* key, const char16_t* section,
                      const char16_t* defaultText) {
            texts.append(QStringLiteral("%1 %2 %3 %4")
                             .arg(id)
                             .arg(QString::fromUtf16(key), QString::fromUtf16(section),
                                  QString::fromUtf16(defaultText)));
            return QStringLiteral("translated %1").arg(id);
        };
    }
    LanguageStringSource languageSource()
    {
        return [this](LONG id, const char16_t* key, const char16_t* section,
                      const char16_t* defaultText, const CString& language) {
            languages.append(language);
            return source()(id, key, section, defaultText) + QStringLiteral(" into ") + language;
        };
    }
};

} // namespace condtree::test
