#include "ConnectionUrl.h"

#include "Database.h"
#include "SpConnect.h"
#include "TextFault.h"

#include <QDir>
#include <QStringDecoder>
#include <QUrl>

#include <optional>

namespace condtree {

namespace {

constexpr int kLongestBusyTimeout = 60'000;
const QLatin1String kSqlite("sqlite://");

/// The text that percent-encoded UTF-8 stands for; none when it is no UTF-8 or holds U+0000.
std::optional<CString> decoded(QStringView text)
{
    const QByteArray bytes = QByteArray::fromPercentEncoding(text.toUtf8());
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const CString result = decoder(bytes);
    if (decoder.hasError() || textFault(result) != TextFault::None)
        return std::nullopt;
    return result;
}

bool readOption(QStringView option, ConnectionUrl& target)
{
    const QLatin1String name("busy_timeout=");
    if (!option.startsWith(name))
        return false;
    bool isNumber = false;
    target.busyTimeout = option.mid(name.size()).toInt(&isNumber);
    return isNumber && target.busyTimeout >= 0 && target.busyTimeout <= kLongestBusyTimeout;
}

HRESULT parseSqlite(QStringView rest, ConnectionUrl& target)
{
    const qsizetype mark = rest.indexOf(u'?');
    const QStringView pathPart = mark < 0 ? rest : rest.left(mark);
    ConnectionUrl parsed;
    const std::optional<CString> path = decoded(pathPart);
    if (!path || !path->startsWith(u'/'))
        return E_INVALIDARG;
    parsed.path = QDir::cleanPath(*path);
    if (parsed.path == QLatin1String("/"))
        return E_INVALIDARG;
    if (mark >= 0) {
        for (const QStringView option : rest.mid(mark + 1).split(u'&')) {
            if (!readOption(option, parsed))
                return E_INVALIDARG;
        }
    }
    target = parsed;
    return S_OK;
}

} // namespace

HRESULT parseConnectionUrl(const CString& url, ConnectionUrl& target)
{
    if (textFault(url) != TextFault::None)
        return E_INVALIDARG;
    if (url.startsWith(kSqlite, Qt::CaseInsensitive))
        return parseSqlite(QStringView(url).mid(kSqlite.size()), target);
    if (url.startsWith(QLatin1String("postgresql://"), Qt::CaseInsensitive)) {
        qCWarning(logStoredProcs, "PostgreSQL databases are not supported yet");
        return E_NOTIMPL;
    }
    return E_INVALIDARG;
}

CString SpSqliteUrl(const CString& path)
{
    if (!path.startsWith(u'/') || textFault(path) != TextFault::None)
        return {};
    return kSqlite + QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
}

} // namespace condtree
