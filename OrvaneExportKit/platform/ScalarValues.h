#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QVariant>

/// \file
/// How a stored value answers when it is asked for a scalar of one type.
///
/// | stored                     | answer                                                                        |
/// |----------------------------|-------------------------------------------------------------------------------|
/// | nothing, a null `QVariant` | zero, `false`                                                                 |
/// | integer, boolean           | as a cast of the number: -1 as unsigned is 4294967295, 200 as char is -56     |
/// | real                       | as a cast, 1.5 is 1 and `true`; a number outside an integer's range gives the |
/// |                            | nearest end of it, NaN gives 0                                                |
/// | string                     | the number that it starts with, see below                                     |
/// | anything else              | throws `UnrecognisedOperationException`, which names the reader and the kind  |
///
/// A string starts with white space, perhaps, a sign, perhaps, and decimal digits of ASCII; `floatValue` also takes a
/// fraction after a point and an exponent, whatever the locale. The rest does not matter: "12 pt" is 12, "0.5" is 0
/// and `false` but as a float 0.5. Without a number it is zero. A number outside the type's range gives the nearest end
/// of it, for a float infinity: "-1" as unsigned is 0, "200" as char is 127.
///
/// For use on any thread, with objects of its own.

namespace platform {

/// The value as a 32-bit float.
///
///     floatValue(u"1.5 lines"_s);   // 1.5f
ORVANE_CORE_EXPORT float floatValue(const QVariant &value);

/// The value as a signed integer of 32 bits.
///
///     intValue(1.5f);   // 1
ORVANE_CORE_EXPORT qint32 intValue(const QVariant &value);

/// The value as an unsigned integer of 32 bits.
///
///     unsignedIntValue(-1);   // 4294967295
ORVANE_CORE_EXPORT quint32 unsignedIntValue(const QVariant &value);

/// The value as an unsigned integer of 8 bits.
///
///     unsignedCharValue(300);   // 44
ORVANE_CORE_EXPORT quint8 unsignedCharValue(const QVariant &value);

/// The value as a signed integer of 8 bits.
///
///     charValue(200);   // -56
ORVANE_CORE_EXPORT qint8 charValue(const QVariant &value);

/// Whether the number is not zero. Words such as "YES" are no numbers, and `false`.
///
///     boolValue(1.5f);   // true
ORVANE_CORE_EXPORT bool boolValue(const QVariant &value);

} // namespace platform
