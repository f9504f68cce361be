#include "ExportRun.h"

#include "ExportFiles.h"
#include "HostError.h"
#include "ManuscriptReader.h"
#include "Messages.h"
#include "OutputPaths.h"
#include "PluginChoices.h"
#include "Terminal.h"

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

void warnAboutRefusedNames(const QStringList &paths)
{
    QStringList lines;
    for (const platform::PathFinding &refused : platform::refusedNames(paths)) {
        lines.append(u"%1: %2"_s.arg(quoted(platform::lastPathComponent(refused.path)), refused.reason));
    }
    if (!lines.isEmpty()) {
        printWarning(u"some file systems refuse these names:"_s + listed(lines));
    }
}

void confirmReplacing(const QStringList &paths)
{
    QStringList lines;
    for (const platform::PathFinding &existing : platform::existingPaths(paths)) {
        lines.append(quoted(existing.path));
    }
    if (lines.isEmpty()) {
        return;
    }
    if (!canAsk()) {
        throw HostError(ExitCode::Declined,
                        u"files exist already; give --yes to replace them, or choose another destination:"_s +
                            listed(lines));
    }
    printMessage(u"Files exist already:"_s + listed(lines));
    const QString them = lines.size() == 1 ? u"this file"_s : u"these %1 files"_s.arg(lines.size());
    if (!confirm(u"Replace %1? [y/N]"_s.arg(them))) {
        throw HostError(ExitCode::Declined, u"nothing was exported, as the files are not to be replaced"_s);
    }
}

/// Tells at the end of an export which files were written, however it ends.
class ExportReport
{
public:
    ExportReport(const ExportFiles &files, const QString &title, const QString &folder)
        : m_files(files), m_title(title), m_folder(folder)
    {
    }
    ExportReport(const ExportReport &) = delete;
    ExportReport &operator=(const ExportReport &) = delete;

    ~ExportReport()
    {
        for (const QString &path : m_files.written()) {
            printResult(path + u'\n');
        }
        const qsizetype done = m_files.writtenDocumentCount();
        const QString documents = counted(m_files.documentCount(), u"document"_s);
        const QString exported = done == m_files.documentCount() ? documents : u"%1 of %2"_s.arg(done).arg(documents);
        printMessage(u"Exported %1 of %2 to %3."_s.arg(exported, quoted(m_title), quoted(m_folder)));
    }

private:
    const ExportFiles &m_files;
    const QString &m_title;
    const QString &m_folder;
};

void writeFiles(ExportFiles &files, const ExportPlugin &plugin)
{
    const CrashMessage crash;
    const InterruptionWatch interruptions;
    const ProgressLine progress;
    while (!files.allWritten()) {
        if (interruptions.wasInterrupted()) {
            throw HostError(ExitCode::Interrupted, u"the export was interrupted; export again for the rest"_s);
        }
        progress.show(
            u"%1/%2 %3"_s.arg(files.written().size() + 1).arg(files.count()).arg(printable(files.nextName())));
        crash.set(u"the plug-in %1 crashed on %2; the files before it are whole, this one is as it was; change the "
                  "document or the plug-in's choices, and export again"_s.arg(plugin.name(), files.nextDescription()));
        files.writeNext();
    }
}

} // namespace

void runExport(const ExportRequest &request, const PluginFolder &plugins)
{
    ExportPlugin &plugin = plugins.pluginNamed(request.pluginName);
    prepareSettings(plugin, request);
    const Manuscript manuscript = readManuscript(request.manuscriptFolder);
    const OutputPaths paths = outputPaths(request.names, manuscript, plugin);
    checkOutputPaths(request.names, paths, manuscript);
    warnAboutRefusedNames(paths.all());
    if (!request.replaceFiles) {
        confirmReplacing(paths.all());
    }
    const QString folder = destinationFolder(request.names);
    ExportFiles files(manuscript, plugin, paths);
    const ExportReport report(files, manuscript.title, folder);
    writeFiles(files, plugin);
}

} // namespace host
