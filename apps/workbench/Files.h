#pragma once

#include "Outcome.h"

#include <QByteArray>

namespace condtree::workbench {

/// The content of a regular file, or of the standard input for "-". Fails without reading when a
/// file is larger than limit bytes, and while reading when a stream is. The failure names the file.
[[nodiscard]] Outcome<QByteArray> readFile(const QString& path, qint64 limit);

/// Writes a file, or the standard output for "-". A file is replaced as a whole or not at all;
/// devices and pipes are written to as they are. The failure names the file.
[[nodiscard]] MaybeFailure writeFile(const QString& path, const QByteArray& content);

} // namespace condtree::workbench
