#include <condtree/platform/Automation.h>
#include <condtree/values/DateStyle.h>

#include <benchmark/benchmark.h>

#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

namespace condtree::bench {

namespace {

struct Style {
    std::uint32_t code;
    /// The same layout in the toolkit's terms.
    const char16_t* layout;
};
constexpr Style kStyles[]{{1, u"MM/dd/yy"},
                          {12, u"yyMMdd"},
                          {103, u"dd/MM/yyyy"},
                          {120, u"yyyy-MM-dd"},
                          {121, u"yyyy-MM-dd HH:mm:ss.000"},
                          {100, u"MMM dd yyyy hh:mm AP"},
                          {109, u"MMM dd yyyy hh:mm:ss:000 AP"},
                          {113, u"dd MMMM yyyy HH:mm:ss:000"}};

constexpr std::size_t kDates = 1000;

/// The same moments to both sides.
struct Dates {
    std::vector<double> ours;
    std::vector<QDateTime> theirs;
};

// In the mornings, where the toolkit's hours of twelve are ours.
Dates makeDates()
{
    std::mt19937 numbers{20240305};
    std::uniform_int_distribution<int> days{0, 36524};
    std::uniform_int_distribution<int> seconds{3600, 43199};
    Dates dates;
    for (std::size_t i = 0; i < kDates; ++i) {
        const int day = days(numbers);
        const int second = seconds(numbers);
        dates.ours.push_back(18264 + day + second / 86400.0); // from 1950 on
        dates.theirs.emplace_back(QDate(1950, 1, 1).addDays(day), QTime(0, 0).addSecs(second),
                                  Qt::UTC);
    }
    return dates;
}

std::vector<CString> textsOf(const Dates& dates, std::uint32_t style)
{
    std::vector<CString> texts(dates.ours.size());
    for (std::size_t i = 0; i < texts.size(); ++i)
        static_cast<void>(FormatDateByStyle(texts[i], dates.ours[i], style));
    return texts;
}

/// The same style in May alone, where its long names of months are the toolkit's and read back.
Dates inMay(Dates dates)
{
    for (std::size_t i = 0; i < dates.ours.size(); ++i) {
        QDateTime& moment = dates.theirs[i];
        const QDate date = moment.date();
        const QDate may(date.year(), 5, date.day());
        dates.ours[i] += static_cast<double>(date.daysTo(may));
        moment.setDate(may);
    }
    return dates;
}

Dates datesOf(std::uint32_t style)
{
    return style == 113 ? inMay(makeDates()) : makeDates();
}

/// Calls with each of count indices; the nanoseconds that one call takes.
template <class Call>
double nanosecondsOf(std::size_t count, const Call& call)
{
    const auto start = std::chrono::steady_clock::now();
    for (std::size_t i = 0; i < count; ++i)
        call(i);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / double(count);
}

double medianOf(std::vector<double>& times)
{
    const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
    std::ranges::nth_element(times, middle);
    return *middle;
}

/// Runs a thousand of our calls and of the toolkit's in turns, and reports what one of each takes,
/// by the median turn: what else the machine does falls into some of them only.
template <class Ours, class Theirs>
void compare(benchmark::State& state, const Ours& ours, const Theirs& theirs)
{
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (auto _ : state) {
        theirTimes.push_back(nanosecondsOf(kDates, theirs));
        ourTimes.push_back(nanosecondsOf(kDates, ours));
        state.SetIterationTime(ourTimes.back() * double(kDates) * 1e-9);
    }
    const double ourTime = medianOf(ourTimes);
    const double theirTime = medianOf(theirTimes);
    state.counters["ns"] = ourTime;
    state.counters["qt_ns"] = theirTime;
    state.counters["x_qt"] = ourTime / theirTime;
}

const Style& styleOf(const benchmark::State& state)
{
    return *std::ranges::find(kStyles, std::uint32_t(state.range(0)), &Style::code);
}

// Bare: the toolkit with the same layout, its parts of a date ready.
void WriteDate(benchmark::State& state)
{
    const Style style = styleOf(state);
    const Dates dates = datesOf(style.code);
    const QString layout = QString::fromUtf16(style.layout);
    const std::vector<CString> texts = textsOf(dates, style.code);
    if (dates.theirs[0].toString(layout) != texts[0])
        state.SkipWithError("the toolkit writes something else");
    compare(
        state,
        [&](std::size_t i) {
            CString text;
            benchmark::DoNotOptimize(FormatDateByStyle(text, dates.ours[i], style.code));
            benchmark::DoNotOptimize(text.data());
        },
        [&](std::size_t i) {
            const QString text = dates.theirs[i].toString(layout);
            benchmark::DoNotOptimize(text.data());
        });
}

// Bare: the toolkit with the same layout.
void ReadDate(benchmark::State& state)
{
    const Style style = styleOf(state);
    const QString layout = QString::fromUtf16(style.layout);
    const std::vector<CString> texts = textsOf(datesOf(style.code), style.code);
    if (!QDateTime::fromString(texts[0], layout).isValid())
        state.SkipWithError("the toolkit does not read it");
    compare(
        state,
        [&](std::size_t i) {
            double date = 0;
            if (!ParseDateByStyle(texts[i], date, style.code))
                state.SkipWithError("not read");
            benchmark::DoNotOptimize(date);
        },
        [&](std::size_t i) { benchmark::DoNotOptimize(QDateTime::fromString(texts[i], layout)); });
}

enum LocaleForm { ShortDate, LongDate };

// Bare: the locale's own reader of the form that it wrote.
void ReadDateByLocale(benchmark::State& state)
{
    const QLocale locale(QLocale::German, QLocale::Germany);
    const QLocale::FormatType form =
        state.range(0) == ShortDate ? QLocale::ShortFormat : QLocale::LongFormat;
    std::vector<CString> texts;
    for (const QDateTime& moment : makeDates().theirs)
        texts.push_back(locale.toString(moment.date(), form));
    compare(
        state,
        [&](std::size_t i) {
            double date = 0;
            if (!ParseDateByLocale(texts[i], date, locale))
                state.SkipWithError("not read");
            benchmark::DoNotOptimize(date);
        },
        [&](std::size_t i) { benchmark::DoNotOptimize(locale.toDate(texts[i], form)); });
}

void styles(benchmark::internal::Benchmark* benchmark)
{
    for (const Style& style : kStyles)
        benchmark->Arg(style.code);
    benchmark->Iterations(200)->UseManualTime()->Unit(benchmark::kMicrosecond);
}

BENCHMARK(WriteDate)->Apply(styles);
BENCHMARK(ReadDate)->Apply(styles);
BENCHMARK(ReadDateByLocale)
    ->Arg(ShortDate)
    ->Arg(LongDate)
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace condtree::bench
