// An icon library: row icons are red, strips green, and what is drawn for a size is blue.
#include "Picture.h"

using namespace condtree;
using namespace condtree::test;

extern "C" {

CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t* name, int use)
{
    return use == kWfSmallIcon && picturesOf(name) == 1 ? plainPicture(16, 16, 0xFF800000)
                                                        : nullptr;
}

CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t* name, int use)
{
    const int pictures = picturesOf(name);
    return use == kWfSmallIcon && pictures > 1 ? plainPicture(pictures * 16, 16, 0x80008000)
                                               : nullptr;
}

CONDTREE_EXPORT WfImage* ghLoadWFImageAtSize(const char16_t* name, int height)
{
    return plainPicture(picturesOf(name) * height, height, 0xFF000080);
}
}
