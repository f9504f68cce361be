#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace platform {

/// A value of any kind as text, where a string is expected: a string as it is, a number in decimal, a boolean as 1 or
/// 0, a date in ISO 8601, bytes as UTF-8, a list or dictionary as compact JSON, nothing as the empty string, and any
/// other value by the name of its type in angle brackets.
///
/// Throws `InvalidArgumentException` for a list or dictionary that holds more than 1048576 bytes (eight a value, and
/// its texts; one that stands at several places counts at each), or is nested more than 512 deep.
QString description(const QVariant &value);

} // namespace platform
