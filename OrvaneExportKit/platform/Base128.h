#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

#include <optional>

/// \file
/// Numbers in groups of seven bits, the lowest first; the high bit of a byte says that more follow.

namespace platform {

/// Takes the number off the start of the bytes; nothing when it is cut off or above 2^63.
std::optional<quint64> takeBase128(QByteArrayView &bytes);

void appendBase128(QByteArray &bytes, quint64 number);

} // namespace platform
