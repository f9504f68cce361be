#include "ExportRun.h"

#include "HostError.h"
#include "ManuscriptReader.h"
#include "Messages.h"
#include "OutputPaths.h"
#include "PluginSettings.h"
#include "Terminal.h"

#include <OrvaneExportKit/platform/Paths.h>

#include <QtCore/QSaveFile>

#include <algorithm>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

HostError pluginFailure(const ExportPlugin &plugin, const QString &part, const QString &reason)
{
    return {ExitCode::Plugin, u"the plug-in %1 failed on %2: %3; change the document or the plug-in's "
                              "choices, and export again"_s.arg(plugin.name(), part, reason)};
}

/// What the plug-in makes; an exception of its own becomes an error that names the part of the export.
template <typename Make>
QByteArray madeBy(const ExportPlugin &plugin, const QString &part, const Make &make)
{
    try {
        return make();
    } catch (const std::exception &exception) {
        throw pluginFailure(plugin, part, printable(QString::fromUtf8(exception.what())));
    } catch (...) {
        throw pluginFailure(plugin, part, u"it does not say why"_s);
    }
}

/// A disk that fills up takes a part of the content first; the attempt to write the rest tells the reason.
bool writeAll(QSaveFile &file, const QByteArray &content)
{
    qint64 written = 0;
    while (written < content.size()) {
        const qint64 count = file.write(content.constData() + written, content.size() - written);
        if (count <= 0) {
            return false;
        }
        written += count;
    }
    return true;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    // Unbuffered, because commit() does not notice when the rest of a buffer can't be written.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !writeAll(file, content) || !file.commit()) {
        throw HostError(ExitCode::Output, u"%1 can't be written: %2; see to that and export again"_s.arg(
                                              quoted(path), file.errorString()));
    }
}

/// Writes the files of one export, and tells at its end which were written, however it ends.
class Export
{
public:
    Export(const Manuscript &manuscript, const ExportPlugin &plugin, const OutputPaths &paths, const QString &folder)
        : m_manuscript(manuscript), m_plugin(plugin), m_paths(paths), m_folder(folder)
    {
    }
    Export(const Export &) = delete;
    Export &operator=(const Export &) = delete;

    ~Export()
    {
        for (const QString &path : m_written) {
            printResult(path + u'\n');
        }
        const qsizetype done = std::min(m_written.size(), m_paths.documents.size());
        const QString documents = counted(m_paths.documents.size(), u"document"_s);
        const QString exported = done == m_paths.documents.size() ? documents : u"%1 of %2"_s.arg(done).arg(documents);
        printMessage(u"Exported %1 of %2 to %3."_s.arg(exported, quoted(m_manuscript.title), quoted(m_folder)));
    }

    void writeDocuments()
    {
        const InterruptionWatch interruptions;
        const ProgressLine progress;
        for (const ManuscriptDocument &document : m_manuscript.documents) {
            if (interruptions.wasInterrupted()) {
                throw HostError(ExitCode::Interrupted, u"the export was interrupted; export again for the rest"_s);
            }
            const QString &path = m_paths.documents[m_written.size()];
            progress.show(
                u"%1/%2 %3"_s.arg(m_written.size() + 1).arg(m_paths.documents.size()).arg(printable(document.name())));
            write(path, madeBy(m_plugin, u"the document "_s + quoted(document.name()),
                               [&] { return m_plugin.exportedData(document, document.text()); }));
        }
    }

    void writeAdditionalFiles()
    {
        const QList<ExportPlugin::ExportedFile> documentFiles = exportedFiles();
        for (const QString &path : m_paths.additional) {
            const QString name = platform::lastPathComponent(path);
            write(path, madeBy(m_plugin, u"the file "_s + quoted(name),
                               [&] { return m_plugin.additionalFileData(name, m_manuscript.title, documentFiles); }));
        }
    }

private:
    void write(const QString &path, const QByteArray &content)
    {
        writeFile(path, content);
        m_written.append(path);
    }

    QList<ExportPlugin::ExportedFile> exportedFiles() const
    {
        QList<ExportPlugin::ExportedFile> files;
        for (const ManuscriptDocument &document : m_manuscript.documents) {
            files.append({&document, platform::lastPathComponent(m_paths.documents[files.size()])});
        }
        return files;
    }

    const Manuscript &m_manuscript;
    const ExportPlugin &m_plugin;
    const OutputPaths &m_paths;
    const QString &m_folder;
    QStringList m_written;
};

} // namespace

void runExport(const ExportRequest &request, const PluginFolder &plugins)
{
    ExportPlugin &plugin = plugins.pluginNamed(request.pluginName);
    prepareSettings(plugin, request);
    const Manuscript manuscript = readManuscript(request.manuscriptFolder);
    const OutputPaths paths = outputPaths(request, manuscript, plugin);
    const QString folder = destinationFolder(request);
    Export run(manuscript, plugin, paths, folder);
    run.writeDocuments();
    run.writeAdditionalFiles();
}

} // namespace host
