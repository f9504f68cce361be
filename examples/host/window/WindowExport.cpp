#include "WindowExport.h"

#include "ExportFiles.h"
#include "HostError.h"
#include "Messages.h"

#include <OrvaneExportKit/run/AbortFlag.h>
#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/run/KZOverwriteCheck.h>

namespace host {

namespace {

/// True when the user has aborted.
bool writeFiles(ExportFiles &files, QWidget *window)
{
    KZExportProgress progress(window, static_cast<qint32>(files.count()));
    const platform::AbortFlag abort(progress);
    progress.showSheet();
    while (!files.allMade() && !abort.isSet()) {
        progress.setDocumentName(files.nextName());
        files.makeNext();
        progress.incrementToNextStep();
    }
    files.finish();
    progress.hideSheet();
    return !files.allMade();
}

} // namespace

std::optional<WindowExportResult> exportInWindow(QWidget *window, const Manuscript &manuscript,
                                                 const ExportPlugin &plugin, const OutputNames &names)
{
    const OutputPaths paths = outputPaths(names, manuscript, plugin);
    ExportFiles files(manuscript, plugin, paths);
    WindowExportResult result;
    try {
        checkOutputPaths(names, paths, manuscript);
        if (!KZArrayExportAdditions::overwriteExistingFilesCheck(paths.all())) {
            return std::nullopt;
        }
        makeFolders(paths);
        result.wasAborted = writeFiles(files, window);
    } catch (const HostError &error) {
        result.error = sentence(error.message());
    }
    result.written = files.written();
    return result;
}

} // namespace host
