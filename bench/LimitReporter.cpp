#include "LimitReporter.h"

#include <cmath>
#include <cstdio>
#include <string>

namespace condtree::bench {

namespace {

const std::string kSuffix = "_limit";

/// Whether any counter of a run is above its limit, or not there; each that is gets a line.
bool tellExceeded(const benchmark::BenchmarkReporter::Run& run)
{
    bool isExceeded = false;
    for (const auto& [name, limit] : run.counters) {
        if (!name.ends_with(kSuffix))
            continue;
        const std::string held = name.substr(0, name.size() - kSuffix.size());
        const auto found = run.counters.find(held);
        const double value =
            found == run.counters.end() ? std::nan("") : double{found->second.value};
        if (value <= limit.value) // nothing that is no number keeps a limit
            continue;
        isExceeded = true;
        std::fprintf(stderr, "condtree-bench: %s: %s is %.2f; the limit is %.2f\n",
                     run.benchmark_name().c_str(), held.c_str(), value, limit.value);
    }
    return isExceeded;
}

} // namespace

LimitReporter::LimitReporter()
    : m_display(benchmark::CreateDefaultDisplayReporter())
{
}

bool LimitReporter::ReportContext(const Context& context)
{
    m_display->SetOutputStream(&GetOutputStream());
    m_display->SetErrorStream(&GetErrorStream());
    return m_display->ReportContext(context);
}

void LimitReporter::ReportRuns(const std::vector<Run>& runs)
{
    m_display->ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration && !run.error_occurred && tellExceeded(run))
            m_isExceeded = true;
    }
}

void LimitReporter::Finalize()
{
    m_display->Finalize();
}

} // namespace condtree::bench
