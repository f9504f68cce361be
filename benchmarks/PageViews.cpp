// How long the page preview takes to be painted, in the size that layouts give it, at both usual scales.

#include <OrvaneExportKit/controls/KZPageView.h>

#include <benchmark/benchmark.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cstdlib>
#include <string>

namespace {

void paintPage(benchmark::State &state, double scale)
{
    KZPageView view;
    view.setPaperSize({595.0, 842.0});
    view.resize(view.sizeHint());
    QImage image(view.size() * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    const auto paint = [&view, &painter] {
        view.render(&painter, {}, {}, QWidget::DrawChildren);
    };
    paint();
    constexpr int tintedPaper = 228;
    if (std::abs(qGray(image.pixel(image.rect().center())) - tintedPaper) > 1) {
        state.SkipWithError("the page was not painted");
    }
    for (auto _ : state) {
        paint();
    }
}

[[maybe_unused]] const bool registered = [] {
    for (const int percent : {100, 200}) {
        const std::string name = "windows/page preview at " + std::to_string(percent) + " %/kit";
        benchmark::RegisterBenchmark(name.c_str(), paintPage, percent / 100.0)->Unit(benchmark::kMicrosecond);
    }
    return true;
}();

} // namespace
