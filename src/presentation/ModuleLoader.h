#pragma once

#include <condtree/platform/WinTypes.h>
#include <condtree/presentation/ModuleTrust.h>

#include <memory>

namespace condtree {

struct CloseModule {
    void operator()(void* handle) const;
};
/// A module of the loader's, which is let go with the handle.
using ModuleHandle = std::unique_ptr<void, CloseModule>;

/// What became of a module that was to be loaded.
struct ModuleLoad {
    /// Null when it was not loaded.
    ModuleHandle module{};
    /// Whether there is a file, loaded or not.
    bool isThere = false;
    /// Why it was not loaded, though it is there.
    CString problem{};
};

/// Loads the module at an absolute path, if who may change it is trusted and it looks whole. The
/// file is opened once: what was looked at is what is loaded, whatever becomes of the path. A
/// module is found by its folder ($ORIGIN) no longer: what it needs must be on the loader's path,
/// or loaded.
[[nodiscard]] ModuleLoad loadModule(const CString& path, const ModuleTrust& trust);

/// The name by which the loader reaches an open file. Descriptors are used again, and the loader
/// takes a name that it knows for the module that it knows: the name tells the file, too.
[[nodiscard]] CString nameForLoader(int descriptor, dev_t device, ino_t inode);

} // namespace condtree
