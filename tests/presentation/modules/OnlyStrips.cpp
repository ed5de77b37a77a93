// An icon library without row icons and without other sizes; its strips are yellow.
#include "Picture.h"

using namespace condtree;
using namespace condtree::test;

extern "C" CONDTREE_EXPORT WfImage* ghLoadWFPNGImageAsPerDPI(const char16_t* name, int)
{
    return plainPicture(picturesOf(name) * 16, 16, 0xFF808000);
}
