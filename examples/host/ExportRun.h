#pragma once

#include "CommandLine.h"
#include "PluginFolder.h"

namespace host {

/// Exports a manuscript: everything that can be wrong is checked first, then the files are written one by one, each
/// as a whole or not at all. Prints the path of each as soon as it is written.
/// Throws `HostError` when it does.
void runExport(const ExportRequest &request, const PluginFolder &plugins);

} // namespace host
