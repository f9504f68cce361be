#include <OrvaneExportKit/text/Occurrences.h>

#include <OrvaneExportKit/platform/TextUnits.h>

namespace platform {

std::size_t findLiteral(std::u16string_view text, std::u16string_view literal, std::size_t from)
{
    if (literal.empty()) {
        return notFound;
    }
    // Qt's search for one unit is vectorised, its search for a short string is not.
    const QStringView searched = view(text);
    qsizetype at = searched.indexOf(QChar(literal.front()), static_cast<qsizetype>(from));
    while (at >= 0) {
        const auto place = static_cast<std::size_t>(at);
        if (text.substr(place).starts_with(literal)) {
            return place;
        }
        at = searched.indexOf(QChar(literal.front()), at + 1);
    }
    return notFound;
}

TextEdits findReplacements(std::u16string_view text, std::u16string_view literal, std::u16string_view replacement)
{
    TextEdits edits;
    for (std::size_t at = findLiteral(text, literal, 0); at != notFound;
         at = findLiteral(text, literal, at + literal.size())) {
        edits.push_back({{at, literal.size()}, replacement});
    }
    return edits;
}

} // namespace platform
