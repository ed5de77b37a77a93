#include "Translations.h"

#include <condtree/strmgr/Language.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QRegularExpression>
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

/// The language that a user names, in one spelling for everything that loads texts: as "de",
/// "de_AT" or "zh_Hant_TW". Takes what the environment's variables hold ("de_DE.UTF-8",
/// "de_DE@euro") and "POSIX" and "C", which are English. A text that names no locale stays as it
/// is: it is what the log will say there are no texts in.
QString languageNamed(const QString& name)
{
    static const QRegularExpression locale(
        QStringLiteral("^([A-Za-z]{1,8}(?:[-_][A-Za-z0-9]{1,8})*)(?:[.@].*)?$"));
    const QRegularExpressionMatch match = locale.match(name);
    if (!match.hasMatch())
        return name;
    QStringList parts = match.captured(1).replace(u'-', u'_').toLower().split(u'_');
    if (parts.first() == u"c" || parts.first() == u"posix")
        return kEnglish;
    for (qsizetype i = 1; i < parts.size(); ++i) {
        constexpr qsizetype kScript = 4; // "Hant"; all others are countries
        parts[i] = parts[i].size() == kScript ? parts[i].left(1).toUpper() + parts[i].mid(1)
                                              : parts[i].toUpper();
    }
    return parts.join(u'_');
}

/// Installs the catalogue <name>_<language>.qm of a folder; without one that of the language
/// without its country.
bool install(QCoreApplication& application, const char* name, const QString& language,
             const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    translator->setObjectName(kTranslatorName);
    if (!translator->load(QLatin1String(name) + QLatin1Char('_') + language, folder))
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
    QStringList wanted = isAsked ? QStringList{asked} : userLanguages();
    std::transform(wanted.begin(), wanted.end(), wanted.begin(), languageNamed);
    const QString language = preferredLanguage(wanted);
    const bool hasConditions = loadLanguage(application, language);
    // The toolkit's own after ours: what is translated last is asked first, and ours stand in for
    // the few buttons of languages that the toolkit does not know.
    const bool hasOwn = install(application, "workbench", language, kBuiltIn);
    install(application, "qtbase", language, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!hasOwn) {
        // Its plural forms.
        install(application, "workbench", kEnglish, kBuiltIn);
        if (hasConditions)
            qCWarning(logTranslations).noquote()
                << "no texts of the workbench for the language" << language;
    }
    QLocale::setDefault(hasOwn || hasConditions
                            ? localeOf(isAsked ? wanted.first() : language, isAsked)
                            : QLocale::system());
}

} // namespace condtree::workbench
