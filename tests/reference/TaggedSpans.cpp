#include <tests/reference/TaggedSpans.h>

#include <tests/reference/Editing.h>
#include <tests/reference/Scanners.h>

#include <optional>

using platform::Range;
using platform::RangeList;

namespace reference {

namespace {

/// The first index at or behind `index` that holds no blank.
std::size_t endOfBlanks(std::u16string_view text, std::size_t index)
{
    while (index < text.size() && text[index] == u' ') {
        ++index;
    }
    return index;
}

/// Steps over the next occurrence of the tag that counts, and returns its range.
std::optional<Range> scanTag(StringScanner &scanner, std::u16string_view text, std::u16string_view tag)
{
    while (!scanner.isAtEnd()) {
        scanner.scanUpToString(tag);
        const std::size_t location = scanner.scanLocation();
        if (!scanner.scanString(tag)) {
            return std::nullopt;
        }
        const bool followsColon = location > 0 && text[location - 1] == u':';
        if (tag != u"//" || !followsColon) {
            return Range{location, tag.size()};
        }
    }
    return std::nullopt;
}

} // namespace

RangeList lineRangesForLevelString(std::u16string_view text, std::u16string_view levelString)
{
    RangeList result;
    Range search{0, text.size()};
    while (true) {
        const Range found = rangeOfString(text, levelString, search);
        if (found.location == platform::notFound) {
            return result;
        }
        if (found.location == 0 || text[found.location - 1] == u'\n') {
            result.push_back(lineRangeForRange(text, found));
        }
        search = {found.end(), text.size() - found.end()};
    }
}

template <typename Text>
void deleteLevelMark(Text &text, std::u16string_view levelString)
{
    const RangeList lines = lineRangesForLevelString(units(text), levelString);
    for (std::size_t i = lines.size(); i > 0; --i) {
        const std::size_t start = lines[i - 1].location;
        const std::size_t end = endOfBlanks(units(text), start + levelString.size());
        deleteCharactersInRange(text, {start, end - start});
    }
}

template void deleteLevelMark(std::u16string &text, std::u16string_view levelString);
template void deleteLevelMark(NaiveAttributedString &text, std::u16string_view levelString);

void deleteParagraphMark(NaiveAttributedString &text, std::u16string_view mark, const RangeList &ranges)
{
    for (std::size_t i = ranges.size(); i > 0; --i) {
        const Range range = ranges[i - 1];
        const Range found = rangeOfString(text.units, mark, range);
        if (found.location != platform::notFound) {
            const std::size_t end = endOfBlanks(text.units, found.end());
            deleteCharactersInRange(text, {range.location, end - range.location});
        }
    }
}

RangeList rangesForStartTag(std::u16string_view text, std::u16string_view startTag, std::u16string_view stopTag)
{
    RangeList result;
    StringScanner scanner(text);
    while (!scanner.isAtEnd()) {
        const std::optional<Range> start = scanTag(scanner, text, startTag);
        if (!start) {
            break;
        }
        const std::optional<Range> stop = scanTag(scanner, text, stopTag);
        if (!stop) {
            break;
        }
        result.push_back(*start);
        result.push_back(*stop);
    }
    return result;
}

} // namespace reference
