#pragma once

#include <QtCore/QVariant>

namespace platform {

/// How much lists and maps hold when each place counts where a list or a map stands that others share.
struct ValueExtent {
    quint64 size = 0; ///< in bytes: eight a value, and the units of strings, keys and data
    int nesting = 0;  ///< how many lists and maps are inside each other, counted no further than `furthestNesting`

    static constexpr int furthestNesting = 1000;
};

/// The extent of a value. A few small lists that share each other can hold more than anybody can count to; finding that
/// out takes no longer than the lists and maps that there are.
ValueExtent extentOf(const QVariant &value);

} // namespace platform
