#include <tests/reference/Typography.h>

#include <tests/reference/Editing.h>

namespace reference {

namespace {

template <typename Text>
void replaceAll(Text &text, std::u16string_view sought, std::u16string_view replacement)
{
    replaceOccurrencesOfString(text, sought, replacement, {0, units(text).size()});
}

} // namespace

template <typename Text>
void convertEllipses(Text &text)
{
    replaceAll(text, u"...", u"\u2026");
}

template <typename Text>
void correctApostrophes(Text &text)
{
    replaceAll(text, u"'", u"\u2019");
}

template <typename Text>
void correctDashes(Text &text)
{
    replaceAll(text, u"--", u"\u2013");
}

template void convertEllipses(std::u16string &text);
template void convertEllipses(NaiveAttributedString &text);
template void correctApostrophes(std::u16string &text);
template void correctApostrophes(NaiveAttributedString &text);
template void correctDashes(std::u16string &text);
template void correctDashes(NaiveAttributedString &text);

} // namespace reference
