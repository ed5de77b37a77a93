#include "LimitReporter.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdlib>

int main(int argc, char** argv)
{
    // The same everywhere: no window system, and no settings of the user's.
    const QTemporaryDir settings;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("CONDTREE_REGISTRY_DIR", settings.path().toLocal8Bit());

    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    condtree::bench::LimitReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();
    return reporter.isExceeded() ? EXIT_FAILURE : EXIT_SUCCESS;
}
