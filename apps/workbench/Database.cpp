#include "Database.h"

#include "Messages.h"

#include <condtree/refdata/ErrorText.h>
#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <QDir>
#include <QStandardPaths>
#include <QUrl>

namespace condtree::workbench {

namespace {

QString withoutPassword(const QString& url)
{
    const QUrl parsed(url);
    return parsed.password().isEmpty() ? url : parsed.toString(QUrl::RemovePassword);
}

Failure failureOf(const QString& what, HRESULT code)
{
    return {QStringLiteral("%1: %2").arg(what, ResultCodeText(code).trimmed())};
}

Failure cannotOpen(const QString& url, HRESULT code)
{
    return failureOf(QStringLiteral("cannot open the database %1").arg(withoutPassword(url)), code);
}

} // namespace

Outcome<std::unique_ptr<Database>> Database::open(const QString& url, const QString& user)
{
    HRESULT result = E_FAIL;
    SpMgr* manager = SpConnect(url, user, &result);
    if (manager == nullptr && result == SP_E_NOT_LOGGED_IN && !user.isEmpty())
        return Failure{QStringLiteral("the database %1 has no user %2")
                           .arg(withoutPassword(url), quoted(user))};
    if (manager == nullptr)
        return cannotOpen(url, result);
    SpTransitions* procedures = SpTransitionsOf(manager);
    if (procedures == nullptr) {
        manager->Release();
        return cannotOpen(url, E_NOTIMPL);
    }
    return std::unique_ptr<Database>(new Database(manager, procedures, url));
}

Outcome<std::unique_ptr<Database>> Database::openSample(const QString& user)
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                           + QStringLiteral("/condtree");
    if (!QDir().mkpath(folder))
        return Failure{QStringLiteral("cannot make the folder %1").arg(folder)};
    const QString url = SpSqliteUrl(QDir::cleanPath(folder + QStringLiteral("/sample.db")));
    const HRESULT result = SpMakeSampleDatabase(url);
    if (FAILED(result))
        return failureOf(QStringLiteral("cannot make the sample database %1").arg(url), result);
    return open(url, user);
}

Database::Database(SpMgr* manager, SpTransitions* procedures, QString url)
    : m_manager(manager)
    , m_procedures(procedures)
    , m_url(std::move(url))
{
}

Database::~Database()
{
    m_manager->Release();
}

QString Database::displayUrl() const
{
    return withoutPassword(m_url);
}

QString Database::userName() const
{
    constexpr int kLogin = 5;
    SpConnectInfo info;
    return m_manager->mbGetConnectInfo(info) ? info.moStrings[kLogin] : QString();
}

Outcome<std::vector<SpTransition>> Database::transitions() const
{
    std::vector<SpTransition> found;
    const HRESULT result = m_procedures->mhGetTransitions(found);
    if (FAILED(result))
        return failureOf(QStringLiteral("cannot read the transitions"), result);
    return found;
}

Outcome<SpCondition> Database::load(const SpTransition& transition) const
{
    SpCondition condition;
    const HRESULT result = m_procedures->mhLoadCondition(transition.id, condition);
    if (FAILED(result))
        return failureOf(
            QStringLiteral("cannot read the condition of %1").arg(transitionTitle(transition)),
            result);
    return condition;
}

Outcome<std::int64_t> Database::save(const SpTransition& transition,
                                     const ConditionRecords& records,
                                     std::int64_t loadedVersion) const
{
    SpSaveReport report;
    const HRESULT result =
        m_procedures->mhSaveCondition(transition.id, records, loadedVersion, report);
    if (SUCCEEDED(result))
        return report.version;
    const QString what =
        QStringLiteral("cannot save the condition of %1").arg(transitionTitle(transition));
    if (report.message.isEmpty())
        return failureOf(what, result);
    return Failure{QStringLiteral("%1: %2").arg(what, report.message)};
}

QString transitionTitle(const SpTransition& transition)
{
    return transition.workflow.str() + QLatin1Char('/') + transition.name.str();
}

Outcome<SpTransition> findTransition(const std::vector<SpTransition>& transitions,
                                     const QString& title)
{
    const SpTransition* found = nullptr;
    for (const SpTransition& transition : transitions) {
        if (transitionTitle(transition) != title)
            continue;
        if (found != nullptr)
            return Failure{
                QStringLiteral("more than one transition is named %1").arg(quoted(title))};
        found = &transition;
    }
    if (found == nullptr)
        return Failure{QStringLiteral("there is no transition %1").arg(quoted(title))};
    return *found;
}

} // namespace condtree::workbench
