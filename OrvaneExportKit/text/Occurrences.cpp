#include <OrvaneExportKit/text/Occurrences.h>

#include <OrvaneExportKit/platform/UnitSearch.h>

namespace platform {

std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from)
{
    if (literal.empty()) {
        return notFound;
    }
    const OneOf first{literal.front()};
    for (std::size_t at = from; at < text.size(); ++at) {
        at = findUnit(text, at, first);
        if (text.substr(at).starts_with(literal)) {
            return at;
        }
    }
    return notFound;
}

std::size_t Replacements::operator()(std::u16string_view text, std::size_t from, std::size_t until,
                                     TextEdits &edits) const
{
    std::size_t next = from;
    forEachLiteral(text, literal, from, until, [&](std::size_t at) {
        if (at >= next) {
            edits.push_back({{at, literal.size()}, replacement});
            next = at + literal.size();
        }
    });
    return std::max(next, until);
}

} // namespace platform
