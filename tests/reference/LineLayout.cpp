#include <tests/reference/LineLayout.h>

#include <tests/reference/Editing.h>
#include <tests/reference/TaggedSpans.h>

#include <OrvaneExportKit/platform/Exceptions.h>

#include <limits>

using platform::Range;
using platform::RangeList;

namespace reference {

namespace {

bool isBreakCharacter(char16_t unit)
{
    return (unit <= 0x002F && unit != 0x0022 && unit != 0x0027 && unit != 0x0028) ||
           (unit >= 0x003A && unit <= 0x0040) || unit == 0x005C || unit == 0x005D || (unit >= 0x007C && unit <= 0x007E);
}

/// The highest index from `start + limit - 1` down to `start` that holds a break character, `start` without one.
std::size_t breakIndex(const std::u16string &text, std::size_t start, std::size_t limit)
{
    for (std::size_t end = start + limit; end > start; --end) {
        if (isBreakCharacter(text[end - 1])) {
            return end - 1;
        }
    }
    return start;
}

/// The highest index below `index` that holds no space. Throws where there is none.
std::size_t indexBeforeSpaces(const std::u16string &text, std::size_t index)
{
    for (std::size_t end = index; end > 0; --end) {
        if (text[end - 1] != u' ') {
            return end - 1;
        }
    }
    throw platform::RangeException("setMaxLineLength", {std::numeric_limits<std::size_t>::max(), 1}, text.size());
}

/// Breaks the line and returns where the new one starts.
std::size_t breakLine(std::u16string &text, std::size_t start, std::size_t limit)
{
    std::size_t last = breakIndex(text, start, limit);
    if (text[last] == u' ') {
        last = indexBeforeSpaces(text, last);
    }
    const std::size_t breakStart = last + 1;
    std::size_t breakEnd = breakStart;
    while (text[breakEnd] == u' ') {
        ++breakEnd;
    }
    replaceCharactersInRange(text, {breakStart, breakEnd - breakStart}, u"\n");
    return breakStart + 1;
}

} // namespace

void convertStartTabsToSpace(std::u16string &text, std::uint32_t spaces)
{
    const RangeList lines = lineRangesForLevelString(text, u"\t");
    const std::u16string replacement(spaces, u' ');
    for (std::size_t i = lines.size(); i > 0; --i) {
        const std::size_t start = lines[i - 1].location;
        std::size_t end = start + 1;
        while (end < text.size() && text[end] == u'\t') {
            ++end;
        }
        replaceOccurrencesOfString(text, u"\t", replacement, {start, end - start});
    }
}

void deleteEmptyLines(std::u16string &text)
{
    Range found = rangeOfString(text, u"\n\n", {0, text.size()});
    while (found.location != platform::notFound) {
        deleteCharactersInRange(text, {found.location, 1});
        found = rangeOfString(text, u"\n\n", {found.location, text.size() - found.location});
    }
}

void setMaxLineLength(std::u16string &text, std::uint32_t limit)
{
    if (limit == std::numeric_limits<std::uint32_t>::max()) {
        return;
    }
    insertString(text, u"\n", text.size());
    std::size_t lineStart = 0;
    do {
        const Range line = lineRangeForRange(text, {lineStart, 0});
        if (line.length <= std::size_t{limit} + 1) {
            lineStart = line.end();
        } else {
            lineStart = breakLine(text, line.location, limit);
        }
    } while (lineStart < text.size());
    deleteCharactersInRange(text, {text.size() - 1, 1});
}

} // namespace reference
