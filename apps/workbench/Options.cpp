#include "Options.h"

#include "Messages.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace condtree::workbench {

namespace {

using Flag = bool Options::*;
using Value = QString Options::*;

/// An option: a flag, or a value and what its value is called.
struct OptionEntry {
    const char* name;
    std::variant<Flag, Value> member;
    const char* valueName;
    const char* help;
};

constexpr std::array<OptionEntry, 11> kOptions{{
    {"--db", &Options::database, "URL",
     //: Of --db. This and what follows are lines of the list of options
     QT_TRANSLATE_NOOP("Options", "the database; without it the sample database is opened")},
    {"--user", &Options::user, "NAME", QT_TRANSLATE_NOOP("Options", "the login name")},
    {"--transition", &Options::transition, "NAME",
     //: WORKFLOW and NAME may be translated
     QT_TRANSLATE_NOOP("Options", "the transition, WORKFLOW/NAME as --list has it")},
    {"--lang", &Options::language, "LL",
     QT_TRANSLATE_NOOP("Options", "the language, such as de or pt_BR; without it the user's own")},
    {"--list", &Options::list, nullptr, QT_TRANSLATE_NOOP("Options", "print the transitions")},
    {"--print", &Options::print, nullptr,
     QT_TRANSLATE_NOOP("Options", "print the transition's condition as a tree")},
    {"--export", &Options::exportFile, "FILE",
     QT_TRANSLATE_NOOP("Options", "write the condition as JSON; - is the standard output")},
    {"--import", &Options::importFile, "FILE",
     QT_TRANSLATE_NOOP("Options", "store a condition from JSON; - is the standard input")},
    {"--screenshot", &Options::screenshotFile, "FILE",
     QT_TRANSLATE_NOOP("Options", "draw the window to a PNG picture")},
    {"--help", &Options::help, nullptr, QT_TRANSLATE_NOOP("Options", "print this text")},
    {"--version", &Options::version, nullptr, QT_TRANSLATE_NOOP("Options", "print the version")},
}};

// Options of the toolkit that a value follows.
constexpr std::array kToolkitOptions{"-platform", "-platformtheme", "-qwindowgeometry", "-style",
                                     "-stylesheet"};

class Parser {
public:
    explicit Parser(const QStringList& arguments)
        : m_arguments(arguments)
    {
    }

    Outcome<Options> run()
    {
        while (m_at < m_arguments.size()) {
            if (const auto failure = takeArgument(m_arguments[m_at++]))
                return *failure;
        }
        if (!m_options.importFile.isNull() && m_options.transition.isNull())
            //: %1 and %2 are options
            return Failure{QCoreApplication::translate("Options", "%1 needs %2")
                               .arg(QLatin1String("--import"), QLatin1String("--transition"))};
        return m_options;
    }

private:
    MaybeFailure takeArgument(const QString& argument)
    {
        const auto isArgument = [&](const char* name) { return argument == QLatin1String(name); };
        if (std::any_of(kToolkitOptions.begin(), kToolkitOptions.end(), isArgument)) {
            ++m_at;
            return std::nullopt;
        }
        if (!argument.startsWith(QLatin1Char('-')))
            return Failure{QCoreApplication::translate("Options", "unexpected argument %1")
                               .arg(quoted(argument))};
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.left(equals);
        const auto* const entry =
            std::find_if(kOptions.begin(), kOptions.end(), [&](const OptionEntry& candidate) {
                return name == QLatin1String(candidate.name);
            });
        if (entry == kOptions.end())
            return Failure{
                QCoreApplication::translate("Options", "unknown option %1").arg(quoted(name))};
        const auto* flag = std::get_if<Flag>(&entry->member);
        if (flag == nullptr)
            return takeValue(*entry, equals < 0 ? QString() : argument.mid(equals + 1));
        if (equals >= 0)
            return Failure{QCoreApplication::translate("Options", "%1 takes no value").arg(name)};
        m_options.** flag = true;
        return std::nullopt;
    }

    MaybeFailure takeValue(const OptionEntry& entry, QString value)
    {
        const QString name = QLatin1String(entry.name);
        const bool isNext = value.isNull() && m_at < m_arguments.size()
                            && !m_arguments[m_at].startsWith(QLatin1String("--"));
        if (isNext)
            value = m_arguments[m_at++];
        if (value.isEmpty())
            return Failure{

                //: %1 is an option, %2 the kind of value, as FILE
                QCoreApplication::translate("Options", "%1 needs a value: %2")
                    .arg(name, QLatin1String(entry.valueName))};
        QString& target = m_options.*std::get<Value>(entry.member);
        if (!target.isNull())
            return Failure{QCoreApplication::translate("Options", "%1 is given twice").arg(name)};
        target = value;
        return std::nullopt;
    }

    const QStringList& m_arguments;
    qsizetype m_at = 0;
    Options m_options;
};

} // namespace

bool Options::isHeadless() const
{
    return list || print || !exportFile.isNull() || !importFile.isNull()
           || !screenshotFile.isNull();
}

bool Options::needsTransition() const
{
    return print || !exportFile.isNull() || !importFile.isNull() || !screenshotFile.isNull();
}

Outcome<Options> parseOptions(const QStringList& arguments)
{
    return Parser(arguments).run();
}

QString languageAsked(const QStringList& arguments)
{
    const QLatin1String option("--lang");
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == option && i + 1 < arguments.size())
            return arguments[i + 1];
        if (arguments[i].startsWith(option + QLatin1Char('=')))
            return arguments[i].mid(option.size() + 1);
    }
    return {};
}

QString usageText()
{
    QString text =
        QCoreApplication::translate("Options", "Usage: condtree-workbench [OPTION]...")
        + QLatin1Char('\n')
        + QCoreApplication::translate("Options", "Edit the conditions of workflow transitions.")
        + QStringLiteral("\n\n");
    for (const OptionEntry& entry : kOptions) {
        QString option = QLatin1String(entry.name);
        if (entry.valueName != nullptr)
            option += QLatin1Char(' ') + QLatin1String(entry.valueName);
        text += QStringLiteral("  %1 %2\n")
                    .arg(option, -18)
                    .arg(QCoreApplication::translate("Options", entry.help));
    }
    //: Lines of at most 100 characters
    return text + QLatin1Char('\n')
           + QCoreApplication::translate(
               "Options", "With --list, --print, --export, --import or --screenshot no window is "
                          "opened and no display\nis needed.")
           + QLatin1Char('\n');
}

} // namespace condtree::workbench
