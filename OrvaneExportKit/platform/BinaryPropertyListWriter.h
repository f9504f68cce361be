#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVariant>

namespace platform {

/// The binary property list of a value that `requireWritable` has let pass.
QByteArray writeBinaryPropertyList(const QVariant &value);

} // namespace platform
