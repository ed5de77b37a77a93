#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>

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
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
