// An icon library that draws its pictures for every size but one.
#include "Picture.h"

using namespace condtree;
using namespace condtree::test;

extern "C" {

CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t*, int use)
{
    return use == kWfSmallIcon ? plainPicture(16, 16, 0xFF800000) : nullptr;
}

CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t*, int)
{
    return plainPicture(64, 16, 0x80008000);
}

CONDTREE_EXPORT WfImage* ghLoadWFImageAtSize(const char16_t* name, int height)
{
    constexpr int kMissing = 24;
    return height == kMissing ? nullptr
                              : plainPicture(picturesOf(name) * height, height, 0xFF000080);
}
}
