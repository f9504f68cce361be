#pragma once

#include "HostError.h"

#include <OrvaneExportKit/platform/FileReplacement.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace host {

/// Writes a file as a whole: whatever happens, it holds the old or the new content, and when this returns, it is on
/// disk. Throws `HostError` when it can't be written.
void writeFile(const QString &path, const QByteArray &content);

/// What to tell about a file that is not on disk.
HostError notWritten(const platform::FileFailure &failure);

} // namespace host
