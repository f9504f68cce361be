#include <OrvaneExportKit/text/Typography.h>

#include <OrvaneExportKit/platform/UnitSearch.h>
#include <OrvaneExportKit/text/FoundEdits.h>
#include <OrvaneExportKit/text/Occurrences.h>

using platform::AttributedString;

namespace {

constexpr char16_t straightApostrophe = u'\'';
constexpr char16_t typographicApostrophe = u'\u2019';

template <typename Text>
void replaceAll(Text &text, std::u16string_view literal, std::u16string_view replacement)
{
    platform::carryOutFound(text, platform::Replacements{literal, replacement});
}

template <typename Text>
void replaceFullStops(Text &text)
{
    replaceAll(text, u"...", u"\u2026");
}

template <typename Text>
void replaceHyphens(Text &text)
{
    replaceAll(text, u"--", u"\u2013");
}

} // namespace

namespace KZMutableStringExportAdditions {

void convertEllipses(QString &text)
{
    replaceFullStops(text);
}

void correctApostrophes(QString &text)
{
    const std::u16string_view found = platform::units(text);
    const std::size_t first = platform::findUnit(found, 0, platform::OneOf<straightApostrophe>());
    if (first == found.size()) {
        return;
    }
    // Compilers write many units at once where every one is written, changed or not.
    constexpr char16_t difference = straightApostrophe ^ typographicApostrophe;
    auto *const units = reinterpret_cast<char16_t *>(text.data());
    for (std::size_t index = first; index < found.size(); ++index) {
        const char16_t mask = units[index] == straightApostrophe ? u'\uFFFF' : u'\0';
        units[index] = static_cast<char16_t>(units[index] ^ (mask & difference));
    }
}

void correctDashes(QString &text)
{
    replaceHyphens(text);
}

} // namespace KZMutableStringExportAdditions

namespace KZMutableAttributedStringExportAdditions {

void convertEllipses(AttributedString &text)
{
    replaceFullStops(text);
}

void correctApostrophes(AttributedString &text)
{
    replaceAll(text, {&straightApostrophe, 1}, {&typographicApostrophe, 1});
}

void correctDashes(AttributedString &text)
{
    replaceHyphens(text);
}

} // namespace KZMutableAttributedStringExportAdditions
