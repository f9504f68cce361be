// The operations on attributed text, in 100,000 runs and more, as multiples of one warm memcpy of its units. Names are
// text/OPERATION, RUNS/UNITS/WAY. The kit's result is compared with the step-by-step version before it is timed.

#include "OtherWays.h"
#include "Texts.h"
#include "Timing.h"

#include <tests/reference/NaiveAttributedString.h>
#include <tests/reference/QuotationMarks.h>
#include <tests/reference/RangeLists.h>
#include <tests/reference/TaggedSpans.h>
#include <tests/reference/Typography.h>

#include <QtGui/QTextCursor>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::AttributedString;
using platform::RangeList;
using reference::NaiveAttributedString;

namespace Changes = KZMutableAttributedStringExportAdditions;
namespace Questions = KZAttributedStringExportAdditions;

constexpr qsizetype fullSize = timing::fullSize;
constexpr qsizetype checkedSize = 3'000;

using RangeMaker = std::function<RangeList(const AttributedString &)>;

NaiveAttributedString unitByUnit(const AttributedString &text)
{
    NaiveAttributedString result{text.string().toStdU16String(), {}};
    for (std::size_t index = 0; index < text.length(); ++index) {
        result.attributes.push_back(text.attributesAtIndex(index));
    }
    return result;
}

RangeList noRanges(const AttributedString &)
{
    return {};
}

RangeList spreadRanges(const AttributedString &text)
{
    const QString &string = text.string();
    return texts::spread(string.size(), timing::scaled(4'700, string.size()));
}

RangeList levelLines(const AttributedString &text)
{
    return Questions::lineRangesForLevelString(text, u"#");
}

/// The text that is copied right before the call: that of the very object where it gives it out, so that it is warm.
const QString &timedText(const AttributedString &own, const QString &)
{
    return own.string();
}

const QString &timedText(const std::unique_ptr<QTextDocument> &, const QString &text)
{
    return text;
}

/// Times `operation` on prose that `style` has put into `runs` runs, as far as the text is long enough for them.
template <typename Style, typename Operation>
void add(const QString &name, qsizetype size, int iterations, std::size_t runs, const RangeMaker &makeRanges,
         Style style, Operation operation)
{
    timing::add(name, iterations, benchmark::kMicrosecond, [=](benchmark::State &state) {
        const QString text = texts::prose(size);
        const RangeList ranges = makeRanges(AttributedString(text));
        QString copy;
        RangeList found;
        timing::Measurements measurements;
        for (auto _ : state) {
            auto own = style(text, timing::scaled(runs, size));
            const double memcpySeconds = timing::copyWarm(timedText(own, text), copy);
            measurements.time(state, memcpySeconds, [&] { found = timing::called(operation, own, ranges); });
        }
        measurements.report(state, size);
    });
}

template <typename Operation, typename Reference>
bool isRight(Operation operation, Reference reference, const RangeMaker &makeRanges)
{
    AttributedString text = texts::styled(texts::prose(checkedSize), 70);
    const RangeList ranges = makeRanges(text);
    NaiveAttributedString expected = unitByUnit(text);
    return timing::called(operation, text, ranges) == timing::called(reference, expected, ranges) &&
           unitByUnit(text) == expected;
}

/// The kit's way at four sizes, to show the growth.
template <typename Operation, typename Reference>
void addKit(const QString &name, Operation operation, Reference reference, const RangeMaker &makeRanges = noRanges,
            std::size_t runs = 100'000)
{
    const QString title = u"text/%1, attributed, %2 runs/%3/kit"_s.arg(name).arg(runs);
    if (!isRight(operation, reference, makeRanges)) {
        timing::add(title.arg(fullSize), 1, benchmark::kMicrosecond,
                    [](benchmark::State &state) { state.SkipWithError("the result is wrong"); });
        return;
    }
    for (qsizetype size = fullSize / 64; size <= fullSize; size *= 4) {
        add(title.arg(size), size, 11, runs, makeRanges, texts::styled, operation);
    }
}

void addTypography()
{
    addKit(
        u"convertEllipses"_s, [](AttributedString &text) { Changes::convertEllipses(text); },
        reference::convertEllipses<NaiveAttributedString>);
    addKit(
        u"correctApostrophes"_s, [](AttributedString &text) { Changes::correctApostrophes(text); },
        reference::correctApostrophes<NaiveAttributedString>);
    addKit(
        u"correctDashes"_s, [](AttributedString &text) { Changes::correctDashes(text); },
        reference::correctDashes<NaiveAttributedString>);
    addKit(
        u"convertQuotationsToType"_s, [](AttributedString &text) { Changes::convertQuotationsToType(text, 0); },
        [](NaiveAttributedString &text) { reference::convertQuotationsToType(text, 0); });
}

void addMarks()
{
    addKit(
        u"lineRangesForLevelString #"_s,
        [](AttributedString &text) { return Questions::lineRangesForLevelString(text, u"#"); },
        [](NaiveAttributedString &text) { return reference::lineRangesForLevelString(text.units, u"#"); });
    addKit(
        u"deleteLevelMark #"_s, [](AttributedString &text) { Changes::deleteLevelMark(text, u"#"); },
        [](NaiveAttributedString &text) { reference::deleteLevelMark(text, u"#"); });
    addKit(
        u"deleteParagraphMark #"_s,
        [](AttributedString &text, const RangeList &ranges) { Changes::deleteParagraphMark(text, u"#", ranges); },
        [](NaiveAttributedString &text, const RangeList &ranges) {
            reference::deleteParagraphMark(text, u"#", ranges);
        },
        levelLines);
}

void addAttributeChanges()
{
    const QVariantMap added{{u"weight"_s, u"bold"_s}};
    addKit(
        u"addAttributes, 4700 ranges"_s,
        [added](AttributedString &text, const RangeList &ranges) { Changes::addAttributes(text, added, ranges); },
        [added](NaiveAttributedString &text, const RangeList &ranges) {
            reference::addAttributes(text, added, ranges);
        },
        spreadRanges);
    addKit(
        u"removeAttribute, 4700 ranges"_s,
        [](AttributedString &text, const RangeList &ranges) { Changes::removeAttribute(text, u"style"_s, ranges); },
        [](NaiveAttributedString &text, const RangeList &ranges) {
            reference::removeAttribute(text, u"style"_s, ranges);
        },
        spreadRanges);
    addKit(
        u"rangesForAttribute"_s,
        [](AttributedString &text) { return Questions::rangesForAttribute(text, u"style"_s, u"strong"_s); },
        [](NaiveAttributedString &text) { return reference::rangesForAttribute(text, u"style"_s, u"strong"_s); });
}

/// The text in blocks with a format each, as many as the document can hold apart.
std::unique_ptr<QTextDocument> styledDocument(const QString &text, std::size_t runs)
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setPlainText(text);
    QTextCursor cursor(document.get());
    cursor.beginEditBlock();
    for (std::size_t index = 0; index < runs; ++index) {
        const std::size_t length = static_cast<std::size_t>(text.size());
        cursor.setPosition(static_cast<int>(index * length / runs));
        cursor.setPosition(static_cast<int>((index + 1) * length / runs), QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setFontItalic(index % 2 == 0);
        cursor.mergeCharFormat(format);
    }
    cursor.endEditBlock();
    return document;
}

void addDeletion()
{
    const auto kit = [](AttributedString &text, const RangeList &ranges) {
        Changes::deleteCharactersInRanges(text, ranges);
    };
    for (const std::size_t runs : {std::size_t{100'000}, std::size_t{1'000'000}}) {
        addKit(u"deleteCharactersInRanges"_s, kit, reference::deleteCharactersInRanges<NaiveAttributedString>,
               spreadRanges, runs);
    }
    add(u"text/deleteCharactersInRanges, attributed, 100000 runs/%1/QTextCursor"_s.arg(fullSize), fullSize, 2, 100'000,
        spreadRanges, styledDocument, [](std::unique_ptr<QTextDocument> &document, const RangeList &ranges) {
            other::deleteRanges(*document, ranges);
        });
}

[[maybe_unused]] const bool registered = [] {
    addTypography();
    addMarks();
    addAttributeChanges();
    addDeletion();
    return true;
}();

} // namespace
