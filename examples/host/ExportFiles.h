#pragma once

#include "ManuscriptReader.h"
#include "OutputPaths.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace host {

/// The content of the file that a document becomes. Throws `HostError` when the document can't be read, and when the
/// plug-in fails.
QByteArray exportedDocument(const ManuscriptDocument &document, const ExportPlugin &plugin);

/// The files of an export, written one by one, each as a whole or not at all: those of the documents, then those that
/// the plug-in adds.
///
///     ExportFiles files(manuscript, plugin, paths);
///     while (!files.allWritten()) { show(files.nextName()); files.writeNext(); }
class ExportFiles
{
public:
    /// Keeps the manuscript and the plug-in by reference.
    ExportFiles(const Manuscript &manuscript, const ExportPlugin &plugin, OutputPaths paths);

    qsizetype count() const { return m_paths.documents.size() + m_paths.additional.size(); }
    bool allWritten() const { return m_written.size() == count(); }

    /// The name of the document that comes next, or of the file that the plug-in adds.
    QString nextName() const;

    /// The same for a message: what it is and its name in quotes.
    QString nextDescription() const;

    /// Writes the next file. Throws `HostError` when that fails; the file then is as it was before.
    void writeNext();

    /// The paths of the files that have been written.
    const QStringList &written() const { return m_written; }

    qsizetype documentCount() const { return m_paths.documents.size(); }
    qsizetype writtenDocumentCount() const { return qMin(m_written.size(), documentCount()); }

private:
    const ManuscriptDocument *nextDocument() const;
    QString nextPath() const;
    QByteArray nextAdditionalContent() const;

    const Manuscript &m_manuscript;
    const ExportPlugin &m_plugin;
    OutputPaths m_paths;
    QStringList m_written;
};

} // namespace host
