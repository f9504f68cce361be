#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// \file
/// Files that tests put down and look at. A failure fails the test.

namespace end_to_end {

/// Writes a file, replacing one that exists.
void writeFile(const QString &path, const QByteArray &content);

QByteArray fileContent(const QString &path);

/// Copies a file into a folder, which is made if need be; the copy keeps the permissions.
void copyInto(const QString &folder, const QString &file);

/// The names of all files in a folder, hidden ones too, in order.
QStringList filesIn(const QString &folder);

/// The names of the files whose extension says that they are exported. A file that is still being written has another.
QStringList exportedFilesIn(const QString &folder);

/// Waits until a folder holds so many exported files; false when half a minute passes without.
bool waitForExportedFiles(const QString &folder, qsizetype count);

} // namespace end_to_end
