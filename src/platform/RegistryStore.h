#pragma once

#include <condtree/platform/WinTypes.h>

#include <vector>

namespace condtree {

struct RegistryKeyTag;
/// An open key of a settings store; null is none.
using HKEY = RegistryKeyTag*;

inline const HKEY HKEY_CURRENT_USER = reinterpret_cast<HKEY>(std::uintptr_t{0x80000001U});
inline const HKEY HKEY_LOCAL_MACHINE = reinterpret_cast<HKEY>(std::uintptr_t{0x80000002U});

/// The statuses that a store answers with.
enum : LONG {
    ERROR_SUCCESS = 0,
    ERROR_FILE_NOT_FOUND = 2,
    ERROR_ACCESS_DENIED = 5,
    ERROR_INVALID_HANDLE = 6,
    ERROR_WRITE_FAULT = 29,
    ERROR_INVALID_PARAMETER = 87,
    ERROR_MORE_DATA = 234
};

/// The types of values.
enum : DWORD {
    REG_NONE = 0,
    REG_SZ = 1,
    REG_EXPAND_SZ = 2,
    REG_BINARY = 3,
    REG_DWORD = 4,
    REG_DWORD_BIG_ENDIAN = 5,
    REG_MULTI_SZ = 7,
    REG_QWORD = 11
};

/// Rights that a key is opened with.
enum : DWORD { KEY_QUERY_VALUE = 0x1, KEY_READ_WRITE = 0x2001F };

/// A store of typed values in keys, one tree per user and one per machine. Key and value names
/// ignore case; sub-keys are separated by a backslash.
class CONDTREE_EXPORT RegistryStore {
public:
    RegistryStore() = default;
    RegistryStore(const RegistryStore&) = delete;
    RegistryStore& operator=(const RegistryStore&) = delete;
    virtual ~RegistryStore();

    /// Opens a key below a root. ERROR_FILE_NOT_FOUND when it does not exist; out is null then.
    virtual LONG openKey(HKEY root, const CString& subKey, DWORD access, HKEY& out) = 0;
    /// Opens a key below a root and makes it, with every key above it, when it is missing.
    virtual LONG createKey(HKEY root, const CString& subKey, DWORD access, HKEY& out) = 0;
    /// Reads a value as bytes (texts as UTF-16, little-endian, with their null). Either pointer to
    /// the type and the data may be null. size holds the room in data before the call and the
    /// value's size after it; ERROR_MORE_DATA when the room is too small.
    virtual LONG queryValue(HKEY key, const CString& name, DWORD* type, void* data,
                            DWORD* size) = 0;
    /// Writes a value through to the store.
    virtual LONG setValue(HKEY key, const CString& name, DWORD type,
                          const std::vector<std::uint8_t>& data) = 0;
    /// Closes what openKey or createKey opened.
    virtual LONG closeKey(HKEY key) = 0;
};

} // namespace condtree
