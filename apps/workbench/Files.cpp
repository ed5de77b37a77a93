#include "Files.h"

#include "Messages.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

namespace condtree::workbench {

namespace {

bool isStandardStream(const QString& path)
{
    return path == QLatin1String("-");
}

Outcome<QByteArray> readAll(QFile& device, const QString& name, qint64 limit)
{
    constexpr qint64 kBlock = 1024 * 1024;
    QByteArray content;
    for (;;) {
        const QByteArray block = device.read(kBlock);
        if (device.error() != QFileDevice::NoError)
            return Failure{
                QStringLiteral("%1: cannot be read: %2").arg(name, device.errorString())};
        if (block.isEmpty())
            return content;
        content += block;
        if (content.size() > limit)
            return Failure{
                QStringLiteral("%1: more than the limit of %2 bytes").arg(name).arg(limit)};
    }
}

template <class File>
MaybeFailure writeAll(File& file, const QString& name, const QByteArray& content)
{
    if (file.write(content) == content.size() && file.flush())
        return std::nullopt;
    return Failure{QStringLiteral("%1: cannot be written: %2").arg(name, file.errorString())};
}

MaybeFailure writeInPlace(QFile& file, const QString& name, const QByteArray& content)
{
    if (!file.isOpen() && !file.open(QIODevice::WriteOnly))
        return Failure{QStringLiteral("%1: cannot be written: %2").arg(name, file.errorString())};
    return writeAll(file, name, content);
}

} // namespace

Outcome<QByteArray> readFile(const QString& path, qint64 limit)
{
    if (isStandardStream(path)) {
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly))
            return Failure{
                QStringLiteral("standard input: cannot be read: %1").arg(input.errorString())};
        return readAll(input, QStringLiteral("standard input"), limit);
    }
    QFile file(path);
    const QFileInfo info(path);
    if (info.isDir())
        return Failure{QStringLiteral("%1: is a folder, not a file").arg(path)};
    // Opening a pipe that nobody writes into would wait for ever.
    if (info.exists() && !info.isFile())
        return Failure{QStringLiteral("%1: is no regular file").arg(path)};
    if (!file.open(QIODevice::ReadOnly))
        return Failure{QStringLiteral("%1: cannot be read: %2").arg(path, file.errorString())};
    if (file.size() > limit)
        return Failure{QStringLiteral("%1: %2 bytes; the limit is %3 bytes")
                           .arg(path)
                           .arg(file.size())
                           .arg(limit)};
    return readAll(file, path, limit);
}

MaybeFailure writeFile(const QString& path, const QByteArray& content)
{
    if (isStandardStream(path)) {
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly))
            return Failure{
                QStringLiteral("standard output: cannot be written: %1").arg(output.errorString())};
        return writeInPlace(output, QStringLiteral("standard output"), content);
    }
    const QFileInfo info(path);
    if (info.isDir())
        return Failure{QStringLiteral("%1: is a folder, not a file").arg(path)};
    if (info.exists() && !info.isFile()) {
        // Replacing a device or a pipe by a file would be a surprise.
        QFile device(path);
        return writeInPlace(device, path, content);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return Failure{QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString())};
    if (const auto failure = writeAll(file, path, content))
        return failure;
    if (!file.commit())
        return Failure{QStringLiteral("%1: cannot be written: %2").arg(path, file.errorString())};
    return std::nullopt;
}

} // namespace condtree::workbench
