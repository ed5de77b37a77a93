#pragma once

#include <condtree/platform/WinTypes.h>

#include <QByteArray>

#include <map>
#include <variant>
#include <vector>

namespace condtree {

/// A named value of a settings key; the empty name is the key's default value.
struct RegValue {
    CString name;
    /// A REG_ number.
    DWORD type = 0;
    /// The bytes of the value; texts as UTF-16, little-endian.
    std::vector<std::uint8_t> data;

    bool operator==(const RegValue&) const = default;
};

/// Why a text is no settings file.
struct RegFileError {
    /// The first line is 1.
    int line = 0;
    CString what;
};

/// The keys and values of a settings file in the .reg syntax.
///
/// A key's path begins with the name of its root, such as HKEY_CURRENT_USER\Software. Paths and
/// names ignore case, and keep the spelling with which they were first set.
class RegFile {
public:
    /// Reads a file's text: UTF-8 with or without a mark, or UTF-16LE with one. Lines that delete
    /// keys or values are obeyed. A text within quotes ends on its line.
    [[nodiscard]] static std::variant<RegFile, RegFileError> parse(const QByteArray& text);
    /// The text that parse reads as this, in UTF-8 without a mark. Keys and values are sorted.
    [[nodiscard]] QByteArray write() const;

    /// Whether a text can name a value: it has no control characters and no half of a surrogate
    /// pair.
    [[nodiscard]] static bool isName(const CString& text);
    /// Whether a text can be the path of a key: a name that begins with a root, without an empty
    /// part.
    [[nodiscard]] static bool isPath(const CString& text);

    /// Whether a key is there, or a key below it.
    [[nodiscard]] bool hasKey(const CString& path) const;
    /// Null when there is no such key or value. Valid until the next change.
    [[nodiscard]] const RegValue* value(const CString& path, const CString& name) const;

    /// Adds a key if it is not there; path must pass isPath.
    void addKey(const CString& path);
    /// Sets a value of a key, which is added if it is not there; its name must pass isName.
    void setValue(const CString& path, const RegValue& value);
    /// Removes a key and those below it.
    void removeKey(const CString& path);
    void removeValue(const CString& path, const CString& name);

    bool operator==(const RegFile&) const = default;

private:
    struct Key {
        CString path;
        std::map<CString, RegValue> values; ///< By folded name.

        bool operator==(const Key&) const = default;
    };

    std::map<CString, Key> m_keys; ///< By folded path.
};

} // namespace condtree
