#pragma once

#include <QtCore/QVariant>

namespace support {

/// A list of lists of lists, so many levels deep, each of which holds the one below it 200 times: a few kilobytes that
/// hold more values than anybody can count to.
inline QVariantList sharedLists(int levels = 40)
{
    QVariantList list{QStringLiteral("innermost")};
    for (int level = 1; level < levels; ++level) {
        list = QVariantList(200, list);
    }
    return list;
}

} // namespace support
