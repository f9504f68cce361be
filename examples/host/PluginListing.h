#pragma once

#include "PluginFolder.h"

namespace host {

/// Prints the plug-ins of a folder with their choices as results, and the files that can't be used, with the reason, as
/// warnings.
void listPlugins(const PluginFolder &folder);

} // namespace host
