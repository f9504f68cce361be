// What the operations consist of at least: reading the text, writing it, and moving its pieces together. Names are
// limit/WHAT/UNITS.

#include "Texts.h"
#include "Timing.h"

#include <OrvaneExportKit/platform/UnitSearch.h>

#include <cstring>
#include <functional>

namespace {

using namespace Qt::Literals::StringLiterals;

/// Qt's search for a unit that is not there, with the widest instructions that it has.
void searchInVain(QString &text)
{
    benchmark::DoNotOptimize(text.indexOf(u'\x01'));
}

/// The kit's search for a unit that is not there, through the whole text, or as often through a piece of it that stays
/// in the cache.
void searchPieces(std::size_t pieceLength, QString &text)
{
    const std::u16string_view units = platform::units(text);
    for (std::size_t at = 0; at < units.size(); at += pieceLength) {
        benchmark::DoNotOptimize(platform::findUnit(units.substr(0, pieceLength), 0, platform::OneOf<u'\x01'>()));
    }
}

/// Writes every unit where it stands.
void rewriteAll(QString &text)
{
    auto *const units = reinterpret_cast<char16_t *>(text.data());
    for (qsizetype index = 0; index < text.size(); ++index) {
        units[index] = static_cast<char16_t>(units[index] ^ 1);
    }
}

/// Moves the text in `count` pieces, each four units closer to the start than the one before it.
void movePieces(std::size_t count, QString &text)
{
    auto *target = reinterpret_cast<char16_t *>(text.data());
    const char16_t *source = target;
    const std::size_t piece = static_cast<std::size_t>(text.size()) / count;
    for (std::size_t index = 0; index < count; ++index) {
        std::memmove(target, source + 4, (piece - 4) * sizeof(char16_t));
        source += piece;
        target += piece - 4;
    }
}

void add(const QString &name, const std::function<void(QString &)> &work)
{
    const auto run = [work](benchmark::State &state) {
        const QString text = texts::prose(timing::fullSize);
        QString own;
        timing::Measurements measurements;
        for (auto _ : state) {
            const double memcpySeconds = timing::copyWarm(text, own);
            measurements.time(state, memcpySeconds, [&] { work(own); });
        }
        measurements.report(state, timing::fullSize);
    };
    benchmark::RegisterBenchmark(u"limit/%1/%2"_s.arg(name).arg(timing::fullSize).toUtf8().constData(), run)
        ->Iterations(31)
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

[[maybe_unused]] const bool registered = [] {
    add(u"searching in vain for one unit with QString::indexOf"_s, searchInVain);
    add(u"searching in vain for one unit, as the kit does"_s,
        std::bind_front(searchPieces, static_cast<std::size_t>(timing::fullSize)));
    add(u"the same, 256 times in the first 16 Ki units"_s, std::bind_front(searchPieces, std::size_t{1} << 14));
    add(u"writing each unit in its place"_s, rewriteAll);
    add(u"moving the text, one piece"_s, std::bind_front(movePieces, std::size_t{1}));
    add(u"moving the text, 4700 pieces"_s, std::bind_front(movePieces, std::size_t{4'700}));
    add(u"moving the text, 45000 pieces"_s, std::bind_front(movePieces, std::size_t{45'000}));
    return true;
}();

} // namespace
