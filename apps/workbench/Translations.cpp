#include "Translations.h"

#include <condtree/strmgr/Language.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace condtree::workbench {

namespace {

Q_LOGGING_CATEGORY(logTranslations, "condtree.workbench")

constexpr QLatin1String kTranslatorName("condtree-workbench.language");
constexpr QLatin1String kEnglish("en");
constexpr QLatin1String kBuiltIn(":/translations");

void unloadTranslators(QCoreApplication& application)
{
    const auto loaded = application.findChildren<QTranslator*>(kTranslatorName);
    for (QTranslator* translator : loaded) {
        QCoreApplication::removeTranslator(translator);
        delete translator;
    }
}

/// Installs the catalogue <name>_<language>.qm of the first folder that has one which can be read;
/// without one that of the language without its country.
bool install(QCoreApplication& application, const char* name, const QString& language,
             const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    translator->setObjectName(kTranslatorName);
    QString file = QLatin1String(name) + QLatin1Char('_') + language;
    file.replace(QLatin1Char('-'), QLatin1Char('_'));
    const auto load = [&](const QString& folder) { return translator->load(file, folder); };
    if (!std::any_of(folders.begin(), folders.end(), load))
        return false;
    QCoreApplication::installTranslator(translator.get());
    translator.release()->setParent(&application);
    return true;
}

QStringList userLanguages()
{
    QStringList languages = QLocale::system().uiLanguages();
    // The toolkit puts this behind a language that it does not know, whatever follows.
    const QString unknown = QStringLiteral("C");
    if (languages.size() > 1)
        languages.removeAll(unknown);
    return languages;
}

/// The locale whose dates go with texts of a language. The user's own, with their country, where it
/// has this language.
QLocale localeOf(const QString& language, bool isAsked)
{
    const QLocale user = QLocale::system();
    if (!isAsked && language == kEnglish)
        return user;
    const QLocale wanted(language);
    const bool namesCountry = language.size() > QLocale::languageToCode(wanted.language()).size();
    return wanted.language() == user.language() && !(isAsked && namesCountry) ? user : wanted;
}

} // namespace

void useLanguage(QCoreApplication& application, const QString& asked)
{
    unloadTranslators(application);
    const bool isAsked = !asked.isNull();
    const QString language = preferredLanguage(isAsked ? QStringList{asked} : userLanguages());
    const bool hasConditions = loadLanguage(application, language);
    // The toolkit's own after ours: what is translated last is asked first, and ours stand in for
    // the few buttons of languages that the toolkit does not know.
    const QStringList folders = languageFolders() << kBuiltIn;
    const bool hasOwn = install(application, "workbench", language, folders);
    install(application, "qtbase", language, {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
    if (!hasOwn) {
        // Its plural forms.
        install(application, "workbench", kEnglish, {kBuiltIn});
        if (hasConditions)
            qCWarning(logTranslations).noquote()
                << "no texts of the workbench for the language" << language;
    }
    QLocale::setDefault(hasOwn || hasConditions ? localeOf(isAsked ? asked : language, isAsked)
                                                : QLocale::system());
}

} // namespace condtree::workbench
