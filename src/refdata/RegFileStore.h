#pragma once

#include <condtree/platform/RegistryStore.h>
#include <condtree/refdata/RegFile.h>

#include <QString>

#include <functional>
#include <map>

namespace condtree {

/// Where the two files of a RegFileStore lie.
struct RegFilePaths {
    QString user;
    QString machine;

    /// user.reg and machine.reg in CONDTREE_REGISTRY_DIR where that is set; else condtree/user.reg
    /// under the user's XDG configuration folder and condtree/machine.reg under the machine's first
    /// one.
    [[nodiscard]] static RegFilePaths standard();
};

/// The settings store on two text files in the .reg syntax, one per user and one per machine.
///
/// A file is read again whenever a key is opened or something is written, and replaced atomically,
/// so that processes may share it; one that is missing is empty, and is made, with its folders, by
/// the first write. An unreadable or malformed file is reported in the log, read as empty, and
/// never overwritten: writing, and making a key that is missing, answers ERROR_WRITE_FAULT then.
/// Names with control characters or half a surrogate pair cannot be written:
/// ERROR_INVALID_PARAMETER.
class RegFileStore final : public RegistryStore {
public:
    explicit RegFileStore(RegFilePaths paths = RegFilePaths::standard());
    ~RegFileStore() override;

    LONG openKey(HKEY root, const CString& subKey, DWORD access, HKEY& out) override;
    LONG createKey(HKEY root, const CString& subKey, DWORD access, HKEY& out) override;
    LONG queryValue(HKEY key, const CString& name, DWORD* type, void* data, DWORD* size) override;
    LONG setValue(HKEY key, const CString& name, DWORD type,
                  const std::vector<std::uint8_t>& data) override;
    LONG closeKey(HKEY key) override;

private:
    struct File {
        QString path;
        CString rootName;
        RegFile contents;
        bool isWritable = true;
        QString reported; ///< The last warning; the same one is not repeated.
    };
    struct OpenKey {
        File* file;
        CString path;
        DWORD access;
    };

    [[nodiscard]] File* fileOf(HKEY root);
    [[nodiscard]] const OpenKey* find(HKEY key) const;
    HKEY remember(const OpenKey& key);
    static void read(File& file);
    static LONG change(File& file, const std::function<void(RegFile&)>& edit);

    File m_user;
    File m_machine;
    std::map<HKEY, OpenKey> m_openKeys;
    std::uintptr_t m_lastHandle = 0;
};

} // namespace condtree
