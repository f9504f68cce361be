#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QString>
#include <QtCore/QStringDecoder>

#include <optional>

namespace platform {

/// A string from inside a file, with a U+FEFF at its start, which `QString::fromUtf8` takes for a byte order mark and
/// drops; nothing when the bytes are not UTF-8.
inline std::optional<QString> stringFromUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString string = decoder(bytes);
    if (decoder.hasError()) {
        return std::nullopt;
    }
    return string;
}

} // namespace platform
