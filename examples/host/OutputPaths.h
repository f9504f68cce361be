#pragma once

#include "CommandLine.h"
#include "ManuscriptReader.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace host {

/// The folder that the files go into: the destination, or the folder of the file path that it is.
QString destinationFolder(const ExportRequest &request);

/// The path of the file that each document becomes, in their order, once it is certain that they can be written and
/// that the user wants it: asks before files are replaced and warns about names that other systems refuse.
///
/// `extension` is the one for a destination that is a folder. Throws `HostError` when the files can't or must not be
/// written. Writes nothing.
QStringList outputPaths(const ExportRequest &request, const Manuscript &manuscript, const QString &extension);

} // namespace host
