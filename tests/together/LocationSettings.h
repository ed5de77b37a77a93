#pragma once

#include "presentation/ModuleFiles.h"

#include <QByteArray>
#include <QString>

namespace condtree::test {

/// Settings files of the machine and the user that tell where the icon library is, while it lives.
class LocationSettings {
public:
    LocationSettings() { qputenv("CONDTREE_REGISTRY_DIR", m_files.path("").toUtf8()); }
    LocationSettings(const LocationSettings&) = delete;
    LocationSettings& operator=(const LocationSettings&) = delete;
    ~LocationSettings() { qunsetenv("CONDTREE_REGISTRY_DIR"); }

    void setMachines(const QString& location) const
    {
        write("machine.reg", "HKEY_LOCAL_MACHINE", location);
    }
    void setUsers(const QString& location) const
    {
        write("user.reg", "HKEY_CURRENT_USER", location);
    }

private:
    void write(const char* file, const char* root, const QString& location) const
    {
        m_files.write(file, QByteArray("Windows Registry Editor Version 5.00\r\n\r\n[") + root
                                + "\\Software\\Veltrix\\Applications\\Larkspan Enterprise]\r\n"
                                  "\"Location\"=\""
                                + location.toUtf8() + "\"\r\n");
    }
    ModuleFiles m_files;
};

} // namespace condtree::test
