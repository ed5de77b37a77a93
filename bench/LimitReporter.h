#pragma once

#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

namespace condtree::bench {

/// Reports as the library does, and looks whether a benchmark kept to its limit: a counter "x" is
/// held to the counter "x_limit" beside it. Each that is exceeded is a line on the error stream.
class LimitReporter final : public benchmark::BenchmarkReporter {
public:
    LimitReporter();

    [[nodiscard]] bool isExceeded() const { return m_isExceeded; }

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::unique_ptr<benchmark::BenchmarkReporter> m_display;
    bool m_isExceeded = false;
};

} // namespace condtree::bench
