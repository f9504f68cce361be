#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QString>

#include <string>

namespace platform {

/// The text of an XML file as UTF-8 without byte order mark. The encoding is told by the byte order mark, by the first
/// character (`<`) or by the XML declaration, in this order, and is else UTF-8.
///
/// The result may refer to `data`, which must outlive it. Throws a `PropertyListError` when the encoding is not known
/// or the bytes do not fit it.
QByteArray xmlText(QByteArrayView data);

void appendUtf8(std::string &text, char32_t character);

/// Throws a `PropertyListError` whose place is the line and column right after the given UTF-8 text.
[[noreturn]] void failAfter(QByteArrayView textBefore, const QString &complaint);

} // namespace platform
