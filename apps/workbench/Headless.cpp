#include "Headless.h"

#include "ConditionControl.h"
#include "ConditionEditor.h"
#include "Files.h"
#include "MainWindow.h"
#include "Messages.h"
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
        lines += oneLine(transitionTitle(transition)).toUtf8() + '\n';
    return writeFile(kStandardOutput, lines);
}

Outcome<ConditionRecords> readCondition(const QString& path)
{
    const Outcome<QByteArray> json = readFile(path, kLargestJson);
    if (!json.hasValue())
        return json.failure();
    Outcome<ConditionRecords> records = conditionFromJson(json.value());
    if (!records.hasValue())
        return Failure{atPlace(path, records.failure().text)};
    return records;
}

MaybeFailure importCondition(const Database& database, const SpTransition& transition,
                             const QString& path, const ConditionRecords& records)
{
    const Outcome<SpCondition> stored = database.load(transition);
    if (!stored.hasValue())
        return stored.failure();
    const Outcome<std::int64_t> version =
        database.save(transition, records, stored.value().version);
    if (!version.hasValue())
        return Failure{atPlace(path, version.failure().text)};
    return std::nullopt;
}

MaybeFailure printCondition(const Database& database, const SpTransition& transition)
{
    const Outcome<SpCondition> condition = database.load(transition);
    if (!condition.hasValue())
        return condition.failure();
    const Services services = unattendedServices();
    ConditionControl control(database.manager(), nullptr, services);
    const auto named = [&](const QString& failure) {
        return Failure{atPlace(transitionTitle(transition), failure)};
    };
    if (const auto failure = control.prepare(condition.value().records))
        return named(failure->text);
    const QStringList failures = control.setRecords(condition.value().records);
    if (!failures.isEmpty())
        return named(failures.first());
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
        return Failure{atPlace(transitionTitle(transition), json.failure().text)};
    return writeFile(path, json.value());
}

MaybeFailure drawWindow(const Database& database, const std::vector<SpTransition>& transitions,
                        const SpTransition& transition, const QString& path)
{
    MainWindow window(database, transitions, unattendedServices());
    if (const auto failure = window.open(transition))
        return failure;
    const QStringList& failures = window.editor().failures();
    if (!failures.isEmpty())
        return Failure{atPlace(transitionTitle(transition), failures.first())};
    window.show();
    QCoreApplication::processEvents();
    QBuffer png;
    png.open(QIODevice::WriteOnly);
    if (!window.grab().save(&png, "PNG"))
        return Failure{
            atPlace(path, QCoreApplication::translate("Headless", "the picture cannot be made"))};
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
        return Failure{QCoreApplication::translate("Headless", "the database has no transitions")};
    return transitions.front();
}

namespace {

/// The tasks that write nothing into the database, on the transitions as they are now: an import
/// has changed one.
MaybeFailure runOutputs(const Options& options, const Database& database)
{
    const auto transitions = database.transitions();
    if (!transitions.hasValue())
        return transitions.failure();
    const auto chosen = chosenTransition(options, transitions.value());
    MaybeFailure failure;
    if (options.list)
        failure = printList(transitions.value());
    if (failure || !options.needsTransition())
        return failure;
    if (!chosen.hasValue())
        return chosen.failure();
    if (options.print)
        failure = printCondition(database, chosen.value());
    if (!failure && !options.exportFile.isNull())
        failure = exportCondition(database, chosen.value(), options.exportFile);
    if (!failure && !options.screenshotFile.isNull())
        failure = drawWindow(database, transitions.value(), chosen.value(), options.screenshotFile);
    return failure;
}

} // namespace

MaybeFailure runHeadless(const Options& options)
{
    // Before the database is opened, which may bring it up to date or make the sample.
    ConditionRecords imported;
    if (!options.importFile.isNull()) {
        Outcome<ConditionRecords> records = readCondition(options.importFile);
        if (!records.hasValue())
            return records.failure();
        imported = std::move(records).value();
    }
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
    if (!options.importFile.isNull()) {
        if (const auto failure =
                importCondition(opened, chosen.value(), options.importFile, imported))
            return failure;
    }
    return runOutputs(options, opened);
}

} // namespace condtree::workbench
