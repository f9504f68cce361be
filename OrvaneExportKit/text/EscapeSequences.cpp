#include <OrvaneExportKit/text/EscapeSequences.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/Occurrences.h>

#include <algorithm>
#include <optional>

using platform::TextEdits;
using platform::units;

namespace {

constexpr std::u16string_view letters = u"fnt";
constexpr std::u16string_view controls = u"\f\n\t";

/// The unit, as a string, that stands in `to` where `unit` stands in `from`.
std::optional<std::u16string_view> counterpart(char16_t unit, std::u16string_view from, std::u16string_view to)
{
    const std::size_t index = from.find(unit);
    return index == from.npos ? std::nullopt : std::optional(to.substr(index, 1));
}

/// A sequence becomes its control character, but loses only its backslash behind another one; a control character
/// behind a backslash becomes its letter.
TextEdits findEscapeSequences(std::u16string_view text)
{
    TextEdits edits;
    for (std::size_t at = platform::findLiteral(text, u"\\", 0); at != platform::notFound && at + 1 < text.size();
         at = platform::findLiteral(text, u"\\", at + 1)) {
        if (const auto control = counterpart(text[at + 1], letters, controls)) {
            const bool escaped = at > 0 && text[at - 1] == u'\\';
            edits.push_back(escaped ? platform::TextEdit{{at, 1}} : platform::TextEdit{{at, 2}, *control});
        } else if (const auto letter = counterpart(text[at + 1], controls, letters)) {
            edits.push_back({{at + 1, 1}, *letter});
        }
    }
    return edits;
}

} // namespace

namespace KZStringExportAdditions {

QString stringWithConvertedEscSequences(QStringView text)
{
    QString converted = text.toString();
    applyEdits(converted, findEscapeSequences(units(text)));
    return converted;
}

QString stringWithConvertedStringsFromArray(QStringView text, const QStringList &from, const QStringList &to)
{
    QString converted = text.toString();
    for (qsizetype pair = std::min(from.size(), to.size()); pair-- > 0;) {
        applyEdits(converted, platform::findReplacements(units(converted), units(from[pair]), units(to[pair])));
    }
    return converted;
}

} // namespace KZStringExportAdditions
