#include "RealIcons.h"

#include <condtree/presentation/IconModulePlaces.h>
#include <condtree/presentation/WfIconLibrary.h>
#include <condtree/refdata/Registry.h>

namespace condtree {

std::shared_ptr<IconLibrary> iconsOf(const std::shared_ptr<RegistryStore>& registry)
{
    const auto places = [registry] {
        return iconModulePlaces(IconLibraryPath(*registry), ModuleFolders::ofProcess());
    };
    return std::make_shared<WfIconLibrary>(places, ModuleTrust::ofProcess());
}

} // namespace condtree
