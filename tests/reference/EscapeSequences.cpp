#include <tests/reference/EscapeSequences.h>

#include <tests/reference/Editing.h>

#include <algorithm>

namespace reference {

namespace {

void replaceAll(std::u16string &text, std::u16string_view sought, std::u16string_view replacement)
{
    replaceOccurrencesOfString(text, sought, replacement, {0, text.size()});
}

} // namespace

std::u16string stringWithConvertedEscSequences(const std::u16string &text)
{
    std::u16string result = text;
    replaceAll(result, u"\\f", u"\f");
    replaceAll(result, u"\\n", u"\n");
    replaceAll(result, u"\\t", u"\t");
    replaceAll(result, u"\\\f", u"\\f");
    replaceAll(result, u"\\\n", u"\\n");
    replaceAll(result, u"\\\t", u"\\t");
    return result;
}

std::u16string stringWithConvertedStringsFromArray(const std::u16string &text, const std::vector<std::u16string> &from,
                                                   const std::vector<std::u16string> &to)
{
    std::u16string result = text;
    for (std::size_t i = std::min(from.size(), to.size()); i > 0; --i) {
        replaceAll(result, from[i - 1], to[i - 1]);
    }
    return result;
}

} // namespace reference
