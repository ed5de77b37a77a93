#include <condtree/platform/StrMgr.h>

#include "Catalogue.h"

namespace condtree {

namespace {

/// Rows ask for operators with "?" in the default's place.
constexpr std::u16string_view kOperatorKey = u"OpName";

} // namespace

CString TSS_internal(LONG id, const char16_t* key, const char16_t* section,
                     const char16_t* defaultText)
{
    const TextName name{id, viewOf(key), viewOf(section)};
    const auto known = name.key == kOperatorKey ? englishText(name) : std::u16string_view();
    const auto english = known.empty() ? viewOf(defaultText) : known;
    CString text = translation(name, english, nullptr);
    return text.isEmpty() ? owned(english) : text;
}

} // namespace condtree
