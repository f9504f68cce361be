#include "OutputPaths.h"

#include "HostError.h"
#include "Messages.h"
#include "PluginCalls.h"

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>
#include <OrvaneExportKit/run/FileNames.h>

#include <QtCore/QFileInfo>
#include <QtCore/QSet>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

HostError outputError(const QString &message)
{
    return {ExitCode::Output, message};
}

/// Whether the destination can only be meant as a folder. A file path shows in the files' names by its extension or
/// by the token <5>.
bool namesFolder(const OutputNames &names)
{
    const QFileInfo destination(names.destination);
    return destination.isDir() || names.destination.endsWith(u'/') ||
           (!destination.exists() && platform::pathExtension(names.destination).isEmpty() &&
            !names.pattern.contains("<5>"_L1));
}

void requireWritableFolder(const OutputNames &names)
{
    const QString folder = destinationFolder(names);
    const QFileInfo info(folder);
    if (!info.isDir()) {
        throw outputError(Texts::tr("the destination folder %1 does not exist; make it first").arg(quoted(folder)));
    }
    if (!info.isWritable()) {
        throw outputError(
            Texts::tr("you may not write into the destination folder %1; choose another one").arg(quoted(folder)));
    }
}

QStringList pathsByPattern(const OutputNames &names, const Manuscript &manuscript, const QString &extension)
{
    QList<const ExportDocument *> documents;
    for (const ManuscriptDocument &document : manuscript.documents) {
        documents.append(&document);
    }
    return KZStringExportAdditions::filenamesFromComponents(names.destination, {names.pattern}, documents,
                                                            names.convertSpaces, extension);
}

QStringList additionalPaths(const QString &folder, const ExportPlugin &plugin)
{
    const QStringList names =
        answerOf(plugin, Texts::tr("the names of its files"), [&] { return plugin.additionalFileNames(); });
    QStringList paths;
    for (const QString &name : names) {
        paths.append(platform::appendingPathComponent(folder, name));
    }
    return paths;
}

/// What becomes the file of an index: the documents come first, then what the plug-in adds.
QString originOfFile(qsizetype index, const Manuscript &manuscript)
{
    const auto document = static_cast<std::size_t>(index);
    return document < manuscript.documents.size()
               ? Texts::tr("document %1, %2").arg(index + 1).arg(quoted(manuscript.documents[document].name()))
               : Texts::tr("the plug-in's own file");
}

void refuseRepeatedPaths(const QStringList &paths, const Manuscript &manuscript)
{
    QStringList lines;
    for (const platform::PathFinding &repeated : platform::repeatedPaths(paths)) {
        lines.append(originOfFile(repeated.index, manuscript) + u": "_s + quoted(repeated.path));
    }
    if (!lines.isEmpty()) {
        throw outputError(Texts::tr("several documents would become the same file; put <1> into the pattern:") +
                          listed(lines));
    }
}

void refuseFolders(const QList<platform::PathFinding> &existing)
{
    QStringList lines;
    for (const platform::PathFinding &finding : existing) {
        if (QFileInfo(finding.path).isDir()) {
            lines.append(quoted(finding.path));
        }
    }
    if (!lines.isEmpty()) {
        throw outputError(Texts::tr("folders stand where files would go; choose another destination or pattern:") +
                          listed(lines));
    }
}

void refuseOwnFiles(const QList<platform::PathFinding> &existing, const Manuscript &manuscript)
{
    QSet<QString> ownFiles;
    for (const ManuscriptDocument &document : manuscript.documents) {
        ownFiles.insert(QFileInfo(document.path()).canonicalFilePath());
    }
    QStringList lines;
    for (const platform::PathFinding &finding : existing) {
        if (ownFiles.contains(QFileInfo(finding.path).canonicalFilePath())) {
            lines.append(quoted(finding.path));
        }
    }
    if (!lines.isEmpty()) {
        throw outputError(Texts::tr("the export would replace the manuscript itself; choose another destination:") +
                          listed(lines));
    }
}

} // namespace

QString destinationFolder(const OutputNames &names)
{
    return namesFolder(names) ? names.destination : platform::deletingLastPathComponent(names.destination);
}

OutputPaths outputPaths(const OutputNames &names, const Manuscript &manuscript, const ExportPlugin &plugin)
{
    return {
        pathsByPattern(names, manuscript, names.extension.value_or(plugin.pathExtension())),
        additionalPaths(destinationFolder(names), plugin),
    };
}

void checkOutputPaths(const OutputNames &names, const OutputPaths &paths, const Manuscript &manuscript)
{
    requireWritableFolder(names);
    refuseRepeatedPaths(paths.all(), manuscript);
    const QList<platform::PathFinding> existing = platform::existingPaths(paths.all());
    refuseFolders(existing);
    refuseOwnFiles(existing, manuscript);
}

} // namespace host
