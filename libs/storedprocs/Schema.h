#pragma once

#include <span>

namespace condtree {

/// A column that holds a name.
struct NameColumn {
    const char16_t* table;
    const char16_t* column;
};

/// One step from a version of the schema to the next.
struct SchemaStep {
    /// In which %OPTIONS% stands for what the dialect puts behind the closing bracket of a table.
    std::span<const char16_t* const> statements;
    /// The tables that the statements make. A database that has been through the step has them.
    std::span<const char16_t* const> tables;
    /// Run behind the statements: the columns that take no control characters any more.
    std::span<const NameColumn> lineNames;
};

/// The steps in their order; the first makes version 1 from an empty database. Databases out there
/// have been through them: append only.
[[nodiscard]] std::span<const SchemaStep> schemaSteps();

} // namespace condtree
