#pragma once

#include <tests/reference/NaiveAttributedString.h>
#include <tests/reference/PlainText.h>

#include <OrvaneExportKit/platform/Range.h>

#include <string>
#include <string_view>
#include <vector>

/// \file
/// Edits written once for both kinds of `Text`: plain `std::u16string` and `NaiveAttributedString`.

namespace reference {

inline const std::u16string &units(const std::u16string &text)
{
    return text;
}

inline const std::u16string &units(const NaiveAttributedString &text)
{
    return text.units;
}

/// Replaces every occurrence inside the range from left to right. What was put in is not searched again.
template <typename Text>
void replaceOccurrencesOfString(Text &text, std::u16string_view sought, std::u16string_view replacement,
                                platform::Range range)
{
    requireInside("replaceOccurrencesOfString", range, units(text).size());
    std::size_t location = range.location;
    std::size_t end = range.end();
    while (true) {
        const platform::Range found = rangeOfString(units(text), sought, {location, end - location});
        if (found.location == platform::notFound) {
            return;
        }
        replaceCharactersInRange(text, found, replacement);
        location = found.location + replacement.size();
        end = end - sought.size() + replacement.size();
    }
}

/// Throws what a whole list of ranges is refused for before any of them takes effect.
void requireAscendingRanges(const platform::RangeList &ranges, std::size_t textLength);

/// One replacement of a whole list.
struct Edit {
    platform::Range range;
    std::u16string string;
};

/// Carries out ascending edits that do not overlap, the last one first, so that none moves the range of another. New
/// units take attributes of the text as it was before the first edit.
void applyEdits(std::u16string &text, const std::vector<Edit> &edits);
void applyEdits(NaiveAttributedString &text, const std::vector<Edit> &edits);

} // namespace reference
