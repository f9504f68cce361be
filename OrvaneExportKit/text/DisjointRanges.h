#pragma once

#include <OrvaneExportKit/platform/Range.h>

#include <algorithm>

namespace platform {

/// Whether each range begins behind the end of the one before it, or right there.
inline bool isAscendingAndDisjoint(const RangeList &ranges)
{
    const auto meets = [](const Range &a, const Range &b) {
        return b.location < a.location || a.length > b.location - a.location;
    };
    return std::adjacent_find(ranges.begin(), ranges.end(), meets) == ranges.end();
}

} // namespace platform
