#include <OrvaneExportKit/text/ParagraphMarks.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/LiteralSearch.h>
#include <OrvaneExportKit/text/DisjointRanges.h>
#include <OrvaneExportKit/text/PositionSet.h>

#include <algorithm>

namespace platform {

namespace {

constexpr const char *operation = "deleteParagraphMark";

/// The usual list: what a range takes out lies before all that the ranges behind it took out, so the text as it was
/// tells everything.
void findInDisjointRanges(std::u16string_view text, std::u16string_view mark, const RangeList &ranges, TextEdits &edits)
{
    if (!ranges.empty()) {
        requireRange(operation, ranges.back(), text.size());
    }
    RangeList deletions; // from the last to the first
    // What stands behind the next deletion is no blank, so blanks end where it begins.
    std::size_t nextDeletion = text.size();
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        const std::size_t at = findLiteral(text.substr(range->location, range->length), mark, 0);
        if (at == notFound) {
            continue;
        }
        std::size_t end = range->location + at + mark.size();
        while (end < nextDeletion && text[end] == u' ') {
            ++end;
        }
        deletions.push_back({range->location, end - range->location});
        nextDeletion = range->location;
    }
    edits.reserve(deletions.size());
    std::for_each(deletions.rbegin(), deletions.rend(), [&](const Range &deletion) { edits.remove(deletion); });
}

/// A text from which units are deleted while the places of the mark in it are kept up to date. Positions count the
/// units that are left.
class MarkedText
{
public:
    MarkedText(std::u16string_view text, std::u16string_view mark)
        : m_text(text), m_mark(mark), m_left(PositionSet::all(text.size())), m_marks(text.size())
    {
        forEachLiteral(text, mark, 0, text.size(), [this](std::size_t at) { m_marks.insert(at); });
    }

    std::size_t length() const { return m_left.count(); }
    char16_t unitAt(std::size_t position) const { return m_text[m_left.nth(position)]; }

    /// The position of the first mark that lies wholly inside the range, or `notFound`.
    std::size_t findMark(Range range) const
    {
        if (range.length < m_mark.size() || range.length == 0) {
            return notFound;
        }
        const std::size_t marksBefore = m_marks.countBelow(m_left.nth(range.location));
        if (marksBefore == m_marks.count()) {
            return notFound;
        }
        const std::size_t at = m_left.countBelow(m_marks.nth(marksBefore));
        return at + m_mark.size() <= range.end() ? at : notFound;
    }

    void erase(Range range)
    {
        for (std::size_t count = 0; count < range.length; ++count) {
            const std::size_t unit = m_left.nth(range.location);
            m_left.erase(unit);
            m_marks.erase(unit);
        }
        findMarksAcross(range.location);
    }

    /// Appends the stretches of the original text that are gone.
    void appendDeletions(TextEdits &edits) const
    {
        for (std::size_t unit = 0; unit < m_text.size();) {
            const std::size_t start = unit;
            while (unit < m_text.size() && !m_left.contains(unit)) {
                ++unit;
            }
            if (unit > start) {
                edits.remove({start, unit - start});
            } else {
                ++unit;
            }
        }
    }

private:
    /// Brings up to date the marks that begin before `seam` and reach over it.
    void findMarksAcross(std::size_t seam)
    {
        const std::size_t reach = m_mark.size() - 1;
        const std::size_t start = seam - std::min(seam, reach);
        const std::size_t end = std::min(length(), seam + reach);
        std::u16string around;
        for (std::size_t position = start; position < end; ++position) {
            around += unitAt(position);
            if (position < seam) {
                m_marks.erase(m_left.nth(position));
            }
        }
        forEachLiteral(around, m_mark, 0, seam - start,
                       [&](std::size_t at) { m_marks.insert(m_left.nth(start + at)); });
    }

    std::u16string_view m_text;
    std::u16string_view m_mark;
    PositionSet m_left;
    PositionSet m_marks;
};

void findInAnyRanges(std::u16string_view text, std::u16string_view mark, const RangeList &ranges, TextEdits &edits)
{
    MarkedText marked(text, mark);
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        if (!range->fits(marked.length())) {
            marked.appendDeletions(edits);
            throw RangeException(operation, *range, marked.length());
        }
        const std::size_t at = marked.findMark(*range);
        if (at == notFound) {
            continue;
        }
        std::size_t end = at + mark.size();
        while (end < marked.length() && marked.unitAt(end) == u' ') {
            ++end;
        }
        marked.erase({range->location, end - range->location});
    }
    marked.appendDeletions(edits);
}

} // namespace

void findParagraphMarks(std::u16string_view text, std::u16string_view mark, const RangeList &ranges, TextEdits &edits)
{
    if (isAscendingAndDisjoint(ranges)) {
        findInDisjointRanges(text, mark, ranges, edits);
    } else {
        findInAnyRanges(text, mark, ranges, edits);
    }
}

} // namespace platform
