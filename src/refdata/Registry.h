#pragma once

#include <condtree/platform/RegistryStore.h>
#include <condtree/platform/WinTypes.h>

namespace condtree {

/// A key of a settings store that closes itself, with the status of its last call.
class CONDTREE_EXPORT Registry {
public:
    /// store must outlive the key.
    explicit Registry(RegistryStore& store);
    Registry(const Registry&) = delete;
    Registry& operator=(const Registry&) = delete;
    /// Closes the key if one is open.
    virtual ~Registry();

    /// Opens an existing key; one that is open is closed first.
    LONG open(HKEY root, const CString& subKey, DWORD access);
    /// Opens a key, made when it is missing; one that is open is closed first.
    LONG create(HKEY root, const CString& subKey, DWORD access);
    /// Reads a value of the open key; as RegistryStore::queryValue.
    LONG query(const CString& name, DWORD* type, void* data, DWORD* size);
    /// Closes the key if one is open.
    void close();

    /// Null when no key is open.
    [[nodiscard]] HKEY key() const { return m_key; }
    /// The status of the last call; 0 before the first.
    [[nodiscard]] LONG status() const { return m_status; }

private:
    RegistryStore& m_store;
    HKEY m_key = nullptr;
    LONG m_status = ERROR_SUCCESS;
};

/// The full path of the icon library, "WfIcons.dll" in the directory that the machine's settings
/// name; the bare file name where they name none, or one of more than 129 characters.
[[nodiscard]] CONDTREE_EXPORT CString IconLibraryPath(RegistryStore& store);

} // namespace condtree
