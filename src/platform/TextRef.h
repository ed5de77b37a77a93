#pragma once

#include <condtree/platform/WinTypes.h>

#include <functional>

namespace condtree {

/// Where localised texts come from; the arguments are those of TSS_internal.
using StringSource = std::function<CString(LONG id, const char16_t* key, const char16_t* section,
                                           const char16_t* defaultText)>;

/// The same in a given language; an empty one is the user's.
using LanguageStringSource =
    std::function<CString(LONG id, const char16_t* key, const char16_t* section,
                          const char16_t* defaultText, const CString& language)>;

/// A localised text, named.
struct TextRef {
    LONG id;
    const char16_t* key;
    const char16_t* section;
    const char16_t* defaultText;

    [[nodiscard]] CString from(const StringSource& source) const
    {
        return source(id, key, section, defaultText);
    }
};

/// The key of every text that is not an operator's name or a result code's message.
inline constexpr const char16_t* kTextKey = u"TS";

} // namespace condtree
