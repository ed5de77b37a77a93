#include "Files.h"
#include "Headless.h"
#include "MainWindow.h"
#include "Messages.h"

#include <condtree/control/RealServices.h>
#include <condtree/strmgr/Language.h>

#include <QApplication>
#include <QLoggingCategory>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

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

/// The platform that the toolkit is told to use, by an argument before the environment; empty when
/// it is to find one itself.
QByteArray wantedPlatform(int argc, char** argv)
{
    for (int i = 1; i + 1 < argc; ++i) {
        if (qstrcmp(argv[i], "-platform") == 0)
            return argv[i + 1];
    }
    return qgetenv("QT_QPA_PLATFORM");
}

/// Without a display no other platform is sure to start, whatever the environment or an argument
/// names. Takes the arguments that name one out.
void forceOffscreen(int& argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "-platform") == 0)
            ++i;
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    argv[argc] = nullptr;
}

/// Why no window can be opened, as far as the environment tells.
MaybeFailure checkDisplay(const QByteArray& platform)
{
#ifdef Q_OS_LINUX
    const bool hasX = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool hasWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (platform.isEmpty() && !hasX && !hasWayland)
        return Failure{QStringLiteral(
            "there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set")};
    if (platform == "xcb" && !hasX)
        return Failure{
            QStringLiteral("there is no display to open a window on: DISPLAY is not set")};
    if (platform == "wayland" && !hasWayland)
        return Failure{
            QStringLiteral("there is no display to open a window on: WAYLAND_DISPLAY is not set")};
#else
    Q_UNUSED(platform)
#endif
    return std::nullopt;
}

/// What the toolkit says when it cannot start ends the program as any failure does, instead of an
/// abort. Its other messages at that time only lead up to this one.
void endOnFatal(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtFatalMsg)
        return;
    finish(Failure{text});
    std::_Exit(kFailed);
}

/// Until a window is open, an error is one line: what Qt and the libraries tell the log beside it
/// would be more of the same. Who wants to read it all sets QT_LOGGING_RULES.
constexpr const char* kQuiet = "*.warning=false";

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
        // Shown first: a condition that cannot be read must not shut out those that can.
        window.show();
        window.openOrTell(chosen.value());
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

int start(const Options& options, int argc, char** argv)
{
    if (options.isHeadless())
        forceOffscreen(argc, argv);
    else if (const auto failure = checkDisplay(wantedPlatform(argc, argv)))
        return finish(failure);
    QLoggingCategory::setFilterRules(QString::fromLatin1(kQuiet));
    QApplication::setApplicationName(QStringLiteral("condtree-workbench"));
    QApplication::setApplicationDisplayName(QStringLiteral("CondTree Workbench"));
    QApplication::setApplicationVersion(QStringLiteral(CONDTREE_VERSION));
    qInstallMessageHandler(endOnFatal);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    return finish(run(options, application));
}

int runProgram(int argc, char** argv)
{
    const auto parsed = parseOptions(argumentsOf(argc, argv));
    if (!parsed.hasValue())
        return finish(parsed.failure());
    const Options& options = parsed.value();
    if (options.help)
        return finish(writeFile(QStringLiteral("-"), usageText().toUtf8()));
    if (options.version)
        return finish(writeFile(QStringLiteral("-"), "condtree-workbench " CONDTREE_VERSION "\n"));
    return start(options, argc, argv);
}

/// Tells an error with no memory of its own.
int finishPlainly(const char* what, const char* detail)
{
    std::fprintf(stderr, "condtree-workbench: %s%s\n", what, detail);
    return kFailed;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return runProgram(argc, argv);
    } catch (const std::bad_alloc&) {
        return finishPlainly("not enough memory for this", "");
    } catch (const std::exception& error) {
        return finishPlainly("unexpected failure: ", error.what());
    } catch (...) {
        return finishPlainly("unexpected failure", "");
    }
}
