#pragma once

#include "TempDatabase.h"

#include <vector>

namespace condtree::test {

/// What every reading procedure answers, in the order of their numbers, then the loading of each
/// transition. A list that is not handed over whole must be empty.
[[nodiscard]] std::vector<HRESULT> readAll(const ManagerPtr& manager);

/// The answers when everything of the sample is read with the same result.
[[nodiscard]] std::vector<HRESULT> everythingRead(HRESULT hr);

} // namespace condtree::test
