#include <tests/reference/PlainText.h>

#include <OrvaneExportKit/platform/Exceptions.h>

#include <limits>

using platform::Range;
using platform::RangeList;

namespace reference {

namespace {

/// Every line of the text. Behind the last terminator stands one more line, which may be empty.
RangeList lines(std::u16string_view text)
{
    RangeList result;
    std::size_t start = 0;
    std::size_t index = 0;
    while (index < text.size()) {
        const char16_t unit = text[index];
        ++index;
        if (unit == 0x000D && index < text.size() && text[index] == 0x000A) {
            ++index;
            result.push_back({start, index - start});
            start = index;
        } else if (unit == 0x000A || unit == 0x000D || unit == 0x0085 || unit == 0x2028 || unit == 0x2029) {
            result.push_back({start, index - start});
            start = index;
        }
    }
    result.push_back({start, text.size() - start});
    return result;
}

/// The last line that starts at or before the index.
Range lineHolding(const RangeList &lines, std::size_t index)
{
    Range result;
    for (const Range line : lines) {
        if (line.location <= index) {
            result = line;
        }
    }
    return result;
}

} // namespace

void requireInside(const char *operation, Range range, std::size_t textLength)
{
    const bool overflows = range.length > std::numeric_limits<std::size_t>::max() - range.location;
    if (overflows || range.location + range.length > textLength) {
        throw platform::RangeException(operation, range, textLength);
    }
}

Range rangeOfString(std::u16string_view text, std::u16string_view sought, Range range)
{
    requireInside("rangeOfString", range, text.size());
    if (sought.empty()) {
        return {platform::notFound, 0};
    }
    for (std::size_t location = range.location; location + sought.size() <= range.end(); ++location) {
        if (text.substr(location, sought.size()) == sought) {
            return {location, sought.size()};
        }
    }
    return {platform::notFound, 0};
}

Range lineRangeForRange(std::u16string_view text, Range range)
{
    requireInside("lineRangeForRange", range, text.size());
    const RangeList all = lines(text);
    const Range first = lineHolding(all, range.location);
    const Range last = range.length == 0 ? first : lineHolding(all, range.end() - 1);
    return {first.location, last.end() - first.location};
}

void replaceCharactersInRange(std::u16string &text, Range range, std::u16string_view string)
{
    requireInside("replaceCharactersInRange", range, text.size());
    text = text.substr(0, range.location) + std::u16string(string) + text.substr(range.end());
}

void deleteCharactersInRange(std::u16string &text, Range range)
{
    replaceCharactersInRange(text, range, u"");
}

void insertString(std::u16string &text, std::u16string_view string, std::size_t index)
{
    replaceCharactersInRange(text, {index, 0}, string);
}

} // namespace reference
