#include "Database.h"

#include "Messages.h"
#include "ResultMessage.h"
#include "SaveRefusal.h"

#include <condtree/storedprocs/SpConnect.h>
#include <condtree/storedprocs/SpSample.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

namespace condtree::workbench {

namespace {

const QLatin1String kSqlite("sqlite://");
const QLatin1String kHidden("***");

/// A URL as it may be shown. Rather too little than a part of a password: those who write one may
/// write it wrongly.
QString withoutPassword(const QString& url)
{
    QString shown = url;
    const QLatin1String separator("://");
    const qsizetype scheme = url.indexOf(separator);
    const qsizetype start = scheme < 0 ? 0 : scheme + separator.size();
    const qsizetype at = url.lastIndexOf(QLatin1Char('@'));
    // The URL of a file names nobody; its path may hold the sign.
    const bool isFile = url.startsWith(kSqlite + QLatin1Char('/'), Qt::CaseInsensitive);
    if (at >= start && !isFile)
        shown.replace(start, at - start, kHidden);
    const QRegularExpression option(QStringLiteral("((?:password|passwd|pwd)\\s*=)[^&;]*"),
                                    QRegularExpression::CaseInsensitiveOption);
    return shown.replace(option, QStringLiteral("\\1") + kHidden);
}

/// The file of a URL; empty when it names none.
QString fileOf(const QString& url)
{
    if (!url.startsWith(kSqlite, Qt::CaseInsensitive))
        return {};
    const QString path = url.mid(kSqlite.size()).section(QLatin1Char('?'), 0, 0);
    return QString::fromUtf8(QByteArray::fromPercentEncoding(path.toUtf8()));
}

Failure failureOf(const QString& what, HRESULT code)
{
    return {atPlace(what, resultMessage(code))};
}

Failure cannotOpen(const QString& url, HRESULT code)
{
    return failureOf(QCoreApplication::translate("Database", "cannot open the database %1")
                         .arg(withoutPassword(url)),
                     code);
}

} // namespace

Outcome<std::unique_ptr<Database>> Database::open(const QString& url, const QString& user)
{
    // Only the sample is made; a mistyped name must not become a database.
    const QString file = fileOf(url);
    if (!file.isEmpty() && !QFileInfo::exists(file))
        return Failure{
            QCoreApplication::translate("Database", "there is no database %1").arg(file)};
    HRESULT result = E_FAIL;
    SpMgr* manager = SpConnect(url, user, &result);
    if (manager == nullptr && result == SP_E_NOT_LOGGED_IN && !user.isEmpty())
        return Failure{QCoreApplication::translate("Database", "the database %1 has no user %2")
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
        return Failure{
            QCoreApplication::translate("Database", "cannot make the folder %1").arg(folder)};
    const QString url = SpSqliteUrl(QDir::cleanPath(folder + QStringLiteral("/sample.db")));
    const HRESULT result = SpMakeSampleDatabase(url);
    if (FAILED(result))
        return failureOf(
            QCoreApplication::translate("Database", "cannot make the sample database %1").arg(url),
            result);
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
        return failureOf(QCoreApplication::translate("Database", "cannot read the transitions"),
                         result);
    return found;
}

Outcome<SpCondition> Database::load(const SpTransition& transition) const
{
    SpCondition condition;
    const HRESULT result = m_procedures->mhLoadCondition(transition.id, condition);
    if (FAILED(result))
        return failureOf(QCoreApplication::translate("Database", "cannot read the condition of %1")
                             .arg(transitionTitle(transition)),
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
    const QString what = QCoreApplication::translate("Database", "cannot save the condition of %1")
                             .arg(transitionTitle(transition));
    return Failure{atPlace(what, saveRefusal(result, report))};
}

QString transitionTitle(const SpTransition& transition)
{
    return transition.workflow.str() + QLatin1Char('/') + transition.name.str();
}

Outcome<SpTransition> findTransition(const std::vector<SpTransition>& transitions,
                                     const QString& title)
{
    std::vector<const SpTransition*> found;
    const auto find = [&](auto&& shown) {
        for (const SpTransition& transition : transitions) {
            if (shown(transitionTitle(transition)) == title)
                found.push_back(&transition);
        }
    };
    find([](const QString& exact) { return exact; });
    if (found.empty())
        find(oneLine);
    if (found.size() > 1)
        return Failure{
            QCoreApplication::translate("Database", "more than one transition is named %1")
                .arg(quoted(title))};
    if (found.empty())
        return Failure{QCoreApplication::translate("Database", "there is no transition %1")
                           .arg(quoted(title))};
    return *found.front();
}

} // namespace condtree::workbench
