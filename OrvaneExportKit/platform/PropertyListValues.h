#pragma once

#include <QtCore/QVariant>

namespace platform {

/// The kinds of value that the writers tell apart.
enum class PropertyListKind {
    None, ///< not a property-list value
    String,
    SignedInteger,
    UnsignedInteger,
    Real,
    ShortReal, ///< a `float`, which the binary format keeps in four bytes
    Boolean,
    Date,
    Data,
    Uid,
    Array,      ///< `toList()` gives the elements
    Dictionary, ///< `toMap()` gives the entries
};

PropertyListKind propertyListKind(const QVariant &value);

/// An integer as it is read: a `qint64` where it fits, else a `quint64`.
QVariant integerValue(quint64 number);

} // namespace platform
