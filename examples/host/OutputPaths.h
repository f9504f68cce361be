#pragma once

#include "ManuscriptReader.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace host {

/// Where the files of an export go and what they are called, as the user wants it.
struct OutputNames {
    QString destination;                   ///< absolute; a folder, or a file path whose folder and extension are used
    QString pattern;                       ///< with the tokens of `filenamesFromComponents`
    std::optional<QString> extension = {}; ///< without the dot; nothing for the plug-in's own
    bool convertSpaces = false;
};

/// The folder that the files go into: the destination, or the folder of the file path that it is.
QString destinationFolder(const OutputNames &names);

/// The paths of the files that an export writes.
struct OutputPaths {
    QStringList documents;            ///< of the file that each document becomes, in their order
    QStringList additional;           ///< of those that the plug-in adds
    QStringList additionalNames = {}; ///< the same as the plug-in gives them, from the destination folder on

    QStringList all() const { return documents + additional; }
};

/// The paths of an export. Nothing is checked but what the destination is.
OutputPaths outputPaths(const OutputNames &names, const Manuscript &manuscript, const ExportPlugin &plugin);

/// Throws `HostError` when the files can't or must not be written: into a folder that is not there, under names that
/// the system does not take, several under one name, in the place of folders or of the manuscript itself; and when the
/// plug-in's own ones would not stay inside the destination.
void checkOutputPaths(const OutputNames &names, const OutputPaths &paths, const Manuscript &manuscript);

/// Makes the folders inside the destination that the plug-in's own files go into. Throws `HostError` when one can't be
/// made.
void makeFolders(const OutputPaths &paths);

} // namespace host
