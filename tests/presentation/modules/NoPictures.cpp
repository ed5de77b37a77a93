// An icon library that has no picture.
#include <condtree/platform/WfIcons.h>
#include <condtree/platform/WinTypes.h>

using namespace condtree;

extern "C" {

CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t*, int)
{
    return nullptr;
}

CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t*, int)
{
    return nullptr;
}

CONDTREE_EXPORT WfImage* ghLoadWFImageAtSize(const char16_t*, int)
{
    return nullptr;
}
}
