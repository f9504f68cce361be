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

using LineTerminators = OneOf<u'\n', u'\r', u'\u0085', u'\u2028', u'\u2029'>;

/// The line terminators and some units more, which are quicker to tell from the rest.
struct PossibleTerminators {
    static constexpr bool asBytes = true;

    template <typename Units>
    Q_ALWAYS_INLINE constexpr auto operator()(Units units) const
    {
        return isWithin(units, u'\n', u'\r') | isOutside(units, u'\0', u'\x7E');
    }
};

std::size_t lineStart(std::u16string_view text, std::size_t index)
{
    const std::size_t start = findBehindLastUnit(text, 0, index, LineTerminators());
    return isInsidePair(text, start) ? lineStart(text, start - 1) : start;
}

} // namespace

std::size_t lineEnd(std::u16string_view text, std::size_t index) noexcept
{
    index = findUnit(text, index, PossibleTerminators());
    if (index < text.size() && !isLineTerminator(text[index])) {
        index = findUnit(text, index, LineTerminators());
    }
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
