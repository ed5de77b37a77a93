#pragma once

#include <QString>

namespace condtree::workbench {

/// A text as it can stand on one line: control characters, line separators and unpaired surrogates
/// are written as \uXXXX.
[[nodiscard]] QString oneLine(const QString& text);

/// A foreign text in double quotes for a message, on one line and cut when it is long.
[[nodiscard]] QString quoted(const QString& text);

/// The line on which the program tells an error, with its final newline. The lines of the text are
/// joined by blanks.
[[nodiscard]] QByteArray errorLine(const QString& text);

} // namespace condtree::workbench
