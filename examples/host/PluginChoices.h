#pragma once

#include "CommandLine.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

namespace host {

/// Loads the settings of the plug-in, saved or from a file, makes those of the command line, and saves them when the
/// user wants to. Throws `HostError` for a key that the plug-in does not have and a value that it does not take, also
/// among those that were saved, and for a file that can't be read or written.
void prepareSettings(ExportPlugin &plugin, const ExportRequest &request);

} // namespace host
