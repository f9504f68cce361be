// How long a token field with a thousand tokens takes from a key press to the list of those that begin with what has
// been typed, and how much of this is the question to the delegate.

#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <benchmark/benchmark.h>

#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListView>
#include <QtWidgets/QTextEdit>

namespace {

using namespace Qt::Literals::StringLiterals;

constexpr int many = 1'000;

QMap<QString, QString> tokens()
{
    QMap<QString, QString> displayStrings;
    for (int number = 0; number < many; ++number) {
        displayStrings.insert(u"<%1>"_s.arg(number), u"Name of Part %1"_s.arg(number));
    }
    return displayStrings;
}

void askDelegate(benchmark::State &state)
{
    const KZTokenFieldDelegate delegate(tokens());
    const auto ask = [&delegate] {
        qint32 highlighted = -1;
        return delegate.completionsForSubstring(nullptr, u"n"_s, 0, &highlighted);
    };
    if (ask().size() != many) {
        state.SkipWithError("the delegate does not know all tokens");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(ask());
    }
}

/// Types the letter that all tokens begin with, sees the list drawn, and takes the letter back untimed.
void complete(benchmark::State &state)
{
    KZTokenFieldDelegate delegate(tokens());
    windowing::TokenField field;
    field.setDelegate(&delegate);
    field.show();
    auto *editor = field.findChild<QTextEdit *>();
    const auto *list = field.findChild<QListView *>();
    const auto press = [editor](Qt::Key key, const QString &text) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QApplication::sendEvent(editor, &event);
        QApplication::processEvents();
    };
    for (auto _ : state) {
        press(Qt::Key_N, u"n"_s);
        state.PauseTiming();
        if (!list->isVisible() || list->model()->rowCount() != many) {
            state.SkipWithError("the list does not offer the tokens");
        }
        field.setValue({});
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

[[maybe_unused]] const bool registered = [] {
    benchmark::RegisterBenchmark("windows/complete among 1000 tokens/kit", complete)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("windows/complete among 1000 tokens/delegate alone", askDelegate)
        ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
