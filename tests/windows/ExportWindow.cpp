#include "ExportWindow.h"

#include "WindowReporter.h"

#include <OrvaneExportKit/OrvaneExportKit.h>
#include <OrvaneExportKit/run/KZExportProgress.h>
#include <OrvaneExportKit/run/KZOverwriteCheck.h>
#include <OrvaneExportKit/windowing/MainWindow.h>

#include <QtCore/QPluginLoader>
#include <QtCore/QSaveFile>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

ExportPlugin &plainTextPlugin()
{
    QPluginLoader loader(QStringLiteral(PLAIN_TEXT_PLUGIN));
    auto *plugin = qobject_cast<ExportPlugin *>(loader.instance());
    if (plugin == nullptr) {
        qFatal("%s", qUtf8Printable(loader.errorString()));
    }
    return *plugin;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        qFatal("%s: %s", qUtf8Printable(path), qUtf8Printable(file.errorString()));
    }
}

} // namespace

ExportWindow::ExportWindow(const QString &manuscript, const QString &destination, unsigned long milliseconds)
    : m_manuscript(host::readManuscript(manuscript)), m_destination(destination), m_milliseconds(milliseconds)
{
    setWindowTitle(m_manuscript.title);
    setPlainText(m_manuscript.documents.front().text().string());
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(24);
    resize(640, 420);
    windowing::setMainWindow(this);
}

void ExportWindow::showEvent(QShowEvent *event)
{
    QPlainTextEdit::showEvent(event);
    QTimer::singleShot(100, this, [this] {
        const QString before = toPlainText();
        exportManuscript();
        report({{u"documentChanged"_s, toPlainText() != before}});
        QApplication::quit();
    });
}

void ExportWindow::exportManuscript()
{
    const ExportPlugin &plugin = plainTextPlugin();
    QList<const ExportDocument *> documents;
    for (const host::ManuscriptDocument &document : m_manuscript.documents) {
        documents.append(&document);
    }
    const QStringList paths = KZStringExportAdditions::filenamesFromComponents(m_destination, {u"<1> <2>"_s}, documents,
                                                                               false, plugin.pathExtension());
    if (!KZArrayExportAdditions::overwriteExistingFilesCheck(paths)) {
        report({{u"end"_s, u"cancelled"_s}});
        return;
    }

    KZExportProgress progress(this, static_cast<qint32>(documents.size()));
    const platform::AbortFlag abort(progress);
    progress.showSheet();
    qsizetype exported = 0;
    for (const host::ManuscriptDocument &document : m_manuscript.documents) {
        if (abort.isSet()) {
            break;
        }
        progress.setDocumentName(document.name());
        writeFile(paths[exported], plugin.exportedData(document, document.text()));
        QThread::msleep(m_milliseconds);
        ++exported;
        progress.incrementToNextStep();
    }
    progress.hideSheet();
    report({{u"end"_s, abort.isSet() ? u"aborted"_s : u"finished"_s}, {u"exported"_s, exported}});
}
