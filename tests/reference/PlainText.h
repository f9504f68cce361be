#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <string>
#include <string_view>

/// \file
/// What the step-by-step versions take for granted on a plain text, each in its most literal form.

namespace reference {

/// Throws `platform::RangeException` when the range reaches past the end of a text of `textLength` units.
void requireInside(const char *operation, platform::Range range, std::size_t textLength);

/// The first occurrence of `sought` inside `range`, or the location `platform::notFound`. An empty string is never
/// found.
platform::Range rangeOfString(std::u16string_view text, std::u16string_view sought, platform::Range range);

/// The whole lines, terminators included, that hold the range.
platform::Range lineRangeForRange(std::u16string_view text, platform::Range range);

/// The edits below throw `platform::RangeException` when they reach past the end, and then change nothing.
void replaceCharactersInRange(std::u16string &text, platform::Range range, std::u16string_view string);
void deleteCharactersInRange(std::u16string &text, platform::Range range);
void insertString(std::u16string &text, std::u16string_view string, std::size_t index);

} // namespace reference
