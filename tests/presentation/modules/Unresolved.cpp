// A module that needs what nobody has.
#include <condtree/platform/Export.h>

extern "C" int nobodyHasThis();

extern "C" CONDTREE_EXPORT int ghLoadWFPngImageIconAsPerDPI()
{
    return nobodyHasThis();
}
