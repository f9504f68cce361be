// What the sheets of an export cost: a step of the progress sheet, and the question before files are replaced.

#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/run/KZOverwriteCheck.h>

#include <benchmark/benchmark.h>

#include <QtCore/QCoreApplication>
#include <QtWidgets/QTableView>
#include <QtWidgets/QWidget>

#include <string>

namespace {

using namespace Qt::Literals::StringLiterals;

/// A window that sheets belong to.
class DocumentWindow : public QWidget
{
public:
    DocumentWindow()
    {
        resize(800, 600);
        show();
    }
};

/// A step of a run with this many steps, with nothing to do but the step.
void progressStep(benchmark::State &state, qint32 steps)
{
    DocumentWindow window;
    KZExportProgress progress(&window, steps);
    progress.showSheet();
    for (int pass = 0; pass < 100; ++pass) {
        progress.setDocumentName(u"Chapter 1"_s); // until the sheet is on the screen
    }
    progress.incrementToNextStep();
    if (progress.currentStep() != 1) {
        state.SkipWithError("the step was not taken");
    }
    for (auto _ : state) {
        if (progress.currentStep() == progress.maxSteps()) {
            progress.resetProgressBar();
        }
        progress.incrementToNextStep();
    }
    progress.hideSheet();
}

/// A whole document's updates: its name, a detail, and the step.
void progressDocument(benchmark::State &state)
{
    DocumentWindow window;
    KZExportProgress progress(&window, 10'000);
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

/// From the call until the sheet with this many names has been drawn.
void overwriteSheet(benchmark::State &state, int count)
{
    QStringList names;
    for (int number = 0; number < count; ++number) {
        names.append(u"%1 A Chapter.html"_s.arg(number));
    }
    DocumentWindow window;
    for (auto _ : state) {
        KZOverwriteCheck check;
        check.setFileNames(names);
        check.setFolder(u"Export"_s);
        check.showSheetOnWindow(&window);
        check.overwritePanel()->repaint();
        QCoreApplication::processEvents();
        if (check.overwritePanel()->findChild<QTableView *>()->model()->rowCount() != count) {
            state.SkipWithError("the sheet does not show the names");
        }
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const qint32 steps : {10, 10'000}) {
        const std::string name = "windows/progress step of " + std::to_string(steps) + "/kit";
        benchmark::RegisterBenchmark(name.c_str(), progressStep, steps)->Unit(benchmark::kMicrosecond);
    }
    benchmark::RegisterBenchmark("windows/progress of a document/kit", progressDocument)->Unit(benchmark::kMicrosecond);
    for (const int count : {1, 1'000}) {
        const std::string name = "windows/overwrite sheet with " + std::to_string(count) + " names/kit";
        benchmark::RegisterBenchmark(name.c_str(), overwriteSheet, count)->Unit(benchmark::kMillisecond);
    }
    return true;
}();

} // namespace
