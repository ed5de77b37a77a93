#include "Unprivileged.h"

#include <gtest/gtest.h>

#include <QFile>

#include <fcntl.h>
#include <initializer_list>
#include <sys/stat.h>
#include <unistd.h>

namespace condtree::test {

namespace {

/// Calls one of the system's functions with an unprivileged user; a container may know only some of
/// all users.
void becomeOneOf(int (*become)(uid_t))
{
    for (const uid_t candidate : {uid_t{65534}, uid_t{1}, uid_t{1000}}) {
        if (become(candidate) == 0)
            return;
    }
}

} // namespace

Unprivileged::Unprivileged()
    : m_before(geteuid())
{
    if (m_before == 0)
        becomeOneOf(seteuid);
}

Unprivileged::~Unprivileged()
{
    if (geteuid() != m_before) {
        EXPECT_EQ(seteuid(m_before), 0);
    }
}

void becomeUnprivileged()
{
    if (geteuid() == 0)
        becomeOneOf(setuid);
}

void setMode(const QString& path, mode_t mode)
{
    EXPECT_EQ(chmod(path.toLocal8Bit().constData(), mode), 0) << path.toStdString();
}

QString whyPermissionsDoNotBind(const QString& folder)
{
    const QByteArray probe = (folder + QStringLiteral("/probe")).toLocal8Bit();
    QFile file(QString::fromLocal8Bit(probe));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    setMode(file.fileName(), 0444);
    setMode(folder, 0755);
    QString why;
    {
        const Unprivileged nobody;
        if (faccessat(AT_FDCWD, probe.constData(), R_OK, AT_EACCESS) != 0)
            why = QStringLiteral("an ordinary user cannot reach the temporary folder");
        else if (faccessat(AT_FDCWD, probe.constData(), W_OK, AT_EACCESS) == 0)
            why = QStringLiteral("the permissions of files do not bind this process");
    }
    EXPECT_TRUE(file.remove());
    return why;
}

} // namespace condtree::test
