#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QWidget>

/// \file
/// For use on the application's main thread.

namespace windowing {

/// The window that questions about the user's document belong to: the one that the host has set, while it is visible,
/// else the window that is active, else null.
ORVANE_KIT_EXPORT QWidget *mainWindow();

/// Sets the main window; null leaves it to the window that is active. A window that is destroyed stops being it.
///
///     windowing::setMainWindow(documentWindow);
ORVANE_KIT_EXPORT void setMainWindow(QWidget *window);

} // namespace windowing
