#include <OrvaneExportKit/text/RangeLists.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/TextEditor.h>
#include <OrvaneExportKit/text/DisjointRanges.h>
#include <OrvaneExportKit/text/PositionSet.h>

#include <algorithm>
#include <optional>

using platform::AttributedString;
using platform::edit;
using platform::Range;
using platform::RangeException;
using platform::RangeList;
using platform::TextEdits;
using platform::units;

namespace {

bool locatedBefore(const Range &a, const Range &b)
{
    return a.location < b.location;
}

RangeList sortedByLocation(RangeList ranges)
{
    if (!std::is_sorted(ranges.begin(), ranges.end(), locatedBefore)) {
        std::stable_sort(ranges.begin(), ranges.end(), locatedBefore);
    }
    return ranges;
}

/// Of ascending ranges that do not overlap only the last can reach past the end, and its turn comes first.
void requireLastRange(const char *operation, const RangeList &disjoint, std::size_t length)
{
    if (!disjoint.empty()) {
        platform::requireRange(operation, disjoint.back(), length);
    }
}

/// The stretch of the original text that deleting `range` from the current one takes out. `deleted` holds what is
/// gone already, from the highest stretch to the lowest, none of it before the range; the stretches that the range
/// reaches become part of it.
Range stretchToDelete(const Range &range, RangeList &deleted)
{
    std::size_t end = range.end();
    while (!deleted.empty() && deleted.back().location <= end) {
        end += deleted.back().length;
        deleted.pop_back();
    }
    return {range.location, end - range.location};
}

/// Finds what deleting the ranges takes out where they overlap.
void findOverlappingDeletions(std::size_t length, const RangeList &sorted, TextEdits &edits)
{
    RangeList deleted;
    auto range = sorted.rbegin();
    for (; range != sorted.rend() && range->fits(length); ++range) {
        length -= range->length;
        deleted.push_back(stretchToDelete(*range, deleted));
    }
    edits.reserve(deleted.size());
    std::for_each(deleted.rbegin(), deleted.rend(), [&](const Range &stretch) { edits.remove(stretch); });
    if (range != sorted.rend()) {
        throw RangeException("deleteCharactersInRanges", *range, length);
    }
}

/// Calls `disjoint` with the sorted ranges where they do not overlap, and `overlapping` where they do.
template <typename Disjoint, typename Overlapping>
void withSortedRanges(const RangeList &ranges, Disjoint disjoint, Overlapping overlapping)
{
    if (platform::isAscendingAndDisjoint(ranges)) {
        disjoint(ranges);
        return;
    }
    const RangeList sorted = sortedByLocation(ranges);
    if (platform::isAscendingAndDisjoint(sorted)) {
        disjoint(sorted);
    } else {
        overlapping(sorted);
    }
}

template <typename Text>
void deleteRanges(Text &text, const RangeList &ranges)
{
    withSortedRanges(
        ranges,
        [&](const RangeList &sorted) {
            requireLastRange("deleteCharactersInRanges", sorted, units(text).size());
            edit(text, platform::Deletions{sorted});
        },
        [&](const RangeList &sorted) {
            edit(text, [&](std::u16string_view given, TextEdits &edits) {
                findOverlappingDeletions(given.size(), sorted, edits);
            });
        });
}

void encloseDisjointRanges(QString &text, const RangeList &ranges, std::u16string_view string)
{
    requireLastRange("encloseRanges", ranges, units(text).size());
    TextEdits edits;
    edits.reserve(2 * ranges.size());
    for (const Range &range : ranges) {
        edits.insert(range.location, string);
        edits.insert(range.end(), string);
    }
    edit(text, edits);
}

/// The text that all insertions together put in, at the places where it ends up. Its units that are not `kept` free
/// for the original text are set; `positions` are those of the insertions, in their order, each in the text that the
/// insertions before it have made.
std::vector<char16_t> insertedUnits(platform::PositionSet &kept, const std::vector<std::size_t> &positions,
                                    std::u16string_view string)
{
    // The last insertion stays where it was made. Going back from it, each one takes its units among those that no
    // later insertion has taken.
    std::vector<char16_t> result(kept.count());
    for (auto position = positions.rbegin(); position != positions.rend(); ++position) {
        for (const char16_t unit : string) {
            const std::size_t place = kept.nth(*position);
            kept.erase(place);
            result[place] = unit;
        }
    }
    return result;
}

/// Enclosing where ranges overlap: an insertion may fall into what another one has put in. `inserted` receives the
/// units that the edits view.
void findOverlappingEnclosures(std::size_t length, const RangeList &sorted, std::u16string_view string,
                               std::vector<char16_t> &inserted, TextEdits &edits)
{
    std::vector<std::size_t> positions;
    std::size_t lengthNow = length;
    auto range = sorted.rbegin();
    for (; range != sorted.rend() && range->fits(lengthNow); ++range) {
        positions.push_back(range->end());
        positions.push_back(range->location);
        lengthNow += 2 * string.size();
    }
    auto kept = platform::PositionSet::all(lengthNow);
    inserted = insertedUnits(kept, positions, string);
    std::size_t original = 0;
    for (std::size_t place = 0; place < lengthNow;) {
        const std::size_t start = place;
        while (place < lengthNow && !kept.contains(place)) {
            ++place;
        }
        if (place > start) {
            edits.insert(original, std::u16string_view(inserted.data() + start, place - start));
        } else {
            ++original;
            ++place;
        }
    }
    if (range != sorted.rend()) {
        throw RangeException("encloseRanges", *range, lengthNow);
    }
}

/// The units of all sorted ranges that take effect before one fails, as ascending ranges that do not overlap.
struct RestyledRanges {
    RangeList merged;
    std::optional<RangeException> failure;
};

RestyledRanges findRestyledRanges(const char *operation, std::size_t length, const RangeList &ranges)
{
    RestyledRanges found;
    const RangeList sorted = sortedByLocation(ranges);
    const auto misfit =
        std::find_if(sorted.rbegin(), sorted.rend(), [length](const Range &range) { return !range.fits(length); });
    if (misfit != sorted.rend()) {
        found.failure.emplace(operation, *misfit, length);
    }
    for (auto range = misfit.base(); range != sorted.end(); ++range) {
        if (found.merged.empty() || range->location > found.merged.back().end()) {
            found.merged.push_back(*range);
        } else {
            Range &last = found.merged.back();
            last.length = std::max(last.end(), range->end()) - last.location;
        }
    }
    return found;
}

void restyle(const char *operation, AttributedString &text, const RangeList &ranges,
             const std::function<void(QVariantMap &)> &change)
{
    const RestyledRanges found = findRestyledRanges(operation, text.length(), ranges);
    text.changeAttributes(found.merged, change);
    if (found.failure) {
        throw RangeException(*found.failure);
    }
}

/// The line that holds the position `index`, which is not before `lineStart`.
Range lineHolding(std::u16string_view text, std::size_t lineStart, std::size_t index)
{
    const Range line = platform::lineRangeForRange(text.substr(lineStart), {index - lineStart, 0});
    return {lineStart + line.location, line.length};
}

} // namespace

namespace KZArrayExportAdditions {

RangeList ascendingSortedRanges(const RangeList &ranges)
{
    return sortedByLocation(ranges);
}

} // namespace KZArrayExportAdditions

namespace KZMutableStringExportAdditions {

void deleteCharactersInRanges(QString &text, const RangeList &ranges)
{
    deleteRanges(text, ranges);
}

void encloseRanges(QString &text, const RangeList &ranges, QStringView string)
{
    const std::u16string copy(units(string)); // it may view the very text that is changed
    withSortedRanges(
        ranges, [&](const RangeList &sorted) { encloseDisjointRanges(text, sorted, copy); },
        [&](const RangeList &sorted) {
            std::vector<char16_t> inserted;
            edit(text, [&](std::u16string_view given, TextEdits &edits) {
                findOverlappingEnclosures(given.size(), sorted, copy, inserted, edits);
            });
        });
}

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

void deleteCharactersInRanges(AttributedString &text, const RangeList &ranges)
{
    deleteRanges(text, ranges);
}

void addAttributes(AttributedString &text, const QVariantMap &attributes, const RangeList &ranges)
{
    restyle("addAttributes", text, ranges, [&](QVariantMap &present) { present.insert(attributes); });
}

void removeAttribute(AttributedString &text, const QString &name, const RangeList &ranges)
{
    restyle("removeAttribute", text, ranges, [&](QVariantMap &present) { present.remove(name); });
}

} // namespace KZMutableAttributedStringExportAdditions

namespace KZAttributedStringExportAdditions {

RangeList rangesForAttribute(const AttributedString &text, const QString &name, const QString &value)
{
    RangeList lines;
    Range line;
    const std::size_t length = text.length();
    for (std::size_t position = 0; position < length;) {
        Range run;
        const QVariant found = text.attribute(name, position, &run, {position, length - position});
        position = run.end();
        if (found.metaType() != QMetaType::fromType<QString>() || found.toString() != value) {
            continue;
        }
        for (std::size_t index = run.location; index < position; index = line.end()) {
            if (index >= line.end()) {
                line = lineHolding(units(text), line.end(), index);
            }
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace KZAttributedStringExportAdditions
