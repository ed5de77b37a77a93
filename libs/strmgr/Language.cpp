#include "Language.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTranslator>

#include <algorithm>
#include <memory>

#include <dlfcn.h>

namespace condtree {

namespace {

Q_LOGGING_CATEGORY(logStrMgr, "condtree.strmgr")

constexpr QLatin1String kTranslatorName("condtree.language");

/// The folder of the file that this code was loaded from; empty when the loader does not tell.
QString libraryFolder()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&languageFolders), &info) == 0)
        return {};
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

void unloadLanguage(QCoreApplication& application)
{
    const auto loaded = application.findChildren<QTranslator*>(kTranslatorName);
    for (QTranslator* translator : loaded) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}

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

/// The catalogue of a language, or else that of the language without its country or script.
QString findCatalogue(const QString& language, const QStringList& folders)
{
    if (!isLanguageName(language))
        return {};
    QString name = language;
    for (name.replace(u'-', u'_'); !name.isEmpty();
         name.truncate(std::max<qsizetype>(0, name.lastIndexOf(u'_')))) {
        if (QString path = findExactly(name, folders); !path.isEmpty())
            return path;
    }
    return {};
}

bool isEnglish(const QString& language)
{
    return language.isEmpty() || language == u"C" || language.section(u'-', 0, 0) == u"en"
           || language.section(u'_', 0, 0) == u"en";
}

} // namespace

QStringList languageFolders()
{
    QStringList folders;
    if (const QString library = libraryFolder(); !library.isEmpty()) {
        const QDir directory(library);
        folders << directory.filePath(QStringLiteral("translations"))
                << QDir::cleanPath(
                       directory.filePath(QStringLiteral(CONDTREE_TRANSLATIONS_FROM_LIB)));
    }
    const QStringList data = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    for (const QString& folder : data)
        folders << QDir(folder).filePath(QStringLiteral("condtree/translations"));
    return folders;
}

CString preferredLanguage(const QStringList& wanted, const QStringList& folders)
{
    for (const QString& language : wanted) {
        if (isEnglish(language))
            return QStringLiteral("en");
        if (!findCatalogue(language, folders).isEmpty())
            return language;
    }
    return wanted.isEmpty() ? QStringLiteral("en") : wanted.first();
}

bool loadLanguage(QCoreApplication& application, const CString& language,
                  const QStringList& folders)
{
    unloadLanguage(application);
    const QString name = isEnglish(language) ? QStringLiteral("en") : language;
    const QString path = findCatalogue(name, folders);
    if (path.isEmpty()) {
        if (name == u"en")
            return true;
        qCWarning(logStrMgr).noquote() << "no texts for the language" << name;
        return false;
    }
    auto translator = std::make_unique<QTranslator>();
    translator->setObjectName(kTranslatorName);
    if (!translator->load(path) || !QCoreApplication::installTranslator(translator.get())) {
        qCWarning(logStrMgr).noquote() << "cannot read the texts of" << path;
        return false;
    }
    translator.release()->setParent(&application);
    return true;
}

} // namespace condtree
