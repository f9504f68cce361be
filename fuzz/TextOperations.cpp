// Carries out one text operation with a text and arguments from the input, and requires the outcome of its step-by-step
// version: the same text, attributes, ranges and exception.
//
// The first byte chooses the operation, the next ones hold its arguments, and the rest is the text.

#include <fuzz/Require.h>

#include <tests/reference/Editing.h>
#include <tests/reference/EscapeSequences.h>
#include <tests/reference/LineLayout.h>
#include <tests/reference/NaiveAttributedString.h>
#include <tests/reference/PlainText.h>
#include <tests/reference/PropertyTesting.h>
#include <tests/reference/QuotationMarks.h>
#include <tests/reference/RangeLists.h>
#include <tests/reference/TaggedSpans.h>
#include <tests/reference/Typography.h>
#include <tests/support/TextOperations.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Bundle.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/QuotationTable.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::Range;
using platform::RangeList;
using property::asLibrary;
using property::asReference;
using property::errorOf;
using property::outcome;
using property::printed;
using reference::Edit;
using reference::NaiveAttributedString;

constexpr std::size_t longestText = 2048;

/// What the bytes above 0x7F stand for: terminators, white space and marks, their neighbours, halves of surrogate
/// pairs, and units that have a byte with one of the characters that operations look for.
constexpr std::u16string_view specialUnits =
    u"\x0085\x2028\x2029\x0084\x0086\x2027\x202A\x2030\x00A0\x1680\x2000\x200A\x202F\x205F\x3000\x180E\x1FFF\x200B"
    u"\x2060\xFEFF\xFFFF\xD83D\xDE00\xD800\xDFFF\x0A0A\x0A00\x010A\x0D0D\x0D00\x0909\x2022\x2222\x0122\x2200\x2727"
    u"\x2700\x2D2D\x2D00\x2E2E\x2E00\x5C5C\x5C00\x2020\x0120\x2026\x2013\x2014\x2019\x2018\x201C\x201D\x201E\x00AB"
    u"\x00BB\x00E9\x4E2D\x7F00\x0100\x8000\x800A\xFF0A\xFF22\xFF09";

const QVariantMap &attributes(std::size_t number)
{
    static const std::array<QVariantMap, 9> kinds{
        QVariantMap{},
        {{u"style"_s, u"quote"_s}},
        {{u"style"_s, u"heading"_s}},
        {{u"style"_s, u"quote"_s}, {u"weight"_s, 1}},
        {{u"style"_s, u"quote"_s}, {u"weight"_s, 1.0}},
        {{u"style"_s, true}},
        {{u"style"_s, QVariantList{u"quote"_s}}},
        {{u""_s, u""_s}},
        {{u"Style"_s, u"quote"_s}, {u"weight"_s, u"heading"_s}},
    };
    return kinds.at(number % kinds.size());
}

const QString &attributeName(std::size_t number)
{
    static const std::array<QString, 4> names{u"style"_s, u"weight"_s, u"Style"_s, u""_s};
    return names.at(number % names.size());
}

/// The arguments that the bytes stand for. Behind the last byte all are zeros.
class Input
{
public:
    explicit Input(std::span<const unsigned char> bytes) : m_bytes(bytes) {}

    /// From 0 to 255.
    std::size_t number()
    {
        if (m_bytes.empty()) {
            return 0;
        }
        const std::size_t result = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return result;
    }

    /// An index or a length: up to 4095, or near one of the numbers at which arithmetic overflows.
    std::size_t place()
    {
        constexpr auto largest = std::numeric_limits<std::size_t>::max();
        constexpr std::array<std::size_t, 6> huge{std::size_t{1} << 31U, std::size_t{1} << 32U, platform::notFound,
                                                  largest / 2 + 1,       largest / 2 + 128,     largest};
        const std::size_t high = number();
        const std::size_t low = number();
        return high < 0xF0 ? (high % 16) * 256 + low : huge.at(high % huge.size()) - low;
    }

    Range range()
    {
        const std::size_t location = place();
        return {location, place()};
    }

    RangeList ranges()
    {
        RangeList result(number() % 32);
        std::generate(result.begin(), result.end(), [this] { return range(); });
        return result;
    }

    /// Up to seven units.
    std::u16string string() { return units(number() % 8); }

    std::vector<std::u16string> strings()
    {
        std::vector<std::u16string> result(number() % 4);
        std::generate(result.begin(), result.end(), [this] { return string(); });
        return result;
    }

    /// Ascending edits, unless a number in them is huge.
    std::vector<Edit> edits()
    {
        std::vector<Edit> result(number() % 32);
        std::size_t end = 0;
        for (Edit &edit : result) {
            const std::size_t location = end + number();
            edit = {{location, number() % 16 == 0 ? place() : number() % 8}, string()};
            end = edit.range.end();
        }
        return result;
    }

    /// The rest of the bytes as a text, once or several times in a row.
    std::u16string text()
    {
        const std::size_t times = 1 + number() % 4;
        const std::u16string once = units(std::min(m_bytes.size(), longestText / times));
        std::u16string result;
        for (std::size_t i = 0; i < times; ++i) {
            result += once;
        }
        return result;
    }

    /// The rest of the bytes as a text with a pattern of runs that is repeated up to its end.
    NaiveAttributedString attributedText()
    {
        std::vector<std::pair<std::size_t, QVariantMap>> runs(1 + number() % 8);
        for (auto &run : runs) {
            run.first = 1 + number();
            run.second = attributes(number());
        }
        NaiveAttributedString result{text(), {}};
        for (std::size_t i = 0; result.attributes.size() < result.units.size(); ++i) {
            const auto &run = runs[i % runs.size()];
            const std::size_t rest = result.units.size() - result.attributes.size();
            result.attributes.insert(result.attributes.end(), std::min(run.first, rest), run.second);
        }
        return result;
    }

private:
    std::u16string units(std::size_t count)
    {
        std::u16string result(std::min(count, m_bytes.size()), u'\0');
        std::generate(result.begin(), result.end(), [this] {
            const std::size_t byte = number();
            return byte < 0x80 ? static_cast<char16_t>(byte) : specialUnits[byte % specialUnits.size()];
        });
        return result;
    }

    std::span<const unsigned char> m_bytes;
};

/// A view of units that stand alone in memory, so that the address sanitizer sees a look past either end.
class AloneText
{
public:
    explicit AloneText(std::u16string_view text) : m_units(text.begin(), text.end()) {}

    QStringView view() const { return {m_units.data(), static_cast<qsizetype>(m_units.size())}; }
    std::u16string_view units() const { return platform::units(view()); }
    QString string() const { return QString::fromRawData(view().data(), view().size()); }

private:
    std::vector<char16_t> m_units;
};

std::string printed(Range range)
{
    return property::printed(RangeList{range});
}

std::string printed(const QVariant &value)
{
    return testing::PrintToString(value);
}

template <typename Text>
std::string printed(const property::Outcome<Text> &outcome)
{
    return testing::PrintToString(outcome);
}

template <typename Text, typename Result>
void requireSame(const Text &text, const Result &result, const Result &expected)
{
    if (!(result == expected)) {
        require(false, "text " + printed(text) + "\ngave " + printed(result) + "\ninstead of " + printed(expected));
    }
}

/// A text of its own, one that shares its units with another, and one whose units are not the kit's to change.
template <typename LibraryEdit, typename ReferenceEdit>
void checkPlain(const std::u16string &text, LibraryEdit edit, ReferenceEdit referenceEdit)
{
    const auto expected = outcome(text, referenceEdit);
    const AloneText alone(text);
    const QString shared = asLibrary(text);
    requireSame(text, outcome(asLibrary(text), edit), expected);
    requireSame(text, outcome(shared, edit), expected);
    requireSame(text, outcome(alone.string(), edit), expected);
    requireSame(text, asReference(shared), text);
    requireSame(text, std::u16string(alone.units()), text);
}

template <typename LibraryEdit, typename ReferenceEdit>
void checkAttributed(const NaiveAttributedString &text, LibraryEdit edit, ReferenceEdit referenceEdit)
{
    const AttributedString shared = asLibrary(text);
    requireSame(text, outcome(shared, edit), outcome(text, referenceEdit));
    requireSame(text, asReference(shared), text);
}

template <typename LibraryEdit, typename ReferenceEdit>
void checkBoth(Input &input, LibraryEdit edit, ReferenceEdit referenceEdit)
{
    const NaiveAttributedString text = input.attributedText();
    checkPlain(text.units, edit, referenceEdit);
    checkAttributed(text, edit, referenceEdit);
}

void ascendingSortedRanges(Input &input)
{
    const RangeList ranges = input.ranges();
    requireSame(ranges, library::ascendingSortedRanges(ranges), reference::ascendingSortedRanges(ranges));
}

void deleteCharactersInRanges(Input &input)
{
    const RangeList ranges = input.ranges();
    checkBoth(
        input, [&](auto &text) { library::deleteCharactersInRanges(text, ranges); },
        [&](auto &text) { reference::deleteCharactersInRanges(text, ranges); });
}

void encloseRanges(Input &input)
{
    const RangeList ranges = input.ranges();
    const AloneText string(input.string());
    checkPlain(
        input.text(), [&](QString &text) { library::encloseRanges(text, ranges, string.view()); },
        [&](std::u16string &text) { reference::encloseRanges(text, ranges, string.units()); });
}

void addAttributes(Input &input)
{
    const RangeList ranges = input.ranges();
    const QVariantMap added = attributes(input.number());
    checkAttributed(
        input.attributedText(), [&](AttributedString &text) { library::addAttributes(text, added, ranges); },
        [&](NaiveAttributedString &text) { reference::addAttributes(text, added, ranges); });
}

void removeAttribute(Input &input)
{
    const RangeList ranges = input.ranges();
    const QString name = attributeName(input.number());
    checkAttributed(
        input.attributedText(), [&](AttributedString &text) { library::removeAttribute(text, name, ranges); },
        [&](NaiveAttributedString &text) { reference::removeAttribute(text, name, ranges); });
}

void rangesForAttribute(Input &input)
{
    const QString name = attributeName(input.number());
    const QString value = input.number() % 2 == 0 ? u"quote"_s : u"heading"_s;
    const NaiveAttributedString text = input.attributedText();
    requireSame(text, library::rangesForAttribute(asLibrary(text), name, value),
                reference::rangesForAttribute(text, name, value));
}

void lineRangesForLevelString(Input &input)
{
    const AloneText level(input.string());
    const AloneText text(input.text());
    const RangeList expected = reference::lineRangesForLevelString(text.units(), level.units());
    requireSame(text.units(), library::lineRangesForLevelString(text.view(), level.view()), expected);
    requireSame(text.units(), library::lineRangesForLevelString(AttributedString(text.string()), level.view()),
                expected);
}

void deleteLevelMark(Input &input)
{
    const AloneText level(input.string());
    checkBoth(
        input, [&](auto &text) { library::deleteLevelMark(text, level.view()); },
        [&](auto &text) { reference::deleteLevelMark(text, level.units()); });
}

void deleteParagraphMark(Input &input)
{
    const AloneText mark(input.string());
    const RangeList ranges = input.ranges();
    checkAttributed(
        input.attributedText(),
        [&](AttributedString &text) { library::deleteParagraphMark(text, mark.view(), ranges); },
        [&](NaiveAttributedString &text) { reference::deleteParagraphMark(text, mark.units(), ranges); });
}

void rangesForStartTag(Input &input)
{
    const AloneText start(input.string());
    const AloneText stop(input.number() % 2 == 0 ? std::u16string(start.units()) : input.string());
    const AloneText text(input.text());
    requireSame(text.units(), library::rangesForStartTag(text.view(), start.view(), stop.view()),
                reference::rangesForStartTag(text.units(), start.units(), stop.units()));
}

void convertStartTabsToSpace(Input &input)
{
    const auto spaces = static_cast<std::uint32_t>(input.number());
    checkPlain(
        input.text(), [&](QString &text) { library::convertStartTabsToSpace(text, spaces); },
        [&](std::u16string &text) { reference::convertStartTabsToSpace(text, spaces); });
}

void deleteEmptyLines(Input &input)
{
    checkPlain(
        input.text(), [](QString &text) { library::deleteEmptyLines(text); },
        [](std::u16string &text) { reference::deleteEmptyLines(text); });
}

void setMaxLineLength(Input &input)
{
    const auto limit = static_cast<std::uint32_t>(input.place());
    checkPlain(
        input.text(), [&](QString &text) { library::setMaxLineLength(text, limit); },
        [&](std::u16string &text) { reference::setMaxLineLength(text, limit); });
}

void stringWithConvertedEscSequences(Input &input)
{
    const AloneText text(input.text());
    requireSame(text.units(), asReference(library::stringWithConvertedEscSequences(text.view())),
                reference::stringWithConvertedEscSequences(std::u16string(text.units())));
}

void stringWithConvertedStringsFromArray(Input &input)
{
    constexpr std::size_t longest = 256; // each pair can make the text longer, and the reference is quadratic
    const std::vector<std::u16string> from = input.strings();
    const std::vector<std::u16string> to = input.strings();
    const AloneText text(input.text().substr(0, longest));
    const auto list = [](const std::vector<std::u16string> &strings) {
        QStringList result;
        std::transform(strings.begin(), strings.end(), std::back_inserter(result),
                       [](const std::u16string &string) { return asLibrary(string); });
        return result;
    };
    requireSame(text.units(),
                asReference(library::stringWithConvertedStringsFromArray(text.view(), list(from), list(to))),
                reference::stringWithConvertedStringsFromArray(std::u16string(text.units()), from, to));
}

void convertQuotationsToStart(Input &input)
{
    const AloneText start(input.string());
    const AloneText stop(input.string());
    checkPlain(
        input.text(), [&](QString &text) { library::convertQuotationsToStart(text, start.view(), stop.view()); },
        [&](std::u16string &text) { reference::convertQuotationsToStart(text, start.units(), stop.units()); });
}

void convertQuotationsToType(Input &input)
{
    const auto style = static_cast<std::int32_t>(input.number() % 8) - 1;
    checkBoth(
        input, [&](auto &text) { library::convertQuotationsToType(text, style); },
        [&](auto &text) { reference::convertQuotationsToType(text, style); });
}

void convertQuotationsToLanguage(Input &input)
{
    static const QStringList languages = platform::sampleLanguages();
    const QString language = languages[static_cast<qsizetype>(input.number()) % languages.size()];
    const platform::QuotationMarks marks = platform::quotationMarks(platform::Bundle::kitBundle(), language);
    const std::u16string begin = asReference(marks.begin.value_or(u"\""_s));
    const std::u16string end = asReference(marks.end.value_or(u"\""_s));
    const NaiveAttributedString text = input.attributedText();
    checkPlain(
        text.units, [&](QString &t) { library::convertQuotationsToLanguage(t, language); },
        [&](std::u16string &t) { reference::convertQuotationsToStart(t, begin, end); });
    AttributedString attributed = asLibrary(text);
    library::convertQuotationsToLanguage(attributed, language);
    std::u16string expected = text.units;
    reference::convertQuotationsToStart(expected, begin, end);
    requireSame(text, asReference(attributed.string()), expected);
}

void convertEllipses(Input &input)
{
    checkBoth(
        input, [](auto &text) { library::convertEllipses(text); },
        [](auto &text) { reference::convertEllipses(text); });
}

void correctApostrophes(Input &input)
{
    checkBoth(
        input, [](auto &text) { library::correctApostrophes(text); },
        [](auto &text) { reference::correctApostrophes(text); });
}

void correctDashes(Input &input)
{
    checkBoth(
        input, [](auto &text) { library::correctDashes(text); }, [](auto &text) { reference::correctDashes(text); });
}

void listsOfEdits(Input &input)
{
    const std::vector<Edit> edits = input.edits();
    checkBoth(
        input, [&](auto &text) { library::edit(text, asLibrary(edits)); },
        [&](auto &text) { reference::applyEdits(text, edits); });
}

void lineRangeForRange(Input &input)
{
    const Range range = input.range();
    const AloneText text(input.text());
    Range found;
    Range expected;
    const std::string error = errorOf([&] { found = platform::lineRangeForRange(text.units(), range); });
    const std::string expectedError = errorOf([&] { expected = reference::lineRangeForRange(text.units(), range); });
    require(error == expectedError, "threw \"" + error + "\" instead of \"" + expectedError + '"');
    requireSame(text.units(), found, expected);
}

void changesOfAttributedText(Input &input)
{
    const Range added = input.range();
    const Range set = input.range();
    const Range removed = input.range();
    const Range replaced = input.range();
    const QVariantMap some = attributes(input.number());
    const QVariantMap others = attributes(input.number());
    const QString name = attributeName(input.number());
    const AloneText string(input.string());
    NaiveAttributedString expected = input.attributedText();
    const auto next = [&](auto change, auto referenceChange) {
        checkAttributed(expected, change, referenceChange);
        errorOf([&] { referenceChange(expected); });
    };
    next([&](AttributedString &text) { text.addAttributes(some, added); },
         [&](NaiveAttributedString &text) { reference::addAttributes(text, some, added); });
    next([&](AttributedString &text) { text.setAttributes(others, set); },
         [&](NaiveAttributedString &text) { reference::setAttributes(text, others, set); });
    next([&](AttributedString &text) { text.replaceCharacters(replaced, string.view()); },
         [&](NaiveAttributedString &text) { reference::replaceCharactersInRange(text, replaced, string.units()); });
    next([&](AttributedString &text) { text.removeAttribute(name, removed); },
         [&](NaiveAttributedString &text) { reference::removeAttribute(text, name, removed); });
}

void attributeAtIndex(Input &input)
{
    const QString name = attributeName(input.number());
    const std::size_t index = input.place();
    const Range within = input.range();
    const NaiveAttributedString text = input.attributedText();
    QVariant value;
    QVariant expectedValue;
    Range range;
    Range expectedRange;
    const std::string error = errorOf([&] { value = asLibrary(text).attribute(name, index, &range, within); });
    const std::string expectedError =
        errorOf([&] { expectedValue = reference::attribute(text, name, index, expectedRange, within); });
    require(error == expectedError, "threw \"" + error + "\" instead of \"" + expectedError + '"');
    requireSame(text, value, expectedValue);
    requireSame(text, range, expectedRange);
}

/// The order stands in the saved inputs: new operations go to the end.
constexpr std::array operations{
    ascendingSortedRanges,
    deleteCharactersInRanges,
    encloseRanges,
    addAttributes,
    removeAttribute,
    rangesForAttribute,
    lineRangesForLevelString,
    deleteLevelMark,
    deleteParagraphMark,
    rangesForStartTag,
    convertStartTabsToSpace,
    deleteEmptyLines,
    setMaxLineLength,
    stringWithConvertedEscSequences,
    stringWithConvertedStringsFromArray,
    convertQuotationsToStart,
    convertQuotationsToType,
    convertQuotationsToLanguage,
    convertEllipses,
    correctApostrophes,
    correctDashes,
    listsOfEdits,
    lineRangeForRange,
    changesOfAttributedText,
    attributeAtIndex,
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *bytes, std::size_t size)
{
    Input input({bytes, size});
    operations.at(input.number() % operations.size())(input);
    return 0;
}
