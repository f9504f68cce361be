#include "ExportFiles.h"

#include "AtomicFile.h"
#include "Messages.h"
#include "PluginCalls.h"

#include <OrvaneExportKit/platform/Paths.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

QString described(const ManuscriptDocument &document)
{
    return Texts::tr("the document %1").arg(quoted(document.name()));
}

} // namespace

QByteArray exportedDocument(const ManuscriptDocument &document, const ExportPlugin &plugin)
{
    const platform::AttributedString text = document.text();
    return answerOf(plugin, described(document), [&] { return plugin.exportedData(document, text); });
}

ExportFiles::ExportFiles(const Manuscript &manuscript, const ExportPlugin &plugin, OutputPaths paths)
    : m_manuscript(manuscript), m_plugin(plugin), m_paths(std::move(paths))
{
}

QString ExportFiles::nextName() const
{
    const ManuscriptDocument *document = nextDocument();
    return document != nullptr ? document->name() : platform::lastPathComponent(nextPath());
}

QString ExportFiles::nextDescription() const
{
    const ManuscriptDocument *document = nextDocument();
    return document != nullptr ? described(*document) : Texts::tr("the file %1").arg(quoted(nextName()));
}

void ExportFiles::writeNext()
{
    const ManuscriptDocument *document = nextDocument();
    const QString path = nextPath();
    writeFile(path, document != nullptr ? exportedDocument(*document, m_plugin) : nextAdditionalContent());
    m_written.append(path);
}

/// Null when all documents have been written.
const ManuscriptDocument *ExportFiles::nextDocument() const
{
    const auto index = static_cast<std::size_t>(m_written.size());
    return index < m_manuscript.documents.size() ? &m_manuscript.documents[index] : nullptr;
}

QString ExportFiles::nextPath() const
{
    const qsizetype index = m_written.size();
    return index < documentCount() ? m_paths.documents[index] : m_paths.additional[index - documentCount()];
}

QByteArray ExportFiles::nextAdditionalContent() const
{
    QList<ExportPlugin::ExportedFile> documentFiles;
    for (const ManuscriptDocument &document : m_manuscript.documents) {
        documentFiles.append({&document, platform::lastPathComponent(m_paths.documents[documentFiles.size()])});
    }
    return answerOf(m_plugin, nextDescription(),
                    [&] { return m_plugin.additionalFileData(nextName(), m_manuscript.title, documentFiles); });
}

} // namespace host
