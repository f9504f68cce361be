#pragma once

#include "HostError.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace host {

/// An error in what the user gave as manuscript.
HostError manuscriptError(const QString &message);

/// The bytes of a file of the manuscript. Throws `HostError` when it can't be read.
QByteArray fileContent(const QString &path);

/// A place in a file as text editors count it: "line 3, column 14".
QString placeAt(const QByteArray &content, qsizetype offset);

} // namespace host
