#include "ExportRun.h"

#include "HostError.h"
#include "ManuscriptReader.h"
#include "Messages.h"
#include "OutputPaths.h"
#include "PluginSettings.h"
#include "Terminal.h"

#include <QtCore/QSaveFile>
#include <QtCore/QScopeGuard>

#include <algorithm>
#include <exception>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

HostError pluginFailure(const ExportPlugin &plugin, const ManuscriptDocument &document, const QString &reason)
{
    return {ExitCode::Plugin, u"the plug-in %1 failed on the document %2: %3; change the document or the plug-in's "
                              "choices, and export again"_s.arg(plugin.name(), quoted(document.name()), reason)};
}

QByteArray exportedData(const ExportPlugin &plugin, const ManuscriptDocument &document)
{
    try {
        return plugin.exportedData(document, document.text());
    } catch (const std::exception &exception) {
        throw pluginFailure(plugin, document, printable(QString::fromUtf8(exception.what())));
    } catch (...) {
        throw pluginFailure(plugin, document, u"it does not say why"_s);
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

void reportWritten(const QStringList &paths, qsizetype documentCount, const QString &title, const QString &folder)
{
    for (const QString &path : paths) {
        printResult(path + u'\n');
    }
    const QString documents = counted(documentCount, u"document"_s);
    const QString exported = paths.size() == documentCount ? documents : u"%1 of %2"_s.arg(paths.size()).arg(documents);
    printMessage(u"Exported %1 of %2 to %3."_s.arg(exported, quoted(title), quoted(folder)));
}

void writeDocuments(const Manuscript &manuscript, const ExportPlugin &plugin, const QStringList &paths,
                    const QString &folder)
{
    qsizetype written = 0;
    const auto report =
        qScopeGuard([&] { reportWritten(paths.first(written), paths.size(), manuscript.title, folder); });
    const InterruptionWatch interruptions;
    const ProgressLine progress;
    for (const ManuscriptDocument &document : manuscript.documents) {
        if (interruptions.wasInterrupted()) {
            throw HostError(ExitCode::Interrupted, u"the export was interrupted; export again for the rest"_s);
        }
        progress.show(u"%1/%2 %3"_s.arg(written + 1).arg(paths.size()).arg(printable(document.name())));
        writeFile(paths[written], exportedData(plugin, document));
        ++written;
    }
}

} // namespace

void runExport(const ExportRequest &request, const PluginFolder &plugins)
{
    ExportPlugin &plugin = plugins.pluginNamed(request.pluginName);
    prepareSettings(plugin, request);
    const Manuscript manuscript = readManuscript(request.manuscriptFolder);
    const QStringList paths = outputPaths(request, manuscript, request.extension.value_or(plugin.pathExtension()));
    writeDocuments(manuscript, plugin, paths, destinationFolder(request));
}

} // namespace host
