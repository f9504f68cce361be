#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

namespace platform {

/// The XML property list of a value that `requireWritable` has let pass.
QByteArray writeXmlPropertyList(const QVariant &value);

} // namespace platform
