#pragma once

#include "CommandLine.h"
#include "ManuscriptReader.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace host {

/// The folder that the files go into: the destination, or the folder of the file path that it is.
QString destinationFolder(const ExportRequest &request);

/// The paths of the files that an export writes.
struct OutputPaths {
    QStringList documents;  ///< of the file that each document becomes, in their order
    QStringList additional; ///< of those that the plug-in adds
};

/// The paths of an export, once it is certain that they can be written and that the user wants it: asks before files
/// are replaced and warns about names that other systems refuse.
///
/// Throws `HostError` when the files can't or must not be written. Writes nothing.
OutputPaths outputPaths(const ExportRequest &request, const Manuscript &manuscript, const ExportPlugin &plugin);

} // namespace host
