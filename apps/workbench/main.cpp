#include "Files.h"
#include "Headless.h"
#include "MainWindow.h"
#include "Messages.h"

#include <condtree/control/RealServices.h>
#include <condtree/strmgr/Language.h>

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>

namespace {

using namespace condtree::workbench;

constexpr int kDone = 0;
constexpr int kFailed = 2;

int finish(const MaybeFailure& failure)
{
    if (!failure)
        return kDone;
    const QByteArray line = errorLine(failure->text);
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    return kFailed;
}

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
}

/// Without a display no platform but this one starts. A choice of screens for it is left alone.
void chooseOffscreen()
{
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Until a window is open, an error is one line: what Qt and the libraries tell the log beside it
/// would be more of the same. Why no window can open is still said. Who wants to read it all sets
/// QT_LOGGING_RULES.
constexpr const char* kQuiet = "*.warning=false\nqt.qpa.*.warning=true";

MaybeFailure chooseLanguage(const Options& options, QApplication& application)
{
    if (options.language.isNull() || condtree::loadLanguage(application, options.language))
        return std::nullopt;
    return Failure{
        QStringLiteral("there are no texts in the language %1").arg(quoted(options.language))};
}

MaybeFailure showWindow(const Options& options)
{
    const auto database = openDatabase(options);
    if (!database.hasValue())
        return database.failure();
    const auto transitions = database.value()->transitions();
    if (!transitions.hasValue())
        return transitions.failure();
    MainWindow window(*database.value(), transitions.value(), condtree::realServices());
    // A database without transitions is an empty window, unless one was asked for.
    if (!transitions.value().empty() || !options.transition.isNull()) {
        const auto chosen = chosenTransition(options, transitions.value());
        if (!chosen.hasValue())
            return chosen.failure();
        if (const auto failure = window.open(chosen.value()))
            return failure;
    }
    QLoggingCategory::setFilterRules(QString());
    window.show();
    QApplication::exec();
    return std::nullopt;
}

MaybeFailure run(const Options& options, QApplication& application)
{
    if (const auto failure = chooseLanguage(options, application))
        return failure;
    return options.isHeadless() ? runHeadless(options) : showWindow(options);
}

} // namespace

int main(int argc, char** argv)
{
    const auto parsed = parseOptions(argumentsOf(argc, argv));
    if (!parsed.hasValue())
        return finish(parsed.failure());
    const Options& options = parsed.value();
    if (options.help)
        return finish(writeFile(QStringLiteral("-"), usageText().toUtf8()));
    if (options.version)
        return finish(writeFile(QStringLiteral("-"), "condtree-workbench " CONDTREE_VERSION "\n"));
    if (options.isHeadless())
        chooseOffscreen();
    QLoggingCategory::setFilterRules(QString::fromLatin1(kQuiet));
    QApplication::setApplicationName(QStringLiteral("condtree-workbench"));
    QApplication::setApplicationDisplayName(QStringLiteral("CondTree Workbench"));
    QApplication::setApplicationVersion(QStringLiteral(CONDTREE_VERSION));
    QApplication application(argc, argv);
    return finish(run(options, application));
}
