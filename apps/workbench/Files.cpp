#include "Files.h"

#include "Messages.h"

#include <QCoreApplication>
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

QString standardInput()
{
    //: Stands where the name of a file stands otherwise
    return QCoreApplication::translate("Files", "standard input");
}

QString standardOutput()
{
    //: Stands where the name of a file stands otherwise
    return QCoreApplication::translate("Files", "standard output");
}

Failure cannotRead(const QString& name, const QString& reason)
{
    //: %1 is a file, %2 the reason in the words of the system
    return {QCoreApplication::translate("Files", "%1: cannot be read: %2").arg(name, reason)};
}

Failure cannotWrite(const QString& name, const QString& reason)
{
    //: %1 is a file, %2 the reason in the words of the system
    return {QCoreApplication::translate("Files", "%1: cannot be written: %2").arg(name, reason)};
}

Failure isFolder(const QString& name)
{
    return {atPlace(name, QCoreApplication::translate("Files", "is a folder, not a file"))};
}

Outcome<QByteArray> readAll(QFile& device, const QString& name, qint64 limit)
{
    constexpr qint64 kBlock = 1024 * 1024;
    QByteArray content;
    for (;;) {
        const QByteArray block = device.read(kBlock);
        if (device.error() != QFileDevice::NoError)
            return cannotRead(name, device.errorString());
        if (block.isEmpty())
            return content;
        content += block;
        if (content.size() > limit)
            return Failure{
                QCoreApplication::translate("Files", "%1: more than the limit of %2 bytes")
                    .arg(name, QString::number(limit))};
    }
}

template <class File>
MaybeFailure writeAll(File& file, const QString& name, const QByteArray& content)
{
    if (file.write(content) == content.size() && file.flush())
        return std::nullopt;
    return cannotWrite(name, file.errorString());
}

MaybeFailure writeInPlace(QFile& file, const QString& name, const QByteArray& content)
{
    if (!file.isOpen() && !file.open(QIODevice::WriteOnly))
        return cannotWrite(name, file.errorString());
    return writeAll(file, name, content);
}

} // namespace

Outcome<QByteArray> readFile(const QString& path, qint64 limit)
{
    if (isStandardStream(path)) {
        QFile input;
        if (!input.open(stdin, QIODevice::ReadOnly))
            return cannotRead(standardInput(), input.errorString());
        return readAll(input, standardInput(), limit);
    }
    QFile file(path);
    const QFileInfo info(path);
    if (info.isDir())
        return isFolder(path);
    // Opening a pipe that nobody writes into would wait for ever.
    if (info.exists() && !info.isFile())
        return Failure{atPlace(path, QCoreApplication::translate("Files", "is no regular file"))};
    if (!file.open(QIODevice::ReadOnly))
        return cannotRead(path, file.errorString());
    if (file.size() > limit)
        return Failure{QCoreApplication::translate("Files", "%1: %2 bytes; the limit is %3 bytes")
                           .arg(path, QString::number(file.size()), QString::number(limit))};
    return readAll(file, path, limit);
}

MaybeFailure writeFile(const QString& path, const QByteArray& content)
{
    if (isStandardStream(path)) {
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly))
            return cannotWrite(standardOutput(), output.errorString());
        return writeInPlace(output, standardOutput(), content);
    }
    const QFileInfo info(path);
    if (info.isDir())
        return isFolder(path);
    if (info.exists() && !info.isFile()) {
        // Replacing a device or a pipe by a file would be a surprise.
        QFile device(path);
        return writeInPlace(device, path, content);
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return cannotWrite(path, file.errorString());
    if (const auto failure = writeAll(file, path, content))
        return failure;
    if (!file.commit())
        return cannotWrite(path, file.errorString());
    return std::nullopt;
}

} // namespace condtree::workbench
