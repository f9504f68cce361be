#include <OrvaneExportKit/text/Occurrences.h>

#include <OrvaneExportKit/platform/LiteralSearch.h>

namespace platform {

std::size_t Replacements::operator()(std::u16string_view text, std::size_t from, std::size_t until,
                                     TextEdits &edits) const
{
    if (literal.size() > longestComparedLiteral) {
        until = text.size(); // such a search is prepared once and not for each block
    }
    std::size_t end = until;
    forEachOccurrence(text, literal, from, until, [&](std::size_t at) {
        end = at + literal.size();
        edits.replace({at, literal.size()}, replacement);
    });
    return std::max(end, until);
}

} // namespace platform
