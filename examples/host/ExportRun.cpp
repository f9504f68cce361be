#include "ExportRun.h"

#include "ExportFiles.h"
#include "HostError.h"
#include "ManuscriptReader.h"
#include "Messages.h"
#include "OutputPaths.h"
#include "PluginChoices.h"
#include "Supervisor.h"
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

/// Tells at the end of an export how far it came, however it ends.
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

/// Lists the files as soon as they are written, for a plug-in may end the program with the next one.
class WrittenFiles
{
public:
    WrittenFiles(const ExportFiles &files, ListSeparator separator, const ProgressLine &progress)
        : m_files(files), m_separator(separator), m_progress(progress)
    {
    }
    WrittenFiles(const WrittenFiles &) = delete;
    WrittenFiles &operator=(const WrittenFiles &) = delete;
    ~WrittenFiles() { listNew(); } // where the export ends with an error, too

    void listNew()
    {
        const QStringList written = m_files.written();
        if (m_listed == written.size()) {
            return;
        }
        m_progress.show({});
        for (; m_listed < written.size(); ++m_listed) {
            printItem(written[m_listed], m_separator);
        }
    }

private:
    const ExportFiles &m_files;
    ListSeparator m_separator;
    const ProgressLine &m_progress;
    qsizetype m_listed = 0;
};

void writeFiles(ExportFiles &files, ListSeparator separator)
{
    const InterruptionWatch interruptions;
    const ProgressLine progress;
    WrittenFiles written(files, separator, progress);
    while (!files.allMade()) {
        if (interruptions.wasInterrupted()) {
            files.finish();
            throw HostError(ExitCode::Interrupted, u"the export was interrupted; export again for the rest"_s);
        }
        progress.show(u"%1/%2 %3"_s.arg(files.madeCount() + 1).arg(files.count()).arg(printable(files.nextName())));
        files.makeNext();
        written.listNew();
    }
}

} // namespace

void runExport(const ExportRequest &request, const PluginFolder &plugins)
{
    ExportPlugin &plugin = plugins.pluginNamed(request.pluginName);
    prepareSettings(plugin, request);
    const Manuscript manuscript = readManuscript(request.manuscriptFolder);
    const OutputPaths paths = outputPaths(request.names, manuscript, plugin);
    warnAboutRefusedNames(paths.all());
    checkOutputPaths(request.names, paths, manuscript);
    if (!request.replaceFiles) {
        confirmReplacing(paths.all());
    }
    makeFolders(paths);
    const QString folder = destinationFolder(request.names);
    ExportFiles files(manuscript, plugin, paths);
    const ExportReport report(files, manuscript.title, folder);
    writeFiles(files, request.separator);
}

} // namespace host
