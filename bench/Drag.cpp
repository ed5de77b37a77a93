#include "Conditions.h"

#include <condtree/control/CondTreeCtrl.h>
#include <condtree/platform/TimerMessage.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QMouseEvent>

#include <chrono>

namespace condtree::bench {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 600;

/// The most that a movement may take over a tree of ten thousand rows, in milliseconds.
constexpr double kLimit = 2;
constexpr int kLimitedRows = 10000;

void send(CondTreeCtrl& control, QEvent::Type type, const QPoint& at, Qt::MouseButtons held)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, control.viewport()->mapToGlobal(at), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(control.viewport(), &event);
}

/// Takes hold of the first condition in view, without waiting.
void grab(CondTreeCtrl& control)
{
    const QPoint at(120, control.visualRect(control.model()->index(1, 0)).center().y());
    send(control, QEvent::MouseButtonPress, at, Qt::LeftButton);
    TimerMessage held(1000);
    QCoreApplication::sendEvent(&control, &held);
    for (const int step : {6, 7, 8})
        send(control, QEvent::MouseMove, at + QPoint(step, 0), Qt::LeftButton);
}

// A movement of a dragged row over a tree of so many rows with every group open, until it is
// painted.
void Drag(benchmark::State& state)
{
    const auto manager = makeManager();
    Services services;
    services.startTimer = [](QObject*, std::uintptr_t, unsigned) {};
    services.stopTimer = [](QObject*, std::uintptr_t) {};
    CondTreeCtrl control(nullptr, services);
    control.mvInitialize(manager.get(), 120, {}, {});
    control.mvLoad(makeCondition(static_cast<std::size_t>(state.range(0))));
    control.resize(kWidth, kHeight);
    control.show();
    QCoreApplication::processEvents();
    grab(control);
    if (control.findChild<QWidget*>(QStringLiteral("dragImage")) == nullptr) {
        state.SkipWithError("nothing is dragged");
        return;
    }
    control.expandAll();
    QCoreApplication::processEvents();

    if (state.range(0) <= kLimitedRows)
        state.counters["move_ms_limit"] = kLimit;
    int step = 0;
    double spent = 0;
    for (auto _ : state) {
        ++step;
        const QPoint to(100 + step * 37 % 300, 40 + step * 61 % (kHeight - 80));
        const auto start = std::chrono::steady_clock::now();
        send(control, QEvent::MouseMove, to, Qt::LeftButton);
        QCoreApplication::processEvents();
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
        state.SetIterationTime(taken.count());
        spent += taken.count();
    }
    state.counters["move_ms"] = 1000 * spent / double(state.iterations());
    send(control, QEvent::MouseButtonRelease, {100, 100}, Qt::NoButton);
}

BENCHMARK(Drag)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace condtree::bench
