// Out of line, so that each port's virtual table has one home.
#include "IconLibrary.h"
#include "RegistryStore.h"

namespace condtree {

RegistryStore::~RegistryStore() = default;
IconLibrary::~IconLibrary() = default;

IconResult IconLibrary::loadAtSize(const CString&, int, IconPixels&)
{
    return IconResult::NoLibrary;
}

} // namespace condtree
