#pragma once

#include <memory>

namespace condtree {

class IconLibrary;
class RegistryStore;

/// The icon library at the place that the settings name, which are read when it is looked for.
[[nodiscard]] std::shared_ptr<IconLibrary> iconsOf(const std::shared_ptr<RegistryStore>& registry);

} // namespace condtree
