#pragma once

#include <QtCore/QtGlobal>

/// \file
/// The layout of a binary property list: header, objects, a table of the objects' positions, and a trailer; every
/// number is big-endian.

namespace platform {

inline constexpr qsizetype binaryHeaderSize = 8;
inline constexpr qsizetype binaryTrailerSize = 32;

/// The high half of the byte that an object begins with. The low half is its count, or a detail of the type.
enum class BinaryType : quint8 {
    Simple = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiString = 0x5,
    Utf16String = 0x6,
    Uid = 0x8,
    Array = 0xA,
    Set = 0xC,
    Dictionary = 0xD,
};

/// The low half that says that the count follows as an integer object.
inline constexpr quint8 binaryCountFollows = 0xF;

inline constexpr quint8 binaryNull = 0x00;
inline constexpr quint8 binaryFalse = 0x08;
inline constexpr quint8 binaryTrue = 0x09;
inline constexpr quint8 binaryDate = 0x33;

/// Dates count seconds from the start of 2001 in UTC, here in milliseconds since 1970.
inline constexpr qint64 binaryDateOrigin = 978'307'200'000;

} // namespace platform
