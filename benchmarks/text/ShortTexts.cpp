// What an operation costs on a text of 17 units, and substitution on one of 48. Names are short/OPERATION/UNITS; times
// are those of one call.

#include "Texts.h"
#include "Timing.h"

#include <functional>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::RangeList;

namespace Plain = KZMutableStringExportAdditions;
namespace Attributed = KZMutableAttributedStringExportAdditions;
namespace Questions = KZStringExportAdditions;

template <typename Text, typename Call>
void add(const QString &name, const Text &text, qsizetype length, Call call)
{
    const auto run = [=](benchmark::State &state) {
        constexpr std::size_t calls = 1000;
        for (auto _ : state) {
            std::vector<Text> own;
            for (std::size_t index = 0; index < calls; ++index) {
                own.push_back(text);
                if constexpr (std::is_same_v<Text, QString>) {
                    own.back().detach();
                } else {
                    own.back() = texts::styled(text.string(), 3);
                }
            }
            const auto start = timing::Clock::now();
            for (Text &each : own) {
                call(each);
            }
            benchmark::ClobberMemory();
            state.SetIterationTime(timing::secondsSince(start) / static_cast<double>(calls));
        }
    };
    timing::add(u"short/%1/%2"_s.arg(name).arg(length), 300, benchmark::kNanosecond, run);
}

template <typename Call>
void addPlain(const QString &name, Call call)
{
    const QString text = u"\"It's\" ** a--#\\n\t"_s;
    Q_ASSERT(text.size() == 17);
    add(name, text, text.size(), call);
}

void addShortTexts()
{
    addPlain(u"convertEllipses"_s, Plain::convertEllipses);
    addPlain(u"correctApostrophes"_s, Plain::correctApostrophes);
    addPlain(u"correctDashes"_s, Plain::correctDashes);
    addPlain(u"convertQuotationsToType"_s, [](QString &text) { Plain::convertQuotationsToType(text, 0); });
    addPlain(u"setMaxLineLength"_s, [](QString &text) { Plain::setMaxLineLength(text, 12); });
    addPlain(u"deleteEmptyLines"_s, Plain::deleteEmptyLines);
    addPlain(u"convertStartTabsToSpace"_s, [](QString &text) { Plain::convertStartTabsToSpace(text, 4); });
    addPlain(u"rangesForStartTag"_s,
             [](QString &text) { benchmark::DoNotOptimize(Questions::rangesForStartTag(text, u"**", u"**")); });
    addPlain(u"lineRangesForLevelString"_s,
             [](QString &text) { benchmark::DoNotOptimize(Questions::lineRangesForLevelString(text, u"#")); });
    addPlain(u"deleteCharactersInRanges"_s,
             [ranges = RangeList{{2, 2}, {9, 3}}](QString &text) { Plain::deleteCharactersInRanges(text, ranges); });
    addPlain(u"encloseRanges"_s,
             [ranges = RangeList{{2, 2}, {9, 3}}](QString &text) { Plain::encloseRanges(text, ranges, u"**"); });
    addPlain(u"stringWithConvertedEscSequences"_s,
             [](QString &text) { benchmark::DoNotOptimize(Questions::stringWithConvertedEscSequences(text)); });
    add(u"deleteCharactersInRanges, attributed"_s, AttributedString(u"\"It's\" ** a--#\\n\t"_s), 17,
        [ranges = RangeList{{2, 2}, {9, 3}}](AttributedString &text) {
            Attributed::deleteCharactersInRanges(text, ranges);
        });
    const QString sentence = u"\"Is it <late>?\" -- she said & 'left' at five....."_s.left(48);
    for (const auto &[name, table] : {std::pair(u"HTML"_s, texts::html()), std::pair(u"LaTeX"_s, texts::latex())}) {
        add(u"substitution, 50 pairs of "_s + name, sentence, sentence.size(), [table](QString &text) {
            benchmark::DoNotOptimize(Questions::stringWithConvertedStringsFromArray(text, table.from, table.to));
        });
    }
}

[[maybe_unused]] const bool registered = [] {
    addShortTexts();
    return true;
}();

} // namespace
