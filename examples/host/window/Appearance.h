#pragma once

namespace host {

/// Shows the whole application in dark colours, or in those of the desktop. Called first before any window is made.
void useDarkPalette(bool dark);

} // namespace host
