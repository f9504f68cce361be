#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/Range.h>

#include <string_view>

/// \file
/// For use on any thread, with objects of its own.

namespace platform {

/// Whether the unit ends a line by itself: U+000A, U+000D, U+0085, U+2028 or U+2029.
///
/// The sixth terminator, the pair U+000D U+000A, counts as one; `lineRangeForRange` takes care of it.
constexpr bool isLineTerminator(char16_t unit) noexcept
{
    return unit == u'\n' || unit == u'\r' || unit == u'\u0085' || unit == u'\u2028' || unit == u'\u2029';
}

/// The index right after the terminator of the line that holds the unit at `index`, or the text's length when the
/// last line has none. `index` counts UTF-16 code units and is at most the length.
ORVANE_CORE_EXPORT std::size_t lineEnd(std::u16string_view text, std::size_t index) noexcept;

/// The whole lines, terminators included, that hold `range`; for an empty range the one line that holds its position.
///
/// At the end of a text that ends with a terminator this is the empty range behind it. A position between the two
/// units of U+000D U+000A belongs to the line that the pair ends.
/// Throws `RangeException` when the range reaches past the end of the text.
///
///     lineRangeForRange(u"one\ntwo\n", {5, 0});   // {4, 4}
ORVANE_CORE_EXPORT Range lineRangeForRange(std::u16string_view text, Range range);

} // namespace platform
