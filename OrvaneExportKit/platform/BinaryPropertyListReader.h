#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QVariant>

namespace platform {

/// The value of a binary property list. Throws a `PropertyListError` when the data is none.
QVariant readBinaryPropertyList(QByteArrayView data);

} // namespace platform
