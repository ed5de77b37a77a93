#pragma once

#include <condtree/platform/WinTypes.h>

#include <optional>
#include <vector>

#include <sys/types.h>

namespace condtree {

/// Whose files may be loaded into the process: root's, the user's, and those of who can change this
/// code anyway.
struct ModuleTrust {
    std::vector<uid_t> owners;
    /// The group that may write; none where only the owners may.
    std::optional<gid_t> group;

    /// As the process runs, and as the folder lies that this code was loaded from.
    [[nodiscard]] static ModuleTrust ofProcess();
};

/// Who may change a file or a folder.
struct FileAccess {
    mode_t mode;
    uid_t owner;
    gid_t group;
};

/// Why a file may not be loaded; empty when it may. It must be a regular file of a trusted owner
/// that nobody else may write.
[[nodiscard]] CString fileProblem(const FileAccess& file, const ModuleTrust& trust);

/// Why nothing in a folder may be loaded; empty when it may. It must be of a trusted owner, and
/// where others may write, the sticky bit must keep them from exchanging what is not theirs.
[[nodiscard]] CString folderProblem(const FileAccess& folder, const ModuleTrust& trust);

/// The same of all folders that a file with this absolute path, free of links, lies in.
[[nodiscard]] CString foldersProblem(const CString& path, const ModuleTrust& trust);

} // namespace condtree
