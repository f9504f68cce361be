#include "OutputPaths.h"

#include "HostError.h"
#include "Messages.h"
#include "Terminal.h"

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

QStringList pathsOf(const QList<platform::PathFinding> &findings)
{
    QStringList paths;
    for (const platform::PathFinding &finding : findings) {
        paths.append(quoted(finding.path));
    }
    return paths;
}

/// Whether the destination can only be meant as a folder. A file path shows in the files' names by its extension or
/// by the token <5>.
bool namesFolder(const ExportRequest &request)
{
    const QFileInfo destination(request.destination);
    return destination.isDir() || request.destination.endsWith(u'/') ||
           (!destination.exists() && platform::pathExtension(request.destination).isEmpty() &&
            !request.pattern.contains("<5>"_L1));
}

void requireWritableFolder(const ExportRequest &request)
{
    const QString folder = destinationFolder(request);
    const QFileInfo info(folder);
    if (!info.isDir()) {
        throw outputError(u"the destination folder %1 does not exist; make it first"_s.arg(quoted(folder)));
    }
    if (!info.isWritable()) {
        throw outputError(
            u"you may not write into the destination folder %1; choose another one"_s.arg(quoted(folder)));
    }
}

QStringList pathsByPattern(const ExportRequest &request, const Manuscript &manuscript, const QString &extension)
{
    QList<const ExportDocument *> documents;
    for (const ManuscriptDocument &document : manuscript.documents) {
        documents.append(&document);
    }
    return KZStringExportAdditions::filenamesFromComponents(request.destination, {request.pattern}, documents,
                                                            request.convertSpaces, extension);
}

QStringList additionalPaths(const QString &folder, const ExportPlugin &plugin)
{
    QStringList paths;
    for (const QString &name : plugin.additionalFileNames()) {
        paths.append(platform::appendingPathComponent(folder, name));
    }
    return paths;
}

/// What becomes the file of an index: the documents come first, then what the plug-in adds.
QString originOfFile(qsizetype index, const Manuscript &manuscript)
{
    const auto document = static_cast<std::size_t>(index);
    return document < manuscript.documents.size()
               ? u"document %1, %2"_s.arg(index + 1).arg(quoted(manuscript.documents[document].name()))
               : u"the plug-in's own file"_s;
}

void refuseRepeatedPaths(const QStringList &paths, const Manuscript &manuscript)
{
    QStringList lines;
    for (const platform::PathFinding &repeated : platform::repeatedPaths(paths)) {
        lines.append(originOfFile(repeated.index, manuscript) + u": "_s + quoted(repeated.path));
    }
    if (!lines.isEmpty()) {
        throw outputError(u"several documents would become the same file; put <1> into the pattern:"_s + listed(lines));
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
        throw outputError(u"folders stand where files would go; choose another destination or pattern:"_s +
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
        throw outputError(u"the export would replace the manuscript itself; choose another destination:"_s +
                          listed(lines));
    }
}

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

void confirmReplacing(const QList<platform::PathFinding> &existing)
{
    const QString files = listed(pathsOf(existing));
    if (!canAsk()) {
        throw HostError(ExitCode::Declined,
                        u"files exist already; give --yes to replace them, or choose another destination:"_s + files);
    }
    printMessage(u"Files exist already:"_s + files);
    const QString them = existing.size() == 1 ? u"this file"_s : u"these %1 files"_s.arg(existing.size());
    if (!confirm(u"Replace %1? [y/N]"_s.arg(them))) {
        throw HostError(ExitCode::Declined, u"nothing was exported, as the files are not to be replaced"_s);
    }
}

} // namespace

QString destinationFolder(const ExportRequest &request)
{
    return namesFolder(request) ? request.destination : platform::deletingLastPathComponent(request.destination);
}

OutputPaths outputPaths(const ExportRequest &request, const Manuscript &manuscript, const ExportPlugin &plugin)
{
    requireWritableFolder(request);
    const OutputPaths result{
        pathsByPattern(request, manuscript, request.extension.value_or(plugin.pathExtension())),
        additionalPaths(destinationFolder(request), plugin),
    };
    const QStringList paths = result.documents + result.additional;
    refuseRepeatedPaths(paths, manuscript);
    const QList<platform::PathFinding> existing = platform::existingPaths(paths);
    refuseFolders(existing);
    refuseOwnFiles(existing, manuscript);
    warnAboutRefusedNames(paths);
    if (!existing.isEmpty() && !request.replaceFiles) {
        confirmReplacing(existing);
    }
    return result;
}

} // namespace host
