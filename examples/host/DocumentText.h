#pragma once

#include <OrvaneExportKit/platform/AttributedString.h>

#include <QtCore/QString>

namespace host {

/// The text of a document: a text file in UTF-8, or a keyed archive of a string or an attributed string.
///
/// An archive is a file whose name ends in ".archive", or whose content begins as binary archives do.
/// Throws `HostError` when the file can't be read or is neither.
platform::AttributedString documentText(const QString &path);

/// Whether the file is a keyed archive. Throws `HostError` when it can't be read.
bool isArchive(const QString &path);

} // namespace host
