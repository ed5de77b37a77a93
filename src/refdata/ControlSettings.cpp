#include "ControlSettings.h"

#include <condtree/refdata/OutOfMemory.h>

namespace condtree {

namespace {

/// The user's setting that selects the second name.
constexpr int kSecondNameEntry = 24;

/// Exchanges the halves, not the bytes: this is how the value has always been read.
constexpr DWORD withHalvesExchanged(DWORD value)
{
    return (value << 16U) | (value >> 16U);
}

bool isEnabled(Registry& key)
{
    const CString name = QStringLiteral("HasChildRefState");
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (key.query(name, &type, nullptr, &size) != ERROR_SUCCESS || size != sizeof(DWORD))
        return true;
    if (type != REG_DWORD && type != REG_DWORD_BIG_ENDIAN)
        return true;
    DWORD value = 0;
    if (key.query(name, nullptr, &value, &size) != ERROR_SUCCESS)
        return true;
    return (type == REG_DWORD ? value : withHalvesExchanged(value)) != 0;
}

} // namespace

ControlSettings::ControlSettings(const ManagerRef& manager, RegistryStore& store)
    : m_manager(manager)
    , mSettingsKey(store)
{
}

bool ControlSettings::mbInitSettings()
{
    SpMgr* manager = m_manager.get();
    if (manager == nullptr)
        return false;
    SpConnectInfo info;
    manager->mbGetConnectInfo(info);
    if (auto* user = m_manager.proc<SpUser>(SPID_USER))
        user->mhGetUserID(reinterpret_cast<const char16_t*>(info.moStrings[5].utf16()),
                          mlCurrentUserId);
    if (auto* settings = m_manager.proc<SpSettings>(SPID_SETTINGS)) {
        SpSettingsData data;
        settings->mhGetUserSettings(mlCurrentUserId, data, false);
        if (const CString* entry = data.mpoGet(kSecondNameEntry))
            mbUseSecondUserName = *entry == QStringLiteral("1");
    }
    return true;
}

bool ControlSettings::mbChildRefStateEnabled()
{
    return raisingOutOfMemory([this] {
        mSettingsKey.create(
            HKEY_CURRENT_USER,
            QStringLiteral("Software\\Veltrix\\Applications\\Larkspan Enterprise\\TamselAdmin"),
            KEY_READ_WRITE);
        return isEnabled(mSettingsKey);
    });
}

} // namespace condtree
