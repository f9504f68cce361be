#pragma once

#include "OutputPaths.h"

#include <QtCore/QStringList>
#include <QtWidgets/QWidget>

#include <optional>

namespace host {

/// What an export in a window came to.
struct WindowExportResult {
    QStringList written; ///< the paths of the files, in their order
    bool wasAborted = false;
    QString error = {}; ///< what ended the export early, as a sentence; empty when nothing went wrong
};

/// Exports a manuscript with the kit's sheets on a window: asks before files are replaced, and shows the progress, from
/// which the user can abort. Nothing when the files are not to be replaced.
std::optional<WindowExportResult> exportInWindow(QWidget *window, const Manuscript &manuscript,
                                                 const ExportPlugin &plugin, const OutputNames &names);

} // namespace host
