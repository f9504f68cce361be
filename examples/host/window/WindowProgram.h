#pragma once

#include "CommandLine.h"

namespace host {

/// Shows the window until the user closes it, and returns the exit code. There is no application object before.
/// Where no window can be shown, the program ends with a message and `ExitCode::Display`.
int showWindow(int argc, char *argv[], const WindowRequest &request);

} // namespace host
