#pragma once

#include <condtree/refdata/RegFileStore.h>

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstring>

namespace condtree::test {

/// A folder with the two settings files, both missing at first, that goes with the test.
class SettingsFolder {
public:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] RegFilePaths paths() const
    {
        return {m_folder.filePath(QStringLiteral("user.reg")),
                m_folder.filePath(QStringLiteral("machine.reg"))};
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    /// Writes a file of one key with the given lines of values.
    static void writeKey(const QString& path, const char* key, const QByteArray& lines)
    {
        write(path,
              "Windows Registry Editor Version 5.00\n\n[" + QByteArray(key) + "]\n" + lines + "\n");
    }

    [[nodiscard]] static QByteArray read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

private:
    QTemporaryDir m_folder;
};

/// A number as the bytes of a value.
[[nodiscard]] inline std::vector<std::uint8_t> bytesOf(DWORD number)
{
    std::vector<std::uint8_t> bytes(sizeof number);
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

/// A text as the bytes of a value, with its null.
[[nodiscard]] inline std::vector<std::uint8_t> bytesOf(const CString& text)
{
    std::vector<std::uint8_t> bytes((static_cast<std::size_t>(text.size()) + 1) * 2);
    std::memcpy(bytes.data(), text.utf16(), bytes.size());
    return bytes;
}

} // namespace condtree::test
