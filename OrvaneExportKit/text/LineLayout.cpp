#include <OrvaneExportKit/text/LineLayout.h>

#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/LiteralSearch.h>
#include <OrvaneExportKit/platform/TextEdits.h>

#include <algorithm>
#include <limits>
#include <new>
#include <string>

using platform::edit;
using platform::TextEdits;
using platform::units;

namespace {

/// Finds the unbroken run of tabs at the start of each line.
platform::RangeList findStartTabs(std::u16string_view text)
{
    platform::RangeList runs;
    platform::forEachUnit(text, 0, platform::OneOf<u'\t'>(), [&](std::size_t at) {
        if (!runs.empty() && at == runs.back().end()) {
            ++runs.back().length;
        } else if (at == 0 || text[at - 1] == u'\n') {
            runs.push_back({at, 1});
        }
    });
    return runs;
}

std::size_t longestLength(const platform::RangeList &ranges)
{
    std::size_t longest = 0;
    for (const platform::Range &range : ranges) {
        longest = std::max(longest, range.length);
    }
    return longest;
}

/// As many spaces for each of `tabs` tabs; throws where no memory could hold them.
std::u16string spacesForTabs(std::size_t tabs, std::size_t spaces)
{
    if (spaces > 0 && tabs > std::u16string().max_size() / spaces) {
        throw std::bad_alloc();
    }
    return std::u16string(tabs * spaces, u' ');
}

/// Finds the line feeds before another one.
constexpr auto findEmptyLines = [](std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits) {
    platform::forEachLiteral<platform::Expected::Often>(text, u"\n\n", from, until, [&](std::size_t at) {
        edits.remove({at, 1});
    });
    return until;
};

/// The units behind which a line may end.
struct BreakCharacters {
    static constexpr bool asBytes = true;

    template <typename Units>
    constexpr auto operator()(Units units) const
    {
        using platform::isWithin;
        return isWithin(units, u'\0', u'!') | isWithin(units, u'#', u'&') | isWithin(units, u')', u'/') |
               isWithin(units, u':', u'@') | isWithin(units, u'\\', u']') | isWithin(units, u'|', u'~');
    }
};

/// Finds the places where lines that are too long are broken. The text is taken as if a line feed were appended, so
/// that every line has a terminator.
class LineBreaker
{
public:
    explicit LineBreaker(std::size_t limit) : m_limit(limit) {}

    std::size_t operator()(std::u16string_view text, std::size_t from, std::size_t until, TextEdits &edits)
    {
        std::size_t start = from;
        while (start < until) {
            if (start == m_end) {
                m_end = lineEnd(text, start);
            }
            if (m_end - start <= m_limit + 1) {
                start = m_end;
                continue;
            }
            const std::size_t gap = skipSpacesBackwards(text, start, breakPosition(text, start));
            if (gap == 0) {
                m_fails = true;
                return text.size();
            }
            start = skipSpaces(text, gap);
            edits.replace({gap, start - gap}, u"\n");
        }
        return std::min(start, text.size());
    }

    /// Whether the first line cannot be broken, which ends the search.
    bool fails() const { return m_fails; }

private:
    static std::size_t lineEnd(std::u16string_view text, std::size_t index)
    {
        const std::size_t end = platform::lineEnd(text, index);
        const bool joinsAppended =
            end == text.size() && (!platform::isLineTerminator(text.back()) || text.back() == u'\r');
        return joinsAppended ? end + 1 : end;
    }

    /// The position behind the last break character among the first units of the line, or else behind its first unit.
    std::size_t breakPosition(std::u16string_view text, std::size_t start)
    {
        const std::size_t floor = std::max(start, m_searchedUpTo);
        m_searchedUpTo = start + m_limit;
        const std::size_t position = floor < m_searchedUpTo
                                         ? platform::findBehindLastUnit(text, floor, m_searchedUpTo, BreakCharacters())
                                         : floor;
        return position > floor ? position : start + 1;
    }

    static std::size_t skipSpacesBackwards(std::u16string_view text, std::size_t start, std::size_t position)
    {
        while (position > start && text[position - 1] == u' ') {
            --position;
        }
        return position;
    }

    static std::size_t skipSpaces(std::u16string_view text, std::size_t position)
    {
        while (position < text.size() && text[position] == u' ') {
            ++position;
        }
        return position;
    }

    std::size_t m_limit;
    std::size_t m_end = 0;          // behind the terminator of the line
    std::size_t m_searchedUpTo = 0; // no break character stands between the start of the line and here
    bool m_fails = false;
};

} // namespace

namespace KZMutableStringExportAdditions {

void convertStartTabsToSpace(QString &text, quint32 spaces)
{
    const platform::RangeList runs = findStartTabs(units(text));
    const std::u16string longest = spacesForTabs(longestLength(runs), spaces);
    TextEdits edits;
    edits.reserve(runs.size());
    for (const platform::Range &run : runs) {
        edits.replace(run, std::u16string_view(longest).substr(0, run.length * spaces));
    }
    edit(text, edits);
}

void deleteEmptyLines(QString &text)
{
    edit(text, findEmptyLines);
}

void setMaxLineLength(QString &text, quint32 limit)
{
    if (limit == std::numeric_limits<quint32>::max()) {
        return;
    }
    LineBreaker lineBreaker(limit);
    edit(text, lineBreaker);
    if (lineBreaker.fails()) {
        text.append(u'\n');
        constexpr platform::Range beforeTheText{std::numeric_limits<std::size_t>::max(), 1};
        throw platform::RangeException("setMaxLineLength", beforeTheText, units(text).size());
    }
}

} // namespace KZMutableStringExportAdditions
