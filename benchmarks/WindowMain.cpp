// The program of the benchmarks that need windows; these are on no screen unless QT_QPA_PLATFORM says so.

#include <benchmark/benchmark.h>

#include <QtWidgets/QApplication>

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
