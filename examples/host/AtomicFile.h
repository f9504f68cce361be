#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace host {

/// Writes a file as a whole: whatever happens, it holds the old or the new content.
/// Throws `HostError` when it can't be written.
void writeFile(const QString &path, const QByteArray &content);

} // namespace host
