// Each operation on plain text beside the plain way on QString and the best that other libraries offer, as multiples of
// one warm memcpy of the same text. Names are text/OPERATION/UNITS/WAY. What a way makes of the text is compared with
// the step-by-step version before it is timed.

#include "OtherWays.h"
#include "PlainWays.h"
#include "Texts.h"
#include "Timing.h"

#include <tests/reference/EscapeSequences.h>
#include <tests/reference/LineLayout.h>
#include <tests/reference/QuotationMarks.h>
#include <tests/reference/RangeLists.h>
#include <tests/reference/TaggedSpans.h>
#include <tests/reference/Typography.h>

#include <benchmark/benchmark.h>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::RangeList;

namespace Plain = KZMutableStringExportAdditions;
namespace Questions = KZStringExportAdditions;

constexpr qsizetype fullSize = timing::fullSize;
constexpr qsizetype checkedSize = 20'000;

/// What changes a text, at given ranges if it takes them, or finds ranges in it.
using Way = std::function<RangeList(QString &, const RangeList &)>;
using ReferenceWay = std::function<RangeList(std::u16string &, const RangeList &)>;
using TextMaker = std::function<QString(qsizetype)>;
using RangeMaker = std::function<RangeList(qsizetype)>;

/// The function as a way, whichever of the three forms it has.
template <typename Function>
Way way(Function function)
{
    return [function](QString &text, const RangeList &ranges) {
        return timing::called(function, text, ranges);
    };
}

template <typename Function>
ReferenceWay referenceWay(Function function)
{
    return [function](std::u16string &text, const RangeList &ranges) {
        return timing::called(function, text, ranges);
    };
}

RangeList noRanges(qsizetype)
{
    return {};
}

class Operation
{
public:
    template <typename Reference>
    Operation(QString name, TextMaker text, Reference reference, RangeMaker ranges = noRanges)
        : m_name(std::move(name)),
          m_text(std::move(text)),
          m_ranges(std::move(ranges)),
          m_reference(referenceWay(reference))
    {
    }

    /// The kit's way at four sizes, to show the growth.
    template <typename Function>
    Operation &kit(Function function)
    {
        for (qsizetype size = fullSize / 64; size <= fullSize; size *= 4) {
            add(u"kit"_s, size, 31, way(function));
        }
        return *this;
    }

    template <typename Function>
    Operation &peer(const QString &name, Function function, int iterations = 9)
    {
        add(name, fullSize, iterations, way(function));
        return *this;
    }

private:
    void add(const QString &wayName, qsizetype size, int iterations, const Way &operation)
    {
        const QString name = u"text/%1/%2/%3"_s.arg(m_name).arg(size).arg(wayName);
        const auto run = [size, operation, self = *this](benchmark::State &state) {
            if (!self.isRight(operation)) {
                state.SkipWithError("the result is wrong");
                return;
            }
            const QString text = self.m_text(size);
            const RangeList ranges = self.m_ranges(text.size());
            QString own;
            RangeList found;
            timing::Measurements measurements;
            for (auto _ : state) {
                const double memcpySeconds = timing::copyWarm(text, own);
                measurements.time(state, memcpySeconds, [&] { found = operation(own, ranges); });
            }
            measurements.report(state, size);
        };
        timing::add(name, iterations, benchmark::kMicrosecond, run);
    }

    bool isRight(const Way &operation) const
    {
        const QString text = m_text(checkedSize);
        const RangeList ranges = m_ranges(text.size());
        QString changed = text;
        std::u16string expected = text.toStdU16String();
        return operation(changed, ranges) == m_reference(expected, ranges) && changed.toStdU16String() == expected;
    }

    QString m_name;
    TextMaker m_text;
    RangeMaker m_ranges;
    ReferenceWay m_reference;
};

std::vector<std::u16string> strings(const QStringList &list)
{
    std::vector<std::u16string> result;
    for (const QString &string : list) {
        result.push_back(string.toStdU16String());
    }
    return result;
}

RangeMaker spreadRanges(std::size_t count)
{
    return [count](qsizetype length) {
        return texts::spread(length, timing::scaled(count, length));
    };
}

void addTypography()
{
    Operation(u"convertEllipses"_s, texts::prose, reference::convertEllipses<std::u16string>)
        .kit(Plain::convertEllipses)
        .peer(u"plain"_s, [](QString &text) { text.replace(u"..."_s, u"\u2026"_s); })
        .peer(u"PCRE2"_s, [](QString &text) { other::replaceMatches(text, u"\\.\\.\\."_s, u"\u2026"_s); })
        .peer(u"ICU"_s, [](QString &text) { other::replaceWithIcu(text, u"..."_s, u"\u2026"_s); });
    Operation(u"correctApostrophes"_s, texts::prose, reference::correctApostrophes<std::u16string>)
        .kit(Plain::correctApostrophes)
        .peer(u"plain"_s, [](QString &text) { text.replace(u'\'', u'\u2019'); })
        .peer(u"PCRE2"_s, [](QString &text) { other::replaceMatches(text, u"'"_s, u"\u2019"_s); });
    Operation(u"correctDashes"_s, texts::prose, reference::correctDashes<std::u16string>)
        .kit(Plain::correctDashes)
        .peer(u"plain"_s, [](QString &text) { text.replace(u"--"_s, u"\u2013"_s); })
        .peer(u"PCRE2"_s, [](QString &text) { other::replaceMatches(text, u"--"_s, u"\u2013"_s); })
        .peer(u"ICU"_s, [](QString &text) { other::replaceWithIcu(text, u"--"_s, u"\u2013"_s); });
    Operation(u"correctDashes, only hyphens"_s, std::bind_front(texts::repeated, u"-"_s),
              reference::correctDashes<std::u16string>)
        .kit(Plain::correctDashes);
    const auto referenceQuotes = [](std::u16string &text) {
        reference::convertQuotationsToType(text, 0);
    };
    const auto quotes = [](QString &text) {
        Plain::convertQuotationsToType(text, 0);
    };
    Operation(u"convertQuotationsToType"_s, texts::prose, referenceQuotes)
        .kit(quotes)
        .peer(u"plain"_s, [](QString &text) { plain::convertQuotations(text, u'\u201E', u'\u201C'); })
        .peer(u"by hand"_s, [](QString &text) { other::convertQuotations(text, u'\u201E', u'\u201C'); });
    Operation(u"convertQuotationsToType, only quotes"_s, std::bind_front(texts::repeated, u"\""_s), referenceQuotes)
        .kit(quotes);
    Operation(u"convertQuotationsToType, white space between quotes"_s,
              std::bind_front(texts::repeated, u"\"                                        "_s), referenceQuotes)
        .kit(quotes);
}

void addLineLayout()
{
    const auto referenceWrap = [](std::u16string &text) {
        reference::setMaxLineLength(text, 72);
    };
    const auto wrap = [](QString &text) {
        Plain::setMaxLineLength(text, 72);
    };
    const auto plainWrap = [](QString &text) {
        plain::setMaxLineLength(text, 72);
    };
    const auto byHand = [](QString &text) {
        other::breakLines(text, 72);
    };
    Operation(u"setMaxLineLength"_s, texts::prose, referenceWrap)
        .kit(wrap)
        .peer(u"plain"_s, plainWrap, 3)
        .peer(u"by hand"_s, byHand);
    Operation(
        u"setMaxLineLength, one line"_s, [](qsizetype length) { return texts::prose(length).replace(u'\n', u' '); },
        referenceWrap)
        .kit(wrap)
        .peer(u"by hand"_s, byHand);
    Operation(u"setMaxLineLength, one word"_s, std::bind_front(texts::repeated, u"word"_s), referenceWrap)
        .kit(wrap)
        .peer(u"by hand"_s, byHand);
    const auto referenceTabs = [](std::u16string &text) {
        reference::convertStartTabsToSpace(text, 4);
    };
    const auto tabs = [](QString &text) {
        Plain::convertStartTabsToSpace(text, 4);
    };
    Operation(u"convertStartTabsToSpace"_s, texts::prose, referenceTabs)
        .kit(tabs)
        .peer(
            u"plain"_s, [](QString &text) { plain::convertStartTabsToSpace(text, 4); }, 3)
        .peer(u"by hand"_s, [](QString &text) { other::convertStartTabs(text, 4); });
    Operation(u"convertStartTabsToSpace, only tabs"_s, std::bind_front(texts::repeated, u"\t"_s), referenceTabs)
        .kit(tabs);
    const auto referenceLines = [](std::u16string &text) {
        reference::deleteEmptyLines(text);
    };
    Operation(u"deleteEmptyLines"_s, texts::prose, referenceLines)
        .kit(Plain::deleteEmptyLines)
        .peer(u"plain"_s, plain::deleteEmptyLines, 3)
        .peer(u"PCRE2"_s, [](QString &text) { other::replaceMatches(text, u"\\n\\n+"_s, u"\n"_s); });
    Operation(u"deleteEmptyLines, only line feeds"_s, std::bind_front(texts::repeated, u"\n"_s), referenceLines)
        .kit(Plain::deleteEmptyLines);
}

void addMarks()
{
    for (const QString &tag : {u"**"_s, u"//"_s}) {
        const QString pattern = tag == u"**" ? u"\\*\\*"_s : u"(?<!:)//"_s;
        Operation(u"rangesForStartTag "_s + QString(tag).replace(u'/', u'\\'), texts::prose,
                  [tag](std::u16string &text) {
                      return reference::rangesForStartTag(text, tag.toStdU16String(), tag.toStdU16String());
                  })
            .kit([tag](QString &text) { return Questions::rangesForStartTag(text, tag, tag); })
            .peer(u"plain"_s, [tag](QString &text) { return plain::rangesForTag(text, tag); })
            .peer(u"PCRE2"_s, [pattern](QString &text) {
                RangeList found = other::matches(text, pattern);
                found.resize(found.size() - found.size() % 2);
                return found;
            });
    }
    Operation(u"lineRangesForLevelString #"_s, texts::prose,
              [](std::u16string &text) { return reference::lineRangesForLevelString(text, u"#"); })
        .kit([](QString &text) { return Questions::lineRangesForLevelString(text, u"#"); })
        .peer(u"plain"_s, [](QString &text) { return plain::lineRangesForLevelString(text, u"#"_s); })
        .peer(u"PCRE2"_s, [](QString &text) { return other::matches(text, u"(?:(?<=\\n)|^)#[^\\n]*\\n?"_s); });
    Operation(u"deleteLevelMark #"_s, texts::prose, [](std::u16string &text) {
        reference::deleteLevelMark(text, u"#");
    }).kit([](QString &text) { Plain::deleteLevelMark(text, u"#"); });
}

void addRangeLists()
{
    for (const std::size_t count : {std::size_t{4'700}, std::size_t{45'000}}) {
        Operation(u"deleteCharactersInRanges, %1 ranges"_s.arg(count), texts::prose,
                  reference::deleteCharactersInRanges<std::u16string>, spreadRanges(count))
            .kit([](QString &text, const RangeList &ranges) { Plain::deleteCharactersInRanges(text, ranges); })
            .peer(u"plain"_s, plain::deleteRanges, count < 10'000 ? 3 : 1)
            .peer(u"by hand"_s, [](QString &text, const RangeList &ranges) { other::deleteRanges(text, ranges); });
    }
    const auto reference = [](std::u16string &text, const RangeList &ranges) {
        reference::encloseRanges(text, ranges, u"**");
    };
    const auto enclose = [](QString &text, const RangeList &ranges) {
        Plain::encloseRanges(text, ranges, u"**");
    };
    Operation(u"encloseRanges, 4700 ranges"_s, texts::prose, reference, spreadRanges(4'700))
        .kit(enclose)
        .peer(
            u"plain"_s, [](QString &text, const RangeList &ranges) { plain::encloseRanges(text, ranges, u"**"_s); }, 3)
        .peer(u"by hand"_s,
              [](QString &text, const RangeList &ranges) { other::encloseRanges(text, ranges, u"**"_s); });
    const auto overlapping = [](qsizetype length) {
        return texts::overlapping(length, timing::scaled(1'000'000, length));
    };
    Operation(u"deleteCharactersInRanges, a million overlapping"_s, texts::prose,
              reference::deleteCharactersInRanges<std::u16string>, overlapping)
        .kit([](QString &text, const RangeList &ranges) { Plain::deleteCharactersInRanges(text, ranges); });
    Operation(u"encloseRanges, a million overlapping"_s, texts::prose, reference, overlapping).kit(enclose);
}

void addConversions()
{
    Operation(u"stringWithConvertedEscSequences"_s, texts::escapedProse,
              [](std::u16string &text) { text = reference::stringWithConvertedEscSequences(text); })
        .kit([](QString &text) { text = Questions::stringWithConvertedEscSequences(text); })
        .peer(u"plain"_s, plain::convertEscapeSequences, 3)
        .peer(u"by hand"_s, other::convertEscapeSequences);
    for (const auto &[name, table] : {std::pair(u"HTML"_s, texts::html()), std::pair(u"LaTeX"_s, texts::latex())}) {
        Operation(u"substitution, 50 pairs of "_s + name, texts::prose,
                  [table](std::u16string &text) {
                      text =
                          reference::stringWithConvertedStringsFromArray(text, strings(table.from), strings(table.to));
                  })
            .kit([table](QString &text) {
                text = Questions::stringWithConvertedStringsFromArray(text, table.from, table.to);
            })
            .peer(
                u"plain"_s, [table](QString &text) { plain::replaceStrings(text, table.from, table.to); }, 3)
            .peer(u"by hand"_s, [table](QString &text) { other::replaceUnits(text, table.from, table.to); });
    }
}

[[maybe_unused]] const bool registered = [] {
    addTypography();
    addLineLayout();
    addMarks();
    addRangeLists();
    addConversions();
    return true;
}();

} // namespace
