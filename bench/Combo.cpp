#include <condtree/editing/ComboSession.h>
#include <condtree/model/ComboCmd.h>
#include <condtree/platform/Services.h>

#include <benchmark/benchmark.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <memory>

namespace condtree::bench {

namespace {

constexpr int kMany = 100'000;
constexpr double kLetterLimitMs = 16; // a frame
constexpr double kOpenLimitTimes = 3; // of a list of ten

double milliseconds(const std::chrono::steady_clock::time_point& start)
{
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - start;
    return spent.count();
}

SharedChoices variables(int count)
{
    auto entries = std::make_shared<ChoiceEntries>();
    for (int i = 0; i < count; ++i)
        entries->push_back(
            {VariableBase + StringContains, QStringLiteral("Variable f\u00fcr %1").arg(i), 3});
    return entries;
}

/// A window over a cell of which lists are opened and typed into.
class Bench {
public:
    Bench()
    {
        m_services.systemMetric = [](int) { return 17; };
        m_services.string = [](LONG, const char16_t*, const char16_t*, const char16_t* text) {
            return QString::fromUtf16(text);
        };
        m_window.resize(900, 600);
        m_window.show();
        QCoreApplication::processEvents();
    }

    /// What a click costs until the list is painted.
    double open(const SharedChoices& choices)
    {
        const auto start = std::chrono::steady_clock::now();
        m_session.resetLongest();
        m_session.create(&m_window, {20, 20, 220, 470}, m_services, nullptr);
        m_session.add(FilePath, QStringLiteral("FilePath"), 5, 0);
        m_session.add(Revision, QStringLiteral("Revision"), 5, 1);
        m_session.addAll(choices, 2);
        m_session.show();
        m_session.combo()->select(m_session.combo()->entryCount() / 2);
        m_session.combo()->view()->window()->repaint();
        return milliseconds(start);
    }
    void close()
    {
        m_session.clear();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
    /// What a key costs until the list is painted.
    double press(int key, const QString& text)
    {
        QWidget& view = *m_session.combo()->view();
        const auto start = std::chrono::steady_clock::now();
        QKeyEvent event(QEvent::KeyPress, key, {}, text);
        QCoreApplication::sendEvent(&view, &event);
        view.window()->repaint();
        return milliseconds(start);
    }

private:
    Services m_services;
    QWidget m_window;
    ComboSession m_session;
};

/// Click to open list. The list of ten is opened in turns in the same loop; "times_ten" is held
/// to its limit.
void ComboOpen(benchmark::State& state)
{
    Bench bench;
    const SharedChoices choices = variables(static_cast<int>(state.range(0)));
    const SharedChoices ten = variables(10);
    double spent = 0;
    double spentOnTen = 0;
    for (auto _ : state) {
        spentOnTen += bench.open(ten);
        bench.close();
        const double one = bench.open(choices);
        spent += one;
        state.SetIterationTime(one / 1000);
        bench.close();
    }
    state.counters["times_ten"] = spent / spentOnTen;
    state.counters["times_ten_limit"] = kOpenLimitTimes;
}

/// Keys in a list of 100,000; "mean_ms", of a key, is held to its limit. The first character makes
/// the searched forms of the texts when fresh; later lists of the same entries have them.
void type(benchmark::State& state, bool fresh)
{
    Bench bench;
    SharedChoices choices = variables(kMany);
    double slowest = 0;
    double all = 0;
    int keys = 0;
    const auto press = [&](int key, const QString& text) {
        const double one = bench.press(key, text);
        slowest = std::max(slowest, one);
        all += one;
        ++keys;
        return one;
    };
    for (auto _ : state) {
        if (fresh)
            choices = std::make_shared<const ChoiceEntries>(*choices);
        bench.open(choices);
        double spent = 0;
        const QString letters = fresh ? QStringLiteral("v") : QStringLiteral("vaR\u00dcr99q");
        for (const QChar letter : letters)
            spent += press(Qt::Key_unknown, letter);
        if (!fresh)
            spent += press(Qt::Key_Backspace, {});
        state.SetIterationTime(spent / 1000 / double(letters.size() + (fresh ? 0 : 1)));
        bench.close();
    }
    state.counters["slowest_ms"] = slowest;
    state.counters["mean_ms"] = all / keys;
    state.counters["mean_ms_limit"] = kLetterLimitMs;
}

void ComboFirstCharacter(benchmark::State& state)
{
    type(state, true);
}
void ComboCharacter(benchmark::State& state)
{
    type(state, false);
}

BENCHMARK(ComboOpen)->Arg(10)->Arg(10'000)->Arg(kMany)->UseManualTime()->Unit(
    benchmark::kMillisecond);
BENCHMARK(ComboFirstCharacter)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(ComboCharacter)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

} // namespace condtree::bench
