// An icon library whose pictures make no sense, each name in its own way.
#include "Picture.h"

using namespace condtree;
using namespace condtree::test;

extern "C" CONDTREE_EXPORT WfImage* ghLoadWFPngImageIconAsPerDPI(const char16_t* name, int)
{
    WfImage* image = plainPicture(1, 1, 0xFFFFFFFF);
    switch (name[0]) {
    case u'a':
        image->width = 0;
        break;
    case u'b':
        image->height = -1;
        break;
    case u'c':
        image->bytes = nullptr;
        break;
    case u'd':
        image->width = image->height = 0x7FFFFFFF;
        break;
    case u'e':
        image->height = kWfLargestHeight + 1;
        break;
    default:
        break;
    }
    return image;
}
