#include <tests/reference/Editing.h>

#include <OrvaneExportKit/platform/Exceptions.h>

using platform::Range;
using platform::RangeList;

namespace reference {

namespace {

RangeList rangesOf(const std::vector<Edit> &edits)
{
    RangeList ranges;
    for (const Edit &edit : edits) {
        ranges.push_back(edit.range);
    }
    return ranges;
}

} // namespace

void requireAscendingRanges(const RangeList &ranges, std::size_t textLength)
{
    for (const Range range : ranges) {
        requireInside("requireAscendingRanges", range, textLength);
    }
    for (std::size_t i = 1; i < ranges.size(); ++i) {
        if (ranges[i].location < ranges[i - 1].end()) {
            throw platform::InvalidArgumentException("requireAscendingRanges: the ranges overlap or do not ascend");
        }
    }
}

void applyEdits(std::u16string &text, const std::vector<Edit> &edits)
{
    requireAscendingRanges(rangesOf(edits), text.size());
    for (std::size_t i = edits.size(); i > 0; --i) {
        replaceCharactersInRange(text, edits[i - 1].range, edits[i - 1].string);
    }
}

void applyEdits(NaiveAttributedString &text, const std::vector<Edit> &edits)
{
    requireAscendingRanges(rangesOf(edits), text.units.size());
    const NaiveAttributedString given = text;
    for (std::size_t i = edits.size(); i > 0; --i) {
        const Range range = edits[i - 1].range;
        replaceCharactersInRange(text, range, edits[i - 1].string);
        setAttributes(text, attributesOfNewUnits(given, range), {range.location, edits[i - 1].string.size()});
    }
}

} // namespace reference
