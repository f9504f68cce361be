#include <OrvaneExportKit/text/Occurrences.h>

#include <OrvaneExportKit/platform/UnitSearch.h>

namespace platform {

std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from)
{
    if (literal.empty()) {
        return notFound;
    }
    const auto find = [&](const auto &first) {
        for (std::size_t at = from; at < text.size(); ++at) {
            at = findUnit(text, at, first);
            if (text.substr(at).starts_with(literal)) {
                return at;
            }
        }
        return notFound;
    };
    const char16_t first = literal.front();
    return fitsByte(first) ? find(Exactly<true>{first}) : find(Exactly<false>{first});
}

std::size_t Replacements::operator()(std::u16string_view text, std::size_t from, std::size_t until,
                                     TextEdits &edits) const
{
    std::size_t end = until;
    forEachOccurrence(text, literal, from, until, [&](std::size_t at) {
        end = at + literal.size();
        edits.push_back({{at, literal.size()}, replacement});
    });
    return std::max(end, until);
}

} // namespace platform
