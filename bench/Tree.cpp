#include "Conditions.h"
#include "PlainTree.h"

#include <condtree/control/CondTreeCtrl.h>

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QTreeView>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace condtree::bench {

namespace {

constexpr int kWidth = 900;
constexpr int kHeight = 600;

/// Seconds that a call takes.
template <class Call>
double secondsOf(const Call& call)
{
    const auto start = std::chrono::steady_clock::now();
    call();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Adds up the cost of the control and of its bare counterparts, which run in turns in the same
/// loop, and reports how many times the bare cost the control takes.
class Comparison {
public:
    explicit Comparison(benchmark::State& state)
        : m_state(state)
    {
    }
    template <class Call>
    void control(const Call& call)
    {
        const double seconds = secondsOf(call);
        m_state.SetIterationTime(seconds);
        m_control += seconds;
    }
    template <class Call>
    void bare(const char* name, const Call& call)
    {
        m_bare[name] += secondsOf(call);
    }
    ~Comparison()
    {
        for (const auto& [name, seconds] : m_bare) {
            m_state.counters[std::string(name) + "_ms"] =
                1000 * seconds / double(m_state.iterations());
            m_state.counters["x_" + std::string(name)] = m_control / seconds;
        }
    }
    Comparison(const Comparison&) = delete;
    Comparison& operator=(const Comparison&) = delete;

private:
    benchmark::State& m_state;
    double m_control = 0;
    std::map<std::string, double> m_bare;
};

/// A shown view of a fixed size, past its first painting.
template <class View>
void open(View& view)
{
    view.resize(kWidth, kHeight);
    view.show();
    QCoreApplication::processEvents();
}

/// A control as hosts have it, with its pictures; without them the run ends, for what it measured
/// would be another drawing.
void setUp(CondTreeCtrl& control, SpMgr& manager)
{
    control.mvInitialize(&manager, 120, {}, {});
    control.mvLoad({});
    if (!control.model()->index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull())
        return;
    std::fputs("condtree-bench: the rows have no pictures, for condtree/libWfIcons.so beside "
               "libcondtree is missing or refused\n",
               stderr);
    std::exit(EXIT_FAILURE);
}

void setUpPlain(QTreeView& view, PlainTree& model)
{
    view.setModel(&model);
    view.setUniformRowHeights(true);
    view.header()->setDefaultSectionSize(kWidth / 4);
    view.header()->hide();
}

std::vector<TransCond> conditionOf(const benchmark::State& state)
{
    return makeCondition(static_cast<std::size_t>(state.range(0)));
}

// From the records to the painted window. Bare: copying the records, and a stock tree of the same
// texts from the records to the painted window.
void Load(benchmark::State& state)
{
    const auto records = conditionOf(state);
    const auto manager = makeManager();
    CondTreeCtrl control;
    setUp(control, *manager);
    open(control);
    PlainTree model;
    QTreeView plain;
    setUpPlain(plain, model);
    open(plain);

    Comparison comparison(state);
    for (auto _ : state) {
        comparison.bare("copy", [&] {
            std::vector<TransCond> copy(records);
            benchmark::DoNotOptimize(copy.data());
        });
        comparison.bare("tree", [&] {
            model.load(records);
            QCoreApplication::processEvents();
        });
        comparison.control([&] {
            control.mvLoad(records);
            QCoreApplication::processEvents();
        });
    }
}

// From the tree to a new vector of records. Bare: copying such a vector.
void Save(benchmark::State& state)
{
    const auto manager = makeManager();
    CondTreeCtrl control;
    setUp(control, *manager);
    control.mvLoad(conditionOf(state));
    std::vector<TransCond> saved;
    control.mvSave(saved);

    Comparison comparison(state);
    for (auto _ : state) {
        comparison.bare("copy", [&] {
            std::vector<TransCond> copy(saved);
            benchmark::DoNotOptimize(copy.data());
        });
        comparison.control([&] {
            std::vector<TransCond> records;
            control.mvSave(records);
            benchmark::DoNotOptimize(records.data());
        });
    }
}

/// Paints what a view shows after a jump to somewhere else in it.
void paintElsewhere(QTreeView& view, QImage& image, int step)
{
    QScrollBar& bar = *view.verticalScrollBar();
    bar.setValue(bar.maximum() > 0 ? int(qint64(step) * 7919 % bar.maximum()) : 0);
    QPainter painter(&image);
    view.viewport()->render(&painter);
}

// A window full of rows, every group open, other rows every time. Bare: a stock tree of the same
// texts.
void Draw(benchmark::State& state)
{
    const auto records = conditionOf(state);
    const auto manager = makeManager();
    CondTreeCtrl control;
    setUp(control, *manager);
    open(control);
    control.mvLoad(records);
    control.expandAll();
    PlainTree model;
    QTreeView plain;
    setUpPlain(plain, model);
    open(plain);
    model.load(records);
    plain.expandAll();
    QCoreApplication::processEvents();

    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    int step = 0;
    Comparison comparison(state);
    for (auto _ : state) {
        ++step;
        comparison.bare("tree", [&] { paintElsewhere(plain, image, step); });
        comparison.control([&] { paintElsewhere(control, image, step); });
    }
}

/// As many conditions as the window has room for, with texts of so many words in each column.
std::vector<TransCond> windowOf(int words)
{
    std::vector<TransCond> records(27);
    int number = 0;
    const auto text = [&](const QString& word) {
        return (word + QLatin1Char(' ')).repeated(words) + QString::number(++number);
    };
    for (TransCond& record : records) {
        record.lRowKind = RowKindTop;
        record.lCondType = 2;
        record.oName = text(QStringLiteral("Author"));
        record.oValue = text(QStringLiteral("value"));
        record.oExtra = text(QStringLiteral("remark"));
        record.lArgType = 1;
        record.lOperator = 106;
    }
    return records;
}

template <class View>
void repaint(View& view, QImage& image)
{
    QPainter painter(&image);
    view.viewport()->render(&painter);
}

/// The most that drawing rows of so many words in each column may take of what the stock tree does.
double repaintLimit(std::int64_t words)
{
    return words == 1 ? 0.85 : 0.65;
}

// The same rows again and again. Bare: a stock tree of the same four texts a row. With many words
// texts are cut, in either. The limit stands beside what was measured.
void Repaint(benchmark::State& state)
{
    const auto records = windowOf(static_cast<int>(state.range(0)));
    const auto manager = makeManager();
    CondTreeCtrl control;
    setUp(control, *manager);
    open(control);
    control.mvLoad(records);
    PlainTree model;
    QTreeView plain;
    setUpPlain(plain, model);
    open(plain);
    model.load(records);
    QCoreApplication::processEvents();

    QImage image(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    repaint(plain, image);
    repaint(control, image);
    state.counters["x_tree_limit"] = repaintLimit(state.range(0));
    Comparison comparison(state);
    for (auto _ : state) {
        comparison.bare("tree", [&] { repaint(plain, image); });
        comparison.control([&] { repaint(control, image); });
    }
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->RangeMultiplier(10)
        ->Range(1000, 1000000)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

BENCHMARK(Load)->Apply(sizes);
BENCHMARK(Save)->Apply(sizes);
BENCHMARK(Draw)->Apply(sizes);
BENCHMARK(Repaint)->ArgName("words")->Arg(1)->Arg(9)->UseManualTime()->Unit(
    benchmark::kMillisecond);

} // namespace

} // namespace condtree::bench
