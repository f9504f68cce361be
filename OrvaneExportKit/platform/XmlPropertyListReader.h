#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QVariant>

namespace platform {

/// The value of an XML property list. Throws a `PropertyListError` when the data is none.
QVariant readXmlPropertyList(QByteArrayView data);

} // namespace platform
