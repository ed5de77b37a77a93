// A host that uses pkg-config: it needs the data-access types alone.
#include <condtree/platform/StoredProcs.h>
#include <condtree/platform/WinTypes.h>

#include <cstdio>

int main()
{
    std::printf("%d\n", condtree::MulDiv(7, 3, 2));
    return 0;
}
