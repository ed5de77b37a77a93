#include "Language.h"

#include "CatalogueFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTranslator>

#include <dlfcn.h>

namespace condtree {

namespace {

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
    CatalogueRead read = readCatalogue(language, folders);
    if (read.translator == nullptr)
        return read.isGood;
    read.translator->setObjectName(kTranslatorName);
    if (!QCoreApplication::installTranslator(read.translator.get()))
        return false;
    read.translator.release()->setParent(&application);
    return true;
}

} // namespace condtree
