#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QtEndian>

namespace platform {

/// What the archives of `Archiver` begin with: the letters OEKA.
inline constexpr quint32 archiveMagicNumber = 0x4F454B41;

/// Whether the data begins as the archives of `Archiver` do.
inline bool isNonKeyedArchive(QByteArrayView data)
{
    return data.size() >= qsizetype{sizeof archiveMagicNumber} &&
           qFromBigEndian<quint32>(data.data()) == archiveMagicNumber;
}

/// Whether the data is an archive of the old kind without keys that other programs wrote. It begins with its version
/// and its name, spelt in the order of the machine's bytes.
inline bool isTypedStream(QByteArrayView data)
{
    return data.startsWith("\x04\x0Bstreamtyped") || data.startsWith("\x04\x0Btypedstream");
}

/// What readers say of one.
inline QString typedStreamComplaint()
{
    return QStringLiteral(
        "is a typedstream, an archive without keys that another program wrote, which is not read here");
}

} // namespace platform
