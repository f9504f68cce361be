#include <OrvaneExportKit/text/Typography.h>

#include <OrvaneExportKit/platform/AttributedString.h>
#include <OrvaneExportKit/platform/UnitSearch.h>
#include <OrvaneExportKit/text/Occurrences.h>

#include <algorithm>

using platform::AttributedString;

namespace {

constexpr char16_t straightApostrophe = u'\'';
constexpr char16_t typographicApostrophe = u'\u2019';

template <typename Text>
void replaceAll(Text &text, std::u16string_view literal, std::u16string_view replacement)
{
    platform::edit(text, platform::Replacements{literal, replacement});
}

/// Compilers write many units at once where every one is written, changed or not.
void correctStretch(char16_t *units, std::size_t count)
{
    constexpr char16_t difference = straightApostrophe ^ typographicApostrophe;
    for (std::size_t index = 0; index < count; ++index) {
        const char16_t mask = units[index] == straightApostrophe ? u'\uFFFF' : u'\0';
        units[index] = static_cast<char16_t>(units[index] ^ (mask & difference));
    }
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
    constexpr platform::OneOf<straightApostrophe> kind{};
    std::size_t at = platform::findUnit(platform::units(text), 0, kind);
    if (at == platform::units(text).size()) {
        return;
    }
    auto *const units = reinterpret_cast<char16_t *>(text.data());
    const std::u16string_view view(units, static_cast<std::size_t>(text.size()));
    for (; at < view.size(); at += platform::maskedUnits) {
        if (platform::nextMaskOf(view, at, kind) != 0) {
            correctStretch(units + at, std::min(platform::maskedUnits, view.size() - at));
        }
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
