#include "Dialogs.h"
#include "Files.h"
#include "Headless.h"
#include "Messages.h"
#include "Translations.h"
#include "Windowed.h"

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

QString noDisplay(const QString& variable)
{
    //: %1 is a variable of the environment
    return QCoreApplication::translate("Main",
                                       "there is no display to open a window on: %1 is not set")
        .arg(variable);
}

/// Why no window can be opened, as far as the environment tells.
MaybeFailure checkDisplay(const QByteArray& platform)
{
#ifdef Q_OS_LINUX
    const bool hasX = !qEnvironmentVariableIsEmpty("DISPLAY");
    const bool hasWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (platform.isEmpty() && !hasX && !hasWayland)
        return Failure{QCoreApplication::translate(
            "Main",
            "there is no display to open a window on: neither DISPLAY nor WAYLAND_DISPLAY is set")};
    if (platform == "xcb" && !hasX)
        return Failure{noDisplay(QLatin1String("DISPLAY"))};
    if (platform == "wayland" && !hasWayland)
        return Failure{noDisplay(QLatin1String("WAYLAND_DISPLAY"))};
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

MaybeFailure run(const Options& options)
{
    return options.isHeadless() ? runHeadless(options) : runWindow(options);
}

int start(const Options& options, int argc, char** argv)
{
    if (options.isHeadless())
        forceOffscreen(argc, argv);
    QApplication::setApplicationName(QStringLiteral("condtree-workbench"));
    QApplication::setApplicationVersion(QStringLiteral(CONDTREE_VERSION));
    qInstallMessageHandler(endOnFatal);
    QApplication application(argc, argv);
    qInstallMessageHandler(nullptr);
    useLanguage(application, options.language);
    QApplication::setApplicationDisplayName(programTitle());
    QLoggingCategory::setFilterRules(QString::fromLatin1(kQuiet));
    const auto failure = run(options);
    const int code = finish(failure);
    // Who started the window from a desktop does not see the line.
    if (failure && !options.isHeadless())
        tellFailure(nullptr, failure->text);
    return code;
}

/// Whether a command line does nothing but say something.
bool endsEarly(const Options& options, const QByteArray& platform)
{
    return options.help || options.version || (!options.isHeadless() && checkDisplay(platform));
}

/// Says it, in the language of the application.
MaybeFailure sayEarly(const QStringList& arguments, const QByteArray& platform)
{
    const auto parsed = parseOptions(arguments);
    if (!parsed.hasValue())
        return parsed.failure();
    const QString output = QStringLiteral("-");
    if (parsed.value().help)
        return writeFile(output, usageText().toUtf8());
    if (parsed.value().version)
        return writeFile(output, "condtree-workbench " CONDTREE_VERSION "\n");
    return checkDisplay(platform);
}

int runProgram(int argc, char** argv)
{
    const QStringList arguments = argumentsOf(argc, argv);
    const QByteArray platform = wantedPlatform(argc, argv);
    const auto parsed = parseOptions(arguments);
    if (parsed.hasValue() && !endsEarly(parsed.value(), platform))
        return start(parsed.value(), argc, argv);
    // Texts need an application, though none that needs a display.
    QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QString::fromLatin1(kQuiet));
    useLanguage(application, languageAsked(arguments));
    return finish(sayEarly(arguments, platform));
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
