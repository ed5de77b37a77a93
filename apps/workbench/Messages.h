#pragma once

#include <QString>

namespace condtree::workbench {

/// A text as it can stand on one line: control characters, line separators and unpaired surrogates
/// are written as \uXXXX.
[[nodiscard]] QString oneLine(const QString& text);

/// A foreign text in double quotes for a message, on one line and cut when it is long.
[[nodiscard]] QString quoted(const QString& text);

/// The name of the program for its users, as windows show it.
[[nodiscard]] QString programTitle();

/// What is wrong with something, behind the place where it is: a file, a field, a transition.
[[nodiscard]] QString atPlace(const QString& place, const QString& what);

/// The line on which the program tells an error, with its final newline. The lines of the text are
/// joined by blanks.
[[nodiscard]] QByteArray errorLine(const QString& text);

} // namespace condtree::workbench
