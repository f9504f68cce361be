#include <OrvaneExportKit/text/LineLayout.h>

#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/FoundEdits.h>
#include <OrvaneExportKit/text/Occurrences.h>
#include <OrvaneExportKit/text/TaggedSpans.h>

#include <algorithm>
#include <limits>

using platform::FoundEdits;
using platform::Range;
using platform::RangeList;
using platform::TextEdits;
using platform::units;

namespace {

/// The unbroken run of tabs at the start of each line.
RangeList findStartTabs(QStringView text)
{
    RangeList lines = KZStringExportAdditions::lineRangesForLevelString(text, u"\t");
    for (Range &line : lines) {
        const std::u16string_view content = units(text).substr(line.location, line.length);
        line.length = std::min(content.find_first_not_of(u'\t'), content.size());
    }
    return lines;
}

TextEdits findEmptyLines(std::u16string_view text)
{
    TextEdits edits;
    for (std::size_t at = platform::findLiteral(text, u"\n\n", 0); at != platform::notFound;) {
        const std::size_t end = std::min(text.find_first_not_of(u'\n', at), text.size());
        edits.push_back({{at, end - at - 1}});
        at = platform::findLiteral(text, u"\n\n", end);
    }
    return edits;
}

/// Whether a line may end behind the unit.
constexpr bool isBreakCharacter(char16_t unit)
{
    return (unit <= u'/' && unit != u'"' && unit != u'\'' && unit != u'(') || (unit >= u':' && unit <= u'@') ||
           unit == u'\\' || unit == u']' || (unit >= u'|' && unit <= u'~');
}

/// Finds the places where lines that are too long are broken. The text is taken as if a line feed were appended, so
/// that every line has a terminator.
class LineBreaker
{
public:
    LineBreaker(std::u16string_view text, std::size_t limit) : m_text(text), m_limit(limit) {}

    FoundEdits findBreaks()
    {
        FoundEdits found;
        while (m_start < m_text.size()) {
            if (m_start == m_end) {
                m_end = lineEnd(m_start);
            }
            if (m_end - m_start <= m_limit + 1) {
                m_start = m_end;
                continue;
            }
            const std::size_t gap = skipSpacesBackwards(breakPosition());
            if (gap == 0) {
                constexpr Range beforeTheText{std::numeric_limits<std::size_t>::max(), 1};
                found.failure.emplace("setMaxLineLength", beforeTheText, m_text.size() + 1);
                break;
            }
            const std::size_t next = skipSpaces(gap);
            found.edits.push_back({{gap, next - gap}, u"\n"});
            m_start = next;
        }
        return found;
    }

private:
    std::size_t lineEnd(std::size_t index) const
    {
        const std::size_t end = platform::lineEnd(m_text, index);
        const bool joinsAppended =
            end == m_text.size() && (!platform::isLineTerminator(m_text.back()) || m_text.back() == u'\r');
        return joinsAppended ? end + 1 : end;
    }

    /// The position behind the last break character among the first units of the line, or else behind its first unit.
    std::size_t breakPosition()
    {
        const std::size_t floor = std::max(m_start, m_searchedUpTo);
        std::size_t position = m_start + m_limit;
        m_searchedUpTo = position;
        while (position > floor && !isBreakCharacter(m_text[position - 1])) {
            --position;
        }
        return position > floor ? position : m_start + 1;
    }

    std::size_t skipSpacesBackwards(std::size_t position) const
    {
        while (position > m_start && m_text[position - 1] == u' ') {
            --position;
        }
        return position;
    }

    std::size_t skipSpaces(std::size_t position) const
    {
        return std::min(m_text.find_first_not_of(u' ', position), m_text.size());
    }

    std::u16string_view m_text;
    std::size_t m_limit;
    std::size_t m_start = 0;        // of the line looked at
    std::size_t m_end = 0;          // behind its terminator
    std::size_t m_searchedUpTo = 0; // no break character stands between m_start and here
};

} // namespace

namespace KZMutableStringExportAdditions {

void convertStartTabsToSpace(QString &text, quint32 spaces)
{
    const RangeList tabs = findStartTabs(text);
    if (tabs.empty()) {
        return;
    }
    const QString replacement(static_cast<qsizetype>(spaces), u' ');
    TextEdits edits;
    for (const Range &run : tabs) {
        for (std::size_t at = run.location; at < run.end(); ++at) {
            edits.push_back({{at, 1}, units(replacement)});
        }
    }
    applyEdits(text, edits);
}

void deleteEmptyLines(QString &text)
{
    applyEdits(text, findEmptyLines(units(text)));
}

void setMaxLineLength(QString &text, quint32 limit)
{
    if (limit == std::numeric_limits<quint32>::max()) {
        return;
    }
    const FoundEdits found = LineBreaker(units(text), limit).findBreaks();
    if (found.failure) {
        text.append(u'\n');
    }
    carryOut(text, found);
}

} // namespace KZMutableStringExportAdditions
