// What the operations consist of at least: reading the text, finding what is wanted, and moving pieces together.
// Names are limit/WHAT/UNITS.

#include "Texts.h"
#include "Timing.h"

#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/LiteralSearch.h>

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

/// Finds every quotation mark, and does nothing there.
template <platform::Expected expected>
void visitMarks(QString &text)
{
    std::size_t sum = 0;
    platform::forEachUnit<expected>(platform::units(text), 0, platform::OneOf<u'"'>(),
                                    [&](std::size_t at) { sum += at; });
    benchmark::DoNotOptimize(sum);
}

/// Finds every empty line, and does nothing there.
template <platform::Expected expected>
void visitEmptyLines(QString &text)
{
    std::size_t sum = 0;
    const std::u16string_view units = platform::units(text);
    platform::forEachLiteral<expected>(units, u"\n\n", 0, units.size(), [&](std::size_t at) { sum += at; });
    benchmark::DoNotOptimize(sum);
}

/// Goes from the end of one line to that of the next.
void visitLineEnds(QString &text)
{
    const std::u16string_view units = platform::units(text);
    std::size_t at = 0;
    while (at < units.size()) {
        at = platform::lineEnd(units, at);
    }
    benchmark::DoNotOptimize(at);
}

/// Goes from one space to the last one of the next 72 units.
void visitLastSpaces(QString &text)
{
    const std::u16string_view units = platform::units(text);
    std::size_t at = 0;
    while (at + 72 < units.size()) {
        at = std::max(at + 1, platform::findBehindLastUnit(units, at, at + 72, platform::OneOf<u' '>()));
    }
    benchmark::DoNotOptimize(at);
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

/// Measures on another text each time: a processor learns by heart what comes next in one that it has met before. All
/// of them come to lie in the same storage, so that a memcpy is as warm as of a text that stays.
void add(const QString &name, const std::function<void(QString &)> &work)
{
    const auto run = [work](benchmark::State &state) {
        QString text;
        QString own;
        timing::Measurements measurements;
        unsigned seed = 0;
        for (auto _ : state) {
            timing::copyWarm(texts::proseFrom(++seed, timing::fullSize), text);
            const double memcpySeconds = timing::copyWarm(text, own);
            measurements.time(state, memcpySeconds, [&] { work(own); });
        }
        measurements.report(state, timing::fullSize);
    };
    timing::add(u"limit/%1/%2"_s.arg(name).arg(timing::fullSize), 31, benchmark::kMicrosecond, run);
}

[[maybe_unused]] const bool registered = [] {
    add(u"searching in vain for one unit with QString::indexOf"_s, searchInVain);
    add(u"searching in vain for one unit, as the kit does"_s,
        std::bind_front(searchPieces, static_cast<std::size_t>(timing::fullSize)));
    add(u"the same, 256 times in the first 16 Ki units"_s, std::bind_front(searchPieces, std::size_t{1} << 14));
    add(u"finding 16,000 quotation marks"_s, visitMarks<platform::Expected::Often>);
    add(u"the same, stopping at each"_s, visitMarks<platform::Expected::Rarely>);
    add(u"finding 11,000 empty lines"_s, visitEmptyLines<platform::Expected::Often>);
    add(u"the same, stopping at each of them"_s, visitEmptyLines<platform::Expected::Rarely>);
    add(u"going from line end to line end"_s, visitLineEnds);
    add(u"going to the last space of 72 units, 60,000 times"_s, visitLastSpaces);
    add(u"moving the text, one piece"_s, std::bind_front(movePieces, std::size_t{1}));
    add(u"moving the text, 4700 pieces"_s, std::bind_front(movePieces, std::size_t{4'700}));
    add(u"moving the text, 45000 pieces"_s, std::bind_front(movePieces, std::size_t{45'000}));
    return true;
}();

} // namespace
