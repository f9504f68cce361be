#include "ExportFiles.h"

#include "AtomicFile.h"
#include "HostError.h"
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
    return document != nullptr ? document->name() : m_paths.additionalNames[m_madeCount - documentCount()];
}

QString ExportFiles::nextDescription() const
{
    const ManuscriptDocument *document = nextDocument();
    return document != nullptr ? described(*document) : Texts::tr("the file %1").arg(quoted(nextName()));
}

void ExportFiles::makeNext()
{
    try {
        if (!m_files.write(nextPath(), nextContent())) {
            throw notWritten(m_files.failure());
        }
    } catch (const HostError &error) {
        if (m_files.finish()) {
            throw;
        }
        const QString alsoFailed = notWritten(m_files.failure()).message();
        throw HostError(error.exitCode(), Texts::tr("%1; also, %2").arg(error.message(), alsoFailed));
    }
    ++m_madeCount;
    if (allMade()) {
        finish();
    }
}

void ExportFiles::finish()
{
    if (!m_files.finish()) {
        throw notWritten(m_files.failure());
    }
}

/// Null when all documents have been exported.
const ManuscriptDocument *ExportFiles::nextDocument() const
{
    const auto index = static_cast<std::size_t>(m_madeCount);
    return index < m_manuscript.documents.size() ? &m_manuscript.documents[index] : nullptr;
}

QString ExportFiles::nextPath() const
{
    return m_madeCount < documentCount() ? m_paths.documents[m_madeCount]
                                         : m_paths.additional[m_madeCount - documentCount()];
}

QByteArray ExportFiles::nextContent() const
{
    const ManuscriptDocument *document = nextDocument();
    return document != nullptr ? exportedDocument(*document, m_plugin) : nextAdditionalContent();
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
