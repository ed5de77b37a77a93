#include <condtree/platform/StrMgr.h>

#include "Catalogue.h"

namespace condtree {

CString TSS_internal(LONG id, const char16_t* key, const char16_t* section,
                     const char16_t* defaultText)
{
    return localisedText({id, viewOf(key), viewOf(section)}, viewOf(defaultText), nullptr);
}

} // namespace condtree
