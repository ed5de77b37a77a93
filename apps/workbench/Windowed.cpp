#include "Windowed.h"

#include "Headless.h"
#include "MainWindow.h"

#include <condtree/control/RealServices.h>

#include <QApplication>
#include <QLoggingCategory>
#include <QScreen>

namespace condtree::workbench {

MaybeFailure runWindow(const Options& options)
{
    const auto database = openDatabase(options);
    if (!database.hasValue())
        return database.failure();
    const auto transitions = database.value()->transitions();
    if (!transitions.hasValue())
        return transitions.failure();
    MainWindow window(*database.value(), transitions.value(), realServices());
    window.resize(window.size().boundedTo(window.screen()->availableSize() * 9 / 10));
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

} // namespace condtree::workbench
