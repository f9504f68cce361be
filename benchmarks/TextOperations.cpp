// How the time of each text operation grows with the text, from 64 Ki to 4 Mi units, beside one copy of the text.
// The columns BigO and RMS at the end of each group say how well a straight line fits.

#include <OrvaneExportKit/OrvaneExportKit.h>

#include <benchmark/benchmark.h>

#include <QtCore/QStringList>

#include <cstring>
#include <random>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;

namespace Plain = KZMutableStringExportAdditions;
namespace Attributed = KZMutableAttributedStringExportAdditions;
namespace Questions = KZStringExportAdditions;

/// Prose with headings, dialogue, apostrophes, dashes, ellipses, tags, addresses, blank lines and leading tabs.
QString prose(qsizetype length)
{
    const QStringList pieces{u"the lamp was lit "_s,         u"and nobody spoke, "_s,
                             u"\"It's late,\" she said. "_s, u"he waited... "_s,
                             u"the tide -- as ever -- "_s,   u"a **very** old book "_s,
                             u"some //quiet// hours "_s,     u"\n\n\n"_s,
                             u"\n\tIndented, it began "_s,   u"\n# A heading of its own\n\n"_s,
                             u"see https://example.org/a "_s};
    std::mt19937 random(20260101);
    QString text;
    text.reserve(length + 64);
    while (text.size() < length) {
        text += pieces[static_cast<qsizetype>(random() % static_cast<std::size_t>(pieces.size()))];
    }
    text.truncate(length);
    return text;
}

QString repeated(const QString &piece, qsizetype length)
{
    return piece.repeated(length / piece.size() + 1).left(length);
}

/// One range of four units every `distance` units.
RangeList everyRange(qsizetype length, std::size_t distance)
{
    RangeList ranges;
    for (std::size_t at = 0; at + 4 <= static_cast<std::size_t>(length); at += distance) {
        ranges.push_back({at, 4});
    }
    return ranges;
}

/// Ranges that each reach over several of those behind them.
RangeList overlappingRanges(qsizetype length)
{
    RangeList ranges = everyRange(length / 4, 8);
    for (Range &range : ranges) {
        range.length = 20;
    }
    return ranges;
}

AttributedString styledProse(qsizetype length)
{
    AttributedString text(prose(length));
    Attributed::addAttributes(text, {{u"style"_s, u"strong"_s}}, everyRange(length, 40));
    return text;
}

/// Times `operation` on fresh copies of a text; making the copy is not counted.
template <typename Text, typename Operation>
void run(benchmark::State &state, const Text &text, Operation operation)
{
    for (auto _ : state) {
        state.PauseTiming();
        Text copy = text;
        if constexpr (std::is_same_v<Text, QString>) {
            copy.detach();
        }
        state.ResumeTiming();
        operation(copy);
        benchmark::DoNotOptimize(copy);
    }
    state.SetComplexityN(state.range(0));
    state.SetBytesProcessed(state.iterations() * state.range(0) * qsizetype(sizeof(char16_t)));
}

using Sizes = benchmark::internal::Benchmark;

void sizes(Sizes *benchmark)
{
    benchmark->RangeMultiplier(4)->Range(1 << 16, 1 << 22)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);
}

template <typename Operation>
void add(const char *name, Operation operation)
{
    sizes(benchmark::RegisterBenchmark(name, operation));
}

void addCopy()
{
    add("memcpy", [](benchmark::State &state) {
        QString target(state.range(0), u' ');
        run(state, prose(state.range(0)), [&target](const QString &text) {
            std::memcpy(target.data(), text.constData(), static_cast<std::size_t>(text.size()) * sizeof(char16_t));
            benchmark::ClobberMemory();
        });
    });
}

/// An operation on prose.
template <typename Operation>
void addPlain(const char *name, Operation operation)
{
    add(name, [operation](benchmark::State &state) { run(state, prose(state.range(0)), operation); });
}

/// An operation on a text that is made to be slow.
template <typename Operation>
void addHostile(const char *name, const QString &piece, Operation operation)
{
    add(name, [=](benchmark::State &state) { run(state, repeated(piece, state.range(0)), operation); });
}

template <typename Operation>
void addAttributed(const char *name, Operation operation)
{
    add(name, [operation](benchmark::State &state) { run(state, styledProse(state.range(0)), operation); });
}

void addRangeLists()
{
    addPlain("deleteCharactersInRanges",
             [](QString &text) { Plain::deleteCharactersInRanges(text, everyRange(text.size(), 90)); });
    addPlain("deleteCharactersInRanges/overlapping",
             [](QString &text) { Plain::deleteCharactersInRanges(text, overlappingRanges(text.size())); });
    addPlain("encloseRanges", [](QString &text) { Plain::encloseRanges(text, everyRange(text.size(), 90), u"**"); });
    addPlain("encloseRanges/overlapping",
             [](QString &text) { Plain::encloseRanges(text, overlappingRanges(text.size()), u"**"); });
    addAttributed("deleteCharactersInRanges/attributed", [](AttributedString &text) {
        Attributed::deleteCharactersInRanges(text, everyRange(text.string().size(), 90));
    });
    addAttributed("addAttributes", [](AttributedString &text) {
        Attributed::addAttributes(text, {{u"colour"_s, u"red"_s}}, everyRange(text.string().size(), 60));
    });
    addAttributed("rangesForAttribute", [](AttributedString &text) {
        benchmark::DoNotOptimize(KZAttributedStringExportAdditions::rangesForAttribute(text, u"style"_s, u"strong"_s));
    });
}

void addTaggedSpans()
{
    addPlain("lineRangesForLevelString",
             [](QString &text) { benchmark::DoNotOptimize(Questions::lineRangesForLevelString(text, u"#")); });
    addPlain("rangesForStartTag",
             [](QString &text) { benchmark::DoNotOptimize(Questions::rangesForStartTag(text, u"//", u"//")); });
    addPlain("deleteLevelMark", [](QString &text) { Plain::deleteLevelMark(text, u"#"); });
    addAttributed("deleteParagraphMark", [](AttributedString &text) {
        Attributed::deleteParagraphMark(text, u"h", everyRange(text.string().size(), 40));
    });
    addAttributed("deleteParagraphMark/overlapping", [](AttributedString &text) {
        Attributed::deleteParagraphMark(text, u"h", overlappingRanges(text.string().size()));
    });
}

void addLineLayout()
{
    addPlain("convertStartTabsToSpace", [](QString &text) { Plain::convertStartTabsToSpace(text, 4); });
    addPlain("deleteEmptyLines", [](QString &text) { Plain::deleteEmptyLines(text); });
    const auto wrap = [](QString &text) {
        Plain::setMaxLineLength(text, 72);
    };
    addPlain("setMaxLineLength", wrap);
    addHostile("setMaxLineLength/oneLine", u"some words "_s, wrap);
    addHostile("setMaxLineLength/oneWord", u"word"_s, wrap);
}

void addConversions()
{
    addHostile("stringWithConvertedEscSequences", uR"(a line\n and \\t text)"_s,
               [](QString &text) { benchmark::DoNotOptimize(Questions::stringWithConvertedEscSequences(text)); });
    addPlain("stringWithConvertedStringsFromArray", [](QString &text) {
        benchmark::DoNotOptimize(Questions::stringWithConvertedStringsFromArray(
            text, {u"&"_s, u"<"_s, u"\""_s, u"'"_s}, {u"&amp;"_s, u"&lt;"_s, u"&quot;"_s, u"&#39;"_s}));
    });
    const auto quote = [](QString &text) {
        Plain::convertQuotationsToType(text, 0);
    };
    addPlain("convertQuotationsToType", quote);
    addHostile("convertQuotationsToType/blanksBetween", u"\"                    "_s, quote);
    addPlain("convertEllipses", [](QString &text) { Plain::convertEllipses(text); });
    addPlain("correctApostrophes", [](QString &text) { Plain::correctApostrophes(text); });
    addPlain("correctDashes", [](QString &text) { Plain::correctDashes(text); });
    addHostile("correctDashes/onlyHyphens", u"-"_s, [](QString &text) { Plain::correctDashes(text); });
    addAttributed("correctApostrophes/attributed",
                  [](AttributedString &text) { Attributed::correctApostrophes(text); });
}

[[maybe_unused]] const bool registered = [] {
    addCopy();
    addRangeLists();
    addTaggedSpans();
    addLineLayout();
    addConversions();
    return true;
}();

} // namespace
