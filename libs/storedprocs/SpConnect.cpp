#include "SpConnect.h"

#include "Answer.h"
#include "ConnectionUrl.h"
#include "Migrations.h"
#include "SqlManager.h"

#include <QtGlobal>

#include <array>
#include <memory>
#include <utility>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace condtree {

namespace {

/// The login of the operating system's user; empty when that is not known.
CString systemLogin()
{
#ifdef Q_OS_UNIX
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 16 * 1024> memory{};
    if (getpwuid_r(geteuid(), &entry, memory.data(), memory.size(), &found) == 0
        && found != nullptr)
        return QString::fromLocal8Bit(found->pw_name);
    return {};
#else
    return qEnvironmentVariable("USERNAME");
#endif
}

/// The login, as the database spells it, of who connects.
HRESULT logIn(Database& database, const CString& userName, CString& login)
{
    LONG id = 0;
    HRESULT hr = S_FALSE;
    if (!userName.isEmpty()) {
        hr = findUser(database, userName, id, login);
    } else {
        if (const CString name = systemLogin(); !name.isEmpty())
            hr = findUser(database, name, id, login);
        if (hr == S_FALSE)
            hr = findFirstUser(database, id, login);
    }
    return hr == S_FALSE ? SP_E_NOT_LOGGED_IN : hr;
}

HRESULT connect(const CString& url, const CString& userName, SpMgr*& manager)
{
    ConnectionUrl place;
    if (const HRESULT hr = parseConnectionUrl(url, place); FAILED(hr))
        return hr;
    auto database = std::make_unique<Database>(sqliteDialect());
    return answer(*database, [&] {
        CString login;
        HRESULT hr = database->open(place);
        if (SUCCEEDED(hr))
            hr = migrate(*database);
        if (SUCCEEDED(hr))
            hr = logIn(*database, userName, login);
        if (SUCCEEDED(hr))
            manager = new SqlManager(std::move(database), login);
        return hr;
    });
}

} // namespace

SpMgr* SpConnect(const CString& url, const CString& userName, HRESULT* result)
{
    SpMgr* manager = nullptr;
    const HRESULT hr = connect(url, userName, manager);
    if (result != nullptr)
        *result = hr;
    return manager;
}

} // namespace condtree
