#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <ostream>
#include <vector>

namespace condtree::test {

/// A table of the native platform's results: a column name -> text map a row.
using GoldenTable = std::vector<QHash<QString, QString>>;

/// Reads a table by its file name; none when the folder of tables is not beside the checkout.
[[nodiscard]] std::optional<GoldenTable> goldenTable(const QString& directory,
                                                     const QString& fileName);

/// Turns \uXXXX into the code units that they name.
[[nodiscard]] QString unescaped(const QString& text);

} // namespace condtree::test

/// Declares a table of the folder golden, or skips the test with a clear message.
#define CONDTREE_GOLDEN_TABLE(name, fileName)                                                      \
    const auto name##Found = condtree::test::goldenTable(QStringLiteral(CONDTREE_GOLDEN_DIR),      \
                                                         QStringLiteral(fileName));                \
    if (!name##Found)                                                                              \
        GTEST_SKIP() << "no table " << CONDTREE_GOLDEN_DIR << "/" << fileName;                     \
    const condtree::test::GoldenTable& name = *name##Found
