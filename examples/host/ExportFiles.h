#pragma once

#include "ManuscriptReader.h"
#include "OutputPaths.h"

#include <OrvaneExportKit/platform/FileReplacement.h>
#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace host {

/// The content of the file that a document becomes. Throws `HostError` when the document can't be read, and when the
/// plug-in fails.
QByteArray exportedDocument(const ManuscriptDocument &document, const ExportPlugin &plugin);

/// The files of an export, made one by one, each written as a whole or not at all: those of the documents, then those
/// that the plug-in adds. They get their names some at a time, as the disk takes them.
///
///     ExportFiles files(manuscript, plugin, paths);
///     while (!files.allMade()) { show(files.nextName()); files.makeNext(); }
class ExportFiles
{
public:
    /// Keeps the manuscript and the plug-in by reference.
    ExportFiles(const Manuscript &manuscript, const ExportPlugin &plugin, OutputPaths paths);

    qsizetype count() const { return m_paths.documents.size() + m_paths.additional.size(); }
    qsizetype madeCount() const { return m_madeCount; }
    bool allMade() const { return m_madeCount == count(); }

    /// The name of the document that comes next, or of the file that the plug-in adds.
    QString nextName() const;

    /// The same for a message: what it is and its name in quotes.
    QString nextDescription() const;

    /// Makes the next file. After the last one, all are written. Throws `HostError` when a file can't be made or
    /// written; it then is as it was before, and those made before it are written as far as that is possible.
    void makeNext();

    /// Writes what was made, when no more is to come. Throws `HostError` when that fails.
    void finish();

    /// The paths of the files that have been written.
    QStringList written() const { return m_files.replaced(); }

    qsizetype documentCount() const { return m_paths.documents.size(); }
    qsizetype writtenDocumentCount() const { return qMin(written().size(), documentCount()); }

private:
    const ManuscriptDocument *nextDocument() const;
    QString nextPath() const;
    QByteArray nextContent() const;
    QByteArray nextAdditionalContent() const;

    const Manuscript &m_manuscript;
    const ExportPlugin &m_plugin;
    OutputPaths m_paths;
    platform::FileReplacement m_files;
    qsizetype m_madeCount = 0;
};

} // namespace host
