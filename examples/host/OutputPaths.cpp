#include "OutputPaths.h"

#include "HostError.h"
#include "Messages.h"
#include "PluginCalls.h"

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>
#include <OrvaneExportKit/run/FileNames.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>

#include <algorithm>
#include <filesystem>
#include <system_error>

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

QStringList additionalPaths(const QString &folder, const QStringList &names)
{
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

void refuseImpossiblePaths(const QStringList &paths, const Manuscript &manuscript)
{
    QStringList lines;
    for (const platform::PathFinding &impossible : platform::impossiblePaths(paths)) {
        lines.append(u"%1: %2: %3"_s.arg(originOfFile(impossible.index, manuscript), quoted(impossible.path),
                                         impossible.reason));
    }
    if (!lines.isEmpty()) {
        throw outputError(Texts::tr("this system can't have these files; change their names or the pattern:") +
                          listed(lines));
    }
}

/// Whether a path that a plug-in gives is one downwards from the destination: "fonts/f.ttf".
bool leadsDown(const QString &name)
{
    const QStringList components = name.split(u'/');
    const auto leadsElsewhere = [](const QString &component) {
        return component.isEmpty() || component == u"." || component == u"..";
    };
    return std::none_of(components.begin(), components.end(), leadsElsewhere) && QDir::isRelativePath(name) &&
           !name.contains(u'\\') && !name.contains(QChar::Null);
}

/// The folders below the destination that a file of the plug-in goes into: "/out/a", "/out/a/b" for "a/b/c.txt".
QStringList foldersOf(const QString &path, const QString &name)
{
    QStringList folders;
    QString folder = platform::deletingLastPathComponent(path);
    for (qsizetype depth = name.count(u'/'); depth > 0; --depth) {
        folders.prepend(folder);
        folder = platform::deletingLastPathComponent(folder);
    }
    return folders;
}

/// Links are not followed for the plug-in's own files, wherever they lead.
bool leadsThroughLink(const QString &path, const QString &name)
{
    const QStringList stations = foldersOf(path, name) + QStringList{path};
    return std::any_of(stations.begin(), stations.end(),
                       [](const QString &station) { return QFileInfo(station).isSymLink(); });
}

void refuseStrayFiles(const OutputPaths &paths)
{
    QStringList lines;
    for (qsizetype index = 0; index < paths.additional.size(); ++index) {
        const QString &name = paths.additionalNames[index];
        if (!leadsDown(name) || leadsThroughLink(paths.additional[index], name)) {
            lines.append(quoted(name));
        }
    }
    if (!lines.isEmpty()) {
        throw HostError(ExitCode::Plugin,
                        Texts::tr("files of the plug-in's own would not stay inside the destination folder; choose a "
                                  "folder without links, or another plug-in:") +
                            listed(lines));
    }
}

/// The folders inside the destination, each of which must be there or be possible to make.
void refuseFoldersInTheWay(const OutputPaths &paths)
{
    const QStringList all = paths.all();
    const QSet<QString> files(all.begin(), all.end());
    QStringList lines;
    for (qsizetype index = 0; index < paths.additional.size(); ++index) {
        for (const QString &folder : foldersOf(paths.additional[index], paths.additionalNames[index])) {
            const QFileInfo info(folder);
            if (files.contains(folder) || (info.exists() && !(info.isDir() && info.isWritable()))) {
                lines.append(quoted(folder));
            }
        }
    }
    lines.removeDuplicates();
    if (!lines.isEmpty()) {
        throw outputError(Texts::tr("files stand, or would stand, where the plug-in needs folders that it may write "
                                    "into; choose another destination or pattern:") +
                          listed(lines));
    }
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
    const QStringList additionalNames =
        answerOf(plugin, Texts::tr("the names of its files"), [&] { return plugin.additionalFileNames(); });
    return {
        pathsByPattern(names, manuscript, names.extension.value_or(plugin.pathExtension())),
        additionalPaths(destinationFolder(names), additionalNames),
        additionalNames,
    };
}

void checkOutputPaths(const OutputNames &names, const OutputPaths &paths, const Manuscript &manuscript)
{
    requireWritableFolder(names);
    refuseStrayFiles(paths);
    refuseImpossiblePaths(paths.all(), manuscript);
    refuseRepeatedPaths(paths.all(), manuscript);
    refuseFoldersInTheWay(paths);
    const QList<platform::PathFinding> existing = platform::existingPaths(paths.all());
    refuseFolders(existing);
    refuseOwnFiles(existing, manuscript);
}

void makeFolders(const OutputPaths &paths)
{
    for (const QString &path : paths.additional) {
        const QString folder = platform::deletingLastPathComponent(path);
        std::error_code error;
        std::filesystem::create_directories(QFileInfo(folder).filesystemFilePath(), error);
        if (error) {
            throw outputError(Texts::tr("the folder %1 can't be made: %2; see to that and try again")
                                  .arg(quoted(folder), QString::fromStdString(error.message())));
        }
    }
}

} // namespace host
