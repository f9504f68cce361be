#include <tests/reference/RangeLists.h>

#include <tests/reference/PlainText.h>

#include <utility>

using platform::Range;
using platform::RangeList;

namespace reference {

namespace {

/// Calls `apply` with each range of the sorted list, from the last to the first.
template <typename Apply>
void walkFromLastToFirst(const RangeList &ranges, Apply apply)
{
    const RangeList sorted = ascendingSortedRanges(ranges);
    for (std::size_t i = sorted.size(); i > 0; --i) {
        apply(sorted[i - 1]);
    }
}

} // namespace

RangeList ascendingSortedRanges(const RangeList &ranges)
{
    RangeList sorted = ranges;
    for (std::size_t end = sorted.size(); end > 1; --end) {
        for (std::size_t i = 1; i < end; ++i) {
            if (sorted[i].location < sorted[i - 1].location) {
                std::swap(sorted[i], sorted[i - 1]);
            }
        }
    }
    return sorted;
}

template <typename Text>
void deleteCharactersInRanges(Text &text, const RangeList &ranges)
{
    walkFromLastToFirst(ranges, [&](Range range) { deleteCharactersInRange(text, range); });
}

template void deleteCharactersInRanges(std::u16string &text, const RangeList &ranges);
template void deleteCharactersInRanges(NaiveAttributedString &text, const RangeList &ranges);

void encloseRanges(std::u16string &text, const RangeList &ranges, std::u16string_view string)
{
    walkFromLastToFirst(ranges, [&](Range range) {
        requireInside("encloseRanges", range, text.size());
        insertString(text, string, range.end());
        insertString(text, string, range.location);
    });
}

void addAttributes(NaiveAttributedString &text, const QVariantMap &attributes, const RangeList &ranges)
{
    walkFromLastToFirst(ranges, [&](Range range) { addAttributes(text, attributes, range); });
}

void removeAttribute(NaiveAttributedString &text, const QString &name, const RangeList &ranges)
{
    walkFromLastToFirst(ranges, [&](Range range) { removeAttribute(text, name, range); });
}

RangeList rangesForAttribute(const NaiveAttributedString &text, const QString &name, const QString &value)
{
    RangeList result;
    const std::size_t length = text.units.size();
    if (length == 0) {
        return result;
    }
    std::size_t position = 0;
    do {
        Range effective;
        const QVariant found = attribute(text, name, position, effective, {position, length - position});
        position = effective.end();
        if (found.typeId() == QMetaType::QString && found.toString() == value) {
            std::size_t index = effective.location;
            while (index < position) {
                const Range line = lineRangeForRange(text.units, {index, 0});
                result.push_back(line);
                index = line.end();
            }
        }
    } while (position < length);
    return result;
}

} // namespace reference
