#include <OrvaneExportKit/platform/Exceptions.h>
#include <OrvaneExportKit/platform/LineRanges.h>
#include <OrvaneExportKit/platform/UnitSearch.h>

namespace platform {

namespace {

/// Whether `index` stands between the two units of U+000D U+000A, where no line ends.
bool isInsidePair(std::u16string_view text, std::size_t index)
{
    return index > 0 && index < text.size() && text[index - 1] == u'\r' && text[index] == u'\n';
}

struct LineTerminators {
    template <typename Units>
    constexpr auto operator()(Units units) const
    {
        return OneOf{u'\n', u'\r', u'\u0085'}(units) | isWithin(units, u'\u2028', u'\u2029');
    }
};

/// Most blocks of a text in ASCII are done with when no control character stands in them.
UnitMask fullMask(const char16_t *units, const LineTerminators &terminators)
{
    static constexpr AsciiSieve<1> candidates({{{u'\n', u'\r'}}}, true);
    return platform::fullMask(units, candidates) == 0 ? 0 : platform::fullMask<LineTerminators>(units, terminators);
}

std::size_t lineStart(std::u16string_view text, std::size_t index)
{
    const std::size_t start = findBehindLastUnit(text, 0, index, LineTerminators());
    return isInsidePair(text, start) ? lineStart(text, start - 1) : start;
}

} // namespace

std::size_t lineEnd(std::u16string_view text, std::size_t index) noexcept
{
    index = findUnit(text, index, LineTerminators());
    if (index == text.size()) {
        return index;
    }
    return isInsidePair(text, index + 1) ? index + 2 : index + 1;
}

Range lineRangeForRange(std::u16string_view text, Range range)
{
    requireRange("lineRangeForRange", range, text.size());
    const std::size_t start = lineStart(text, range.location);
    const std::size_t last = range.length == 0 ? range.location : range.end() - 1;
    return {start, lineEnd(text, last) - start};
}

} // namespace platform
