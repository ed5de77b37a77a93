#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace condtree::test {

/// A folder of the test's own, with copies of the test modules in it.
class ModuleFiles {
public:
    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }
    /// The bytes of a test module.
    [[nodiscard]] static QByteArray module(const char* name)
    {
        QFile file(QStringLiteral(CONDTREE_TEST_MODULES "/lib%1.so").arg(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    /// Writes a file that only its owner may write.
    QString write(const char* name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        chmod(path(name).toUtf8().constData(), 0644);
        return path(name);
    }
    QString copy(const char* moduleName) const { return write(moduleName, module(moduleName)); }

private:
    QTemporaryDir m_folder;
};

} // namespace condtree::test
