#include "IconModulePlaces.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstddef>
#include <vector>

#include <dlfcn.h>
#include <link.h>

namespace condtree {

namespace {

constexpr std::array<QLatin1String, 2> kNames{QLatin1String("WfIcons.dll"),
                                              QLatin1String("libWfIcons.so")};
constexpr QLatin1String kInstalled("condtree/libWfIcons.so");

/// Appends a file, once, if its place is absolute.
void add(QStringList& places, const CString& folder, QLatin1String name)
{
    if (!folder.startsWith(u'/'))
        return;
    const CString separator = folder.endsWith(u'/') ? CString() : QStringLiteral("/");
    const CString place = folder + separator + name;
    if (!places.contains(place))
        places << place;
}

/// The loader tells where it would look for what this code asks it for.
QStringList loaderFolders(const Dl_info& code)
{
    void* handle = dlopen(code.dli_fname, RTLD_LAZY | RTLD_NOLOAD);
    if (handle == nullptr) // the program itself
        handle = dlopen(nullptr, RTLD_LAZY);
    QStringList folders;
    Dl_serinfo size{};
    if (dlinfo(handle, RTLD_DI_SERINFOSIZE, &size) == 0) {
        std::vector<std::max_align_t> room(size.dls_size / sizeof(std::max_align_t) + 1);
        auto* info = reinterpret_cast<Dl_serinfo*>(room.data());
        *info = size;
        if (dlinfo(handle, RTLD_DI_SERINFO, info) == 0) {
            for (unsigned i = 0; i < info->dls_cnt; ++i)
                folders << QFile::decodeName(info->dls_serpath[i].dls_name);
        }
    }
    dlclose(handle);
    return folders;
}

} // namespace

ModuleFolders ModuleFolders::ofProcess()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&iconModulePlaces), &info) == 0)
        return {};
    return {loaderFolders(info), QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath()};
}

QStringList iconModulePlaces(const CString& libraryPath, const ModuleFolders& folders)
{
    CString path = libraryPath;
    path.replace(u'\\', u'/');
    const CString location = path.left(path.lastIndexOf(u'/') + 1);
    QStringList places;
    if (!location.isEmpty() && !location.startsWith(u'/'))
        places << path;
    for (const QLatin1String name : kNames)
        add(places, location, name);
    for (const QLatin1String name : kNames) {
        for (const CString& folder : folders.loader)
            add(places, folder, name);
    }
    add(places, folders.code, kInstalled);
    return places;
}

} // namespace condtree
