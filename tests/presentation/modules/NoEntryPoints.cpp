// A module, but no icon library.
#include <condtree/platform/Export.h>

extern "C" CONDTREE_EXPORT int somethingElse()
{
    return 1;
}
