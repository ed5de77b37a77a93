#include "Registry.h"

#include <algorithm>
#include <array>
#include <utility>

namespace condtree {

Registry::Registry(RegistryStore& store)
    : m_store(store)
{
}

Registry::~Registry()
{
    close();
}

LONG Registry::open(HKEY root, const CString& subKey, DWORD access)
{
    close();
    m_status = m_store.openKey(root, subKey, access, m_key);
    if (m_status != ERROR_SUCCESS)
        m_key = nullptr;
    return m_status;
}

LONG Registry::create(HKEY root, const CString& subKey, DWORD access)
{
    close();
    m_status = m_store.createKey(root, subKey, access, m_key);
    if (m_status != ERROR_SUCCESS)
        m_key = nullptr;
    return m_status;
}

LONG Registry::query(const CString& name, DWORD* type, void* data, DWORD* size)
{
    m_status =
        m_key == nullptr ? ERROR_INVALID_HANDLE : m_store.queryValue(m_key, name, type, data, size);
    return m_status;
}

void Registry::close()
{
    if (m_key != nullptr)
        m_status = m_store.closeKey(std::exchange(m_key, nullptr));
}

CString IconLibraryPath(RegistryStore& store)
{
    constexpr DWORD kAnnouncedBytes = 260; // less than the buffer holds, so its end stays a null
    std::array<char16_t, 275> buffer{};
    Registry key(store);
    key.open(HKEY_LOCAL_MACHINE,
             QStringLiteral("Software\\Veltrix\\Applications\\Larkspan Enterprise"),
             KEY_QUERY_VALUE);
    DWORD size = kAnnouncedBytes;
    if (key.query(QStringLiteral("Location"), nullptr, buffer.data(), &size) != ERROR_SUCCESS)
        buffer.fill(u'\0');
    key.close();

    CString path = QString::fromUtf16(buffer.data());
    if (!path.isEmpty() && !path.endsWith(u'\\'))
        path += u'\\';
    return path + QStringLiteral("WfIcons.dll");
}

} // namespace condtree
