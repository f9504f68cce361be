#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/run/KZOverwriteCheck.h>

#include <benchmark/benchmark.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

/// \file
/// What the sheets of an export cost: a step of the progress sheet, and the question before files are replaced.

namespace {

using namespace Qt::Literals::StringLiterals;

/// The window that the sheets belong to; there as long as the application is.
QWidget *documentWindow = nullptr;

/// A step of a run with this many steps, with nothing to do but the step.
void progressStep(benchmark::State &state)
{
    KZExportProgress progress(documentWindow, static_cast<qint32>(state.range(0)));
    progress.showSheet();
    for (int pass = 0; pass < 100; ++pass) {
        progress.setDocumentName(u"Chapter 1"_s); // until the sheet is on the screen
    }
    for (auto _ : state) {
        if (progress.currentStep() == progress.maxSteps()) {
            progress.resetProgressBar();
        }
        progress.incrementToNextStep();
    }
    progress.hideSheet();
}
BENCHMARK(progressStep)->Arg(10)->Arg(10'000)->Unit(benchmark::kMicrosecond);

/// A whole document's updates: its name, a detail, and the step.
void progressDocument(benchmark::State &state)
{
    KZExportProgress progress(documentWindow, 10'000);
    progress.showSheet();
    for (auto _ : state) {
        if (progress.currentStep() == progress.maxSteps()) {
            progress.resetProgressBar();
        }
        progress.setDocumentName(u"Chapter "_s + QString::number(progress.currentStep()));
        progress.appendToDocumentName(u" (notes)"_s);
        progress.incrementToNextStep();
    }
    progress.hideSheet();
}
BENCHMARK(progressDocument)->Unit(benchmark::kMicrosecond);

/// From the call until the sheet with this many names has been drawn.
void overwriteSheet(benchmark::State &state)
{
    QStringList names;
    for (qint64 number = 0; number < state.range(0); ++number) {
        names.append(u"%1 A Chapter.html"_s.arg(number));
    }
    for (auto _ : state) {
        KZOverwriteCheck check;
        check.setFileNames(names);
        check.setFolder(u"Export"_s);
        check.showSheetOnWindow(documentWindow);
        check.overwritePanel()->repaint();
        QCoreApplication::processEvents();
    }
}
BENCHMARK(overwriteSheet)->Arg(1)->Arg(1'000)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(800, 600);
    window.show();
    documentWindow = &window;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
