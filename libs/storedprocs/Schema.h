#pragma once

#include <span>

namespace condtree {

/// One step from a version of the schema to the next: statements, in which %OPTIONS% stands for
/// what the dialect puts behind the closing bracket of a table.
using SchemaStep = std::span<const char16_t* const>;

/// The steps in their order; the first makes version 1 from an empty database. Databases out there
/// have been through them: append only.
[[nodiscard]] std::span<const SchemaStep> schemaSteps();

} // namespace condtree
