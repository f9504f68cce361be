#pragma once

#include <cstddef>
#include <limits>
#include <vector>

/// \file
/// For use on any thread, with objects of its own.

namespace platform {

/// What a search reports that finds nothing: the largest signed word value. It never stands inside a range list.
inline constexpr auto notFound = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max());

/// A stretch of UTF-16 code units: those at `location` up to but not including `location + length`.
///
/// An empty range (length 0) marks the position before the unit at `location`. A range refers to the text as it
/// stands when the range is used; nobody adjusts it for edits made in between.
///
///     Range word{4, 3};   // "bar" in "foo bar"
struct Range {
    std::size_t location = 0; ///< index of the first unit covered
    std::size_t length = 0;   ///< number of units covered

    /// The index right after the last unit covered. Meaningful for a range that fits a text.
    constexpr std::size_t end() const noexcept { return location + length; }

    /// Whether the range lies inside a text of `textLength` units; right for every value, however large.
    constexpr bool fits(std::size_t textLength) const noexcept
    {
        return location <= textLength && length <= textLength - location;
    }

    friend constexpr bool operator==(const Range &, const Range &) = default;
};

/// An ordered list of ranges without any further promise: they may stand in any order, overlap, repeat or be empty.
using RangeList = std::vector<Range>;

} // namespace platform
