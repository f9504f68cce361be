#include <OrvaneExportKit/text/TaggedSpans.h>

#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/LiteralSearch.h>
#include <OrvaneExportKit/platform/TextEditor.h>
#include <OrvaneExportKit/text/ParagraphMarks.h>

#include <algorithm>

using platform::AttributedString;
using platform::findLiteral;
using platform::RangeList;
using platform::units;

namespace {

RangeList findLevelLines(std::u16string_view text, std::u16string_view levelString)
{
    RangeList lines;
    platform::forEachOccurrence(text, levelString, 0, text.size(), [&](std::size_t at) {
        if (at == 0 || text[at - 1] == u'\n') {
            lines.push_back({at, platform::lineEnd(text, at + levelString.size() - 1) - at});
        }
    });
    return lines;
}

/// The level string of each line with the blanks behind it.
RangeList findLevelMarks(std::u16string_view text, std::u16string_view levelString)
{
    RangeList marks = findLevelLines(text, levelString);
    // What stands behind a deleted mark is no blank, so the blanks of the mark before it end where it begins.
    std::size_t nextMark = text.size();
    for (auto mark = marks.rbegin(); mark != marks.rend(); ++mark) {
        std::size_t end = mark->location + levelString.size();
        while (end < nextMark && text[end] == u' ') {
            ++end;
        }
        mark->length = end - mark->location;
        nextMark = mark->location;
    }
    return marks;
}

template <typename Text>
void deleteLevelMarks(Text &text, QStringView levelString)
{
    edit(text, platform::Deletions{findLevelMarks(units(text), units(levelString))});
}

/// Whether the tag at `at` is no tag but the "//" of a web address, right after its colon.
bool isInAddress(std::u16string_view text, std::u16string_view tag, std::size_t at)
{
    return tag == u"//" && at > 0 && text[at - 1] == u':';
}

std::size_t findTag(std::u16string_view text, std::u16string_view tag, std::size_t from)
{
    std::size_t at = findLiteral(text, tag, from);
    while (at != platform::notFound && isInAddress(text, tag, at)) {
        at = findLiteral(text, tag, at + tag.size());
    }
    return at;
}

RangeList findTagPairs(std::u16string_view text, std::u16string_view startTag, std::u16string_view stopTag)
{
    RangeList tags;
    std::size_t position = 0;
    while (true) {
        const std::size_t start = findTag(text, startTag, position);
        if (start == platform::notFound) {
            return tags;
        }
        const std::size_t stop = findTag(text, stopTag, start + startTag.size());
        if (stop == platform::notFound) {
            return tags;
        }
        tags.push_back({start, startTag.size()});
        tags.push_back({stop, stopTag.size()});
        position = stop + stopTag.size();
    }
}

/// The same where start and stop tag are one, in a single search.
RangeList findPairsOfOneTag(std::u16string_view text, std::u16string_view tag)
{
    RangeList tags;
    platform::forEachOccurrence(text, tag, 0, text.size(), [&](std::size_t at) {
        if (!isInAddress(text, tag, at)) {
            tags.push_back({at, tag.size()});
        }
    });
    if (tags.size() % 2 != 0) {
        tags.pop_back();
    }
    return tags;
}

} // namespace

namespace KZStringExportAdditions {

RangeList lineRangesForLevelString(QStringView text, QStringView levelString)
{
    return findLevelLines(units(text), units(levelString));
}

RangeList rangesForStartTag(QStringView text, QStringView startTag, QStringView stopTag)
{
    return startTag == stopTag ? findPairsOfOneTag(units(text), units(startTag))
                               : findTagPairs(units(text), units(startTag), units(stopTag));
}

} // namespace KZStringExportAdditions

namespace KZAttributedStringExportAdditions {

RangeList lineRangesForLevelString(const AttributedString &text, QStringView levelString)
{
    return findLevelLines(units(text), units(levelString));
}

} // namespace KZAttributedStringExportAdditions

namespace KZMutableStringExportAdditions {

void deleteLevelMark(QString &text, QStringView levelString)
{
    deleteLevelMarks(text, levelString);
}

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

void deleteLevelMark(AttributedString &text, QStringView levelString)
{
    deleteLevelMarks(text, levelString);
}

void deleteParagraphMark(AttributedString &text, QStringView mark, const RangeList &ranges)
{
    edit(text, [&](std::u16string_view given, platform::TextEdits &edits) {
        platform::findParagraphMarks(given, units(mark), ranges, edits);
    });
}

} // namespace KZMutableAttributedStringExportAdditions
