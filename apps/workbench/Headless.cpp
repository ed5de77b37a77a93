#include "Headless.h"

#include "ConditionControl.h"
#include "Files.h"
#include "MainWindow.h"
#include "TreeText.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPixmap>

namespace condtree::workbench {

namespace {

const QString kStandardOutput = QStringLiteral("-");

/// The real services, but nobody is there to answer a message.
Services unattendedServices()
{
    Services services = realServices();
    services.messageBox = [](QWidget*, const CString&, unsigned) { return 0; };
    return services;
}

MaybeFailure printList(const std::vector<SpTransition>& transitions)
{
    QByteArray lines;
    for (const SpTransition& transition : transitions)
        lines += transitionTitle(transition).toUtf8() + '\n';
    return writeFile(kStandardOutput, lines);
}

MaybeFailure importCondition(const Database& database, const SpTransition& transition,
                             const QString& path)
{
    const Outcome<QByteArray> json = readFile(path, kLargestJson);
    if (!json.hasValue())
        return json.failure();
    const Outcome<ConditionRecords> records = conditionFromJson(json.value());
    if (!records.hasValue())
        return Failure{QStringLiteral("%1: %2").arg(path, records.failure().text)};
    const Outcome<SpCondition> stored = database.load(transition);
    if (!stored.hasValue())
        return stored.failure();
    const Outcome<std::int64_t> version =
        database.save(transition, records.value(), stored.value().version);
    if (!version.hasValue())
        return Failure{QStringLiteral("%1: %2").arg(path, version.failure().text)};
    return std::nullopt;
}

MaybeFailure printCondition(const Database& database, const SpTransition& transition)
{
    const Outcome<SpCondition> condition = database.load(transition);
    if (!condition.hasValue())
        return condition.failure();
    const Services services = unattendedServices();
    ConditionControl control(database.manager(), nullptr, services);
    const QStringList failures = control.setRecords(condition.value().records);
    if (!failures.isEmpty())
        return Failure{QStringLiteral("%1: %2").arg(transitionTitle(transition), failures.first())};
    const VarTreeCtrlNode* top = control.mpoGetNode(TVI_ROOT);
    return writeFile(kStandardOutput, treeText(*top, services.string).toUtf8());
}

MaybeFailure exportCondition(const Database& database, const SpTransition& transition,
                             const QString& path)
{
    const Outcome<SpCondition> condition = database.load(transition);
    if (!condition.hasValue())
        return condition.failure();
    const Outcome<QByteArray> json = conditionToJson(condition.value().records);
    if (!json.hasValue())
        return Failure{
            QStringLiteral("%1: %2").arg(transitionTitle(transition), json.failure().text)};
    return writeFile(path, json.value());
}

MaybeFailure drawWindow(const Database& database, const std::vector<SpTransition>& transitions,
                        const SpTransition& transition, const QString& path)
{
    MainWindow window(database, transitions, unattendedServices());
    if (const auto failure = window.open(transition))
        return failure;
    window.show();
    QCoreApplication::processEvents();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!window.grab().save(&png, "PNG"))
        return Failure{QStringLiteral("%1: the picture cannot be made").arg(path)};
    return writeFile(path, png.data());
}

} // namespace

Outcome<std::unique_ptr<Database>> openDatabase(const Options& options)
{
    return options.database.isNull() ? Database::openSample(options.user)
                                     : Database::open(options.database, options.user);
}

Outcome<SpTransition> chosenTransition(const Options& options,
                                       const std::vector<SpTransition>& transitions)
{
    if (!options.transition.isNull())
        return findTransition(transitions, options.transition);
    if (transitions.empty())
        return Failure{QStringLiteral("the database has no transitions")};
    return transitions.front();
}

MaybeFailure runHeadless(const Options& options)
{
    const auto database = openDatabase(options);
    if (!database.hasValue())
        return database.failure();
    const Database& opened = *database.value();
    const auto transitions = opened.transitions();
    if (!transitions.hasValue())
        return transitions.failure();
    // Found before anything is written, so that a wrong name leaves no half of the work behind.
    const auto chosen = chosenTransition(options, transitions.value());
    const bool isNeeded = options.needsTransition() || !options.transition.isNull();
    if (isNeeded && !chosen.hasValue())
        return chosen.failure();

    MaybeFailure failure;
    if (options.list)
        failure = printList(transitions.value());
    if (!failure && !options.importFile.isNull())
        failure = importCondition(opened, chosen.value(), options.importFile);
    if (!failure && options.print)
        failure = printCondition(opened, chosen.value());
    if (!failure && !options.exportFile.isNull())
        failure = exportCondition(opened, chosen.value(), options.exportFile);
    if (!failure && !options.screenshotFile.isNull())
        failure = drawWindow(opened, transitions.value(), chosen.value(), options.screenshotFile);
    return failure;
}

} // namespace condtree::workbench
