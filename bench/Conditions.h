#pragma once

#include <condtree/model/TransCond.h>
#include <condtree/platform/StoredProcs.h>

#include <memory>
#include <vector>

namespace condtree::bench {

/// A condition of count records: a group of nine rows and one row of the top level, repeated. Its
/// rows are conditions on card variables of every type.
[[nodiscard]] std::vector<TransCond> makeCondition(std::size_t count);

struct ReleaseManager {
    void operator()(SpMgr* manager) const { manager->Release(); }
};
using ManagerPtr = std::unique_ptr<SpMgr, ReleaseManager>;

/// A data-access library in memory that knows a thousand card variables, those of makeCondition
/// among them, and nothing else.
[[nodiscard]] ManagerPtr makeManager();

} // namespace condtree::bench
