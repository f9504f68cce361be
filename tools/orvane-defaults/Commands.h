#pragma once

#include "CommandLine.h"

#include <OrvaneExportKit/platform/UserDefaults.h>

namespace defaults {

/// Carries out the command. Throws a `ProgramError` when that fails.
void runCommand(const Request &request, platform::UserDefaults &userDefaults);

} // namespace defaults
