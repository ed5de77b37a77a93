#include "CatalogueFile.h"

#include "CatalogueTranslator.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

namespace condtree {

namespace {

Q_LOGGING_CATEGORY(logStrMgr, "condtree.strmgr")

/// Whether a name is that of a language, and so cannot lead out of a folder.
bool isLanguageName(const QString& name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'_' || c == u'-');
    });
}

QString findExactly(const QString& language, const QStringList& folders)
{
    for (const QString& folder : folders) {
        QString path = QDir(folder).filePath(QLatin1String("condtree_%1.qm").arg(language));
        if (!folder.isEmpty() && QFileInfo(path).isFile())
            return path;
    }
    return {};
}

/// Empty where the file cannot be read, or is larger than any catalogue.
QByteArray contentsOf(const QString& path)
{
    constexpr qint64 kLargest = 64 * 1024 * 1024;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() <= kLargest ? file.readAll()
                                                                     : QByteArray();
}

} // namespace

CString findCatalogue(const CString& language, const QStringList& folders)
{
    if (!isLanguageName(language))
        return {};
    QString name = language;
    name.replace(u'-', u'_');
    while (!name.isEmpty()) {
        if (QString path = findExactly(name, folders); !path.isEmpty())
            return path;
        name.truncate(std::max<qsizetype>(0, name.lastIndexOf(u'_')));
    }
    return {};
}

bool isEnglish(const CString& language)
{
    const QString name = QString(language).replace(u'-', u'_').section(u'_', 0, 0);
    return name.isEmpty() || name == u"C" || name == u"en";
}

CatalogueRead readCatalogue(const CString& language, const QStringList& folders)
{
    const QString path = findCatalogue(language, folders);
    if (path.isEmpty()) {
        if (isEnglish(language))
            return {nullptr, true};
        qCWarning(logStrMgr).noquote() << "no texts for the language" << language;
        return {};
    }
    // Read as a whole: a file that is mapped could change beneath the texts.
    const auto texts = catalogueTextsOf(contentsOf(path));
    auto translator =
        std::make_unique<CatalogueTranslator>(texts ? *texts : std::vector<TranslatedText>());
    if (translator->isEmpty()) {
        qCWarning(logStrMgr).noquote() << "cannot read the texts of" << path;
        return {};
    }
    return {std::move(translator), true};
}

std::unique_ptr<QTranslator> translatorOf(const CString& language, const QStringList& folders)
{
    CatalogueRead read = readCatalogue(language, folders);
    return read.translator ? std::move(read.translator) : std::make_unique<QTranslator>();
}

} // namespace condtree
