#pragma once

#include <QString>

#include <sys/types.h>

namespace condtree::test {

/// While it lives, the process is a user without privileges, where it was root: root may do
/// anything to any file. Any other user stays who it is.
class Unprivileged {
public:
    Unprivileged();
    Unprivileged(const Unprivileged&) = delete;
    Unprivileged& operator=(const Unprivileged&) = delete;
    ~Unprivileged();

private:
    uid_t m_before;
};

/// Makes a child process a user without privileges for good, where it is root: to be called between
/// its start and the program that it becomes.
void becomeUnprivileged();

/// Why the permissions of files below a folder do not bind this process, even unprivileged, or
/// cannot be tried; empty where they bind. Tests of permissions skip with it.
[[nodiscard]] QString whyPermissionsDoNotBind(const QString& folder);

/// Changes the mode of a file or folder; a failure fails the test.
void setMode(const QString& path, mode_t mode);

} // namespace condtree::test
