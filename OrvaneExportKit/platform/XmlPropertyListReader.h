#pragma once

#include <OrvaneExportKit/platform/PropertyList.h>

#include <QtCore/QByteArrayView>
#include <QtCore/QVariant>

namespace platform {

/// The value of an XML property list. Throws a `PropertyListError` when the data is none.
QVariant readXmlPropertyList(QByteArrayView data, PropertyList::XmlUids xmlUids);

} // namespace platform
