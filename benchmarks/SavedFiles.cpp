// How long the files of many small documents take to be on disk, beside writes that nobody waits for, on the disk that
// the current folder is on.

#include <OrvaneExportKit/platform/FileReplacement.h>

#include <benchmark/benchmark.h>

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>

#include <memory>

namespace {

using namespace Qt::Literals::StringLiterals;

const QByteArray text = QByteArray("A line of text.\n").repeated(125);

bool writePlain(const QString &folder, qint64 count)
{
    bool areWritten = true;
    for (qint64 number = 0; number < count; ++number) {
        QFile file(folder + u'/' + QString::number(number));
        areWritten =
            areWritten && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(text) == text.size();
    }
    return areWritten;
}

bool writeByKit(const QString &folder, qint64 count)
{
    platform::FileReplacement files;
    bool areWritten = true;
    for (qint64 number = 0; number < count; ++number) {
        areWritten = areWritten && files.write(folder + u'/' + QString::number(number), text);
    }
    return areWritten && files.finish();
}

bool writeEachBySaveFile(const QString &folder, qint64 count)
{
    bool areWritten = true;
    for (qint64 number = 0; number < count; ++number) {
        QSaveFile file(folder + u'/' + QString::number(number));
        areWritten = areWritten && file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                     file.write(text) == text.size() && file.commit();
    }
    return areWritten;
}

void writeFiles(benchmark::State &state, bool (*write)(const QString &, qint64))
{
    for (auto _ : state) {
        state.PauseTiming();
        auto folder = std::make_unique<QTemporaryDir>(u"files-XXXXXX"_s);
        state.ResumeTiming();
        const bool areWritten = write(folder->path(), state.range(0));
        state.PauseTiming();
        if (!areWritten) {
            state.SkipWithError("the files were not written");
        }
        folder.reset();
        state.ResumeTiming();
    }
}

BENCHMARK_CAPTURE(writeFiles, kit, writeByKit)
    ->Name("files/small documents/kit")
    ->Arg(20000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeFiles, plain, writePlain)
    ->Name("files/small documents/plain and unflushed")
    ->Arg(20000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(writeFiles, each, writeEachBySaveFile)
    ->Name("files/small documents/QSaveFile each")
    ->Arg(20000)
    ->Iterations(1)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
