#include <OrvaneExportKit/text/Typography.h>

#include <OrvaneExportKit/platform/TextUnits.h>
#include <OrvaneExportKit/text/Occurrences.h>

using platform::AttributedString;
using platform::units;

namespace {

template <typename Text>
void replaceAll(Text &text, std::u16string_view literal, std::u16string_view replacement)
{
    applyEdits(text, platform::findReplacements(units(text), literal, replacement));
}

template <typename Text>
void replaceFullStops(Text &text)
{
    replaceAll(text, u"...", u"\u2026");
}

template <typename Text>
void replaceApostrophes(Text &text)
{
    replaceAll(text, u"'", u"\u2019");
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
    replaceApostrophes(text);
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
    replaceApostrophes(text);
}

void correctDashes(AttributedString &text)
{
    replaceHyphens(text);
}

} // namespace KZMutableAttributedStringExportAdditions
