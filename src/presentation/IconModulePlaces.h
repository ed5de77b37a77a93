#pragma once

#include <condtree/platform/WinTypes.h>

#include <QStringList>

namespace condtree {

/// Where the loader and libcondtree look for modules.
struct ModuleFolders {
    /// Those of the loader's path, in its order.
    QStringList loader;
    /// The one of the file that this code was loaded from.
    CString code;

    [[nodiscard]] static ModuleFolders ofProcess();
};

/// The files to try for the icon library that IconLibraryPath names, in their order: that file,
/// libWfIcons.so beside it, both names in the loader's folders, and the module that is installed
/// with libcondtree. What is relative would depend on the current folder: of the loader's folders
/// it is left out, and a library path stays in as it is, to be refused.
[[nodiscard]] QStringList iconModulePlaces(const CString& libraryPath,
                                           const ModuleFolders& folders);

} // namespace condtree
