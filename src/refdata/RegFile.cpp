#include "RegFile.h"

#include <condtree/platform/NativeText.h>
#include <condtree/platform/RegistryStore.h>

#include <QStringList>

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace condtree {

namespace {

constexpr const char* kHeader = "Windows Registry Editor Version 5.00\n";
constexpr std::size_t kBytesPerLine = 25;
constexpr std::array<QStringView, 5> kRoots{u"HKEY_CLASSES_ROOT", u"HKEY_CURRENT_CONFIG",
                                            u"HKEY_CURRENT_USER", u"HKEY_LOCAL_MACHINE",
                                            u"HKEY_USERS"};

/// The text of a REG_SZ value that quotes can carry: terminated by its only null, without what
/// RegFile::isName refuses. None for any other value.
std::optional<CString> quotableText(const RegValue& value)
{
    const std::size_t size = value.data.size();
    if (value.type != REG_SZ || size < sizeof(char16_t) || size % sizeof(char16_t) != 0)
        return std::nullopt;
    std::vector<char16_t> units(size / sizeof(char16_t));
    std::memcpy(units.data(), value.data.data(), size);
    if (units.back() != u'\0')
        return std::nullopt;
    const CString text = QStringView(units).chopped(1).toString();
    return RegFile::isName(text) ? std::optional(text) : std::nullopt;
}

QByteArray quoted(CString text)
{
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return '"' + text.toUtf8() + '"';
}

QByteArray hexText(const RegValue& value)
{
    QByteArray text = value.type == REG_BINARY ? QByteArrayLiteral("hex:")
                                               : "hex(" + QByteArray::number(value.type, 16) + "):";
    for (std::size_t i = 0; i < value.data.size(); ++i) {
        if (i != 0)
            text += i % kBytesPerLine == 0 ? ",\\\n  " : ",";
        text += QByteArray::number(value.data[i], 16).rightJustified(2, '0');
    }
    return text;
}

QByteArray dataText(const RegValue& value)
{
    if (const auto text = quotableText(value))
        return quoted(*text);
    if (value.type == REG_DWORD && value.data.size() == sizeof(DWORD)) {
        DWORD number = 0;
        std::memcpy(&number, value.data.data(), sizeof number);
        return "dword:" + QByteArray::number(number, 16).rightJustified(8, '0');
    }
    return hexText(value);
}

} // namespace

QByteArray RegFile::write() const
{
    QByteArray text(kHeader);
    for (const auto& [foldedPath, key] : m_keys) {
        text += "\n[" + key.path.toUtf8() + "]\n";
        for (const auto& [foldedName, value] : key.values)
            text += (value.name.isEmpty() ? QByteArray("@") : quoted(value.name)) + '='
                    + dataText(value) + '\n';
    }
    return text;
}

bool RegFile::isName(const CString& text)
{
    return text.isValidUtf16() && std::none_of(text.begin(), text.end(), [](QChar unit) {
               return unit.unicode() < 0x20 || unit.unicode() == 0x7F;
           });
}

bool RegFile::isPath(const CString& text)
{
    const auto parts = QStringView(text).split(u'\\');
    const bool isBelowRoot = std::any_of(kRoots.begin(), kRoots.end(), [&parts](QStringView root) {
        return root.compare(parts.front(), Qt::CaseInsensitive) == 0;
    });
    return isName(text) && isBelowRoot
           && std::none_of(parts.begin(), parts.end(), [](QStringView p) { return p.isEmpty(); });
}

bool RegFile::hasKey(const CString& path) const
{
    const CString folded = simpleFoldedKey(path);
    const CString below = folded + u'\\';
    const auto next = m_keys.lower_bound(below);
    return m_keys.count(folded) != 0 || (next != m_keys.end() && next->first.startsWith(below));
}

const RegValue* RegFile::value(const CString& path, const CString& name) const
{
    const auto key = m_keys.find(simpleFoldedKey(path));
    if (key == m_keys.end())
        return nullptr;
    const auto value = key->second.values.find(simpleFoldedKey(name));
    return value == key->second.values.end() ? nullptr : &value->second;
}

void RegFile::addKey(const CString& path)
{
    m_keys.try_emplace(simpleFoldedKey(path), Key{path, {}});
}

void RegFile::setValue(const CString& path, const RegValue& value)
{
    addKey(path);
    auto& values = m_keys.at(simpleFoldedKey(path)).values;
    const auto [place, isNew] = values.try_emplace(simpleFoldedKey(value.name), value);
    if (!isNew) {
        place->second.type = value.type;
        place->second.data = value.data;
    }
}

void RegFile::removeKey(const CString& path)
{
    const CString folded = simpleFoldedKey(path);
    m_keys.erase(folded);
    const CString below = folded + u'\\';
    const auto first = m_keys.lower_bound(below);
    auto last = first;
    while (last != m_keys.end() && last->first.startsWith(below))
        ++last;
    m_keys.erase(first, last);
}

void RegFile::removeValue(const CString& path, const CString& name)
{
    const auto key = m_keys.find(simpleFoldedKey(path));
    if (key != m_keys.end())
        key->second.values.erase(simpleFoldedKey(name));
}

} // namespace condtree
