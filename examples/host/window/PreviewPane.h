#pragma once

#include "ManuscriptDocument.h"

#include <OrvaneExportKit/run/ExportPlugin.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QWidget>

namespace host {

/// Shows the file that a document becomes, in the format that the user picks: web pages as a reader sees them, unless
/// the user wants their source, and all other files as text. Changes of the settings show by themselves.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(const QList<ExportPlugin *> &plugins, QWidget *parent = nullptr);

    /// The plug-in of the chosen format; null when there is none.
    ExportPlugin *plugin() const;

    /// Chooses a format by the plug-in's name; a name that there is not changes nothing.
    void setPlugin(const QString &name);

    /// Shows a document after a short pause, so that a user who moves through many does not wait for each. Null for
    /// none; a document outlives its preview.
    void showDocument(const ManuscriptDocument *document);

    /// Puts the keyboard focus into the preview.
    void focusFile();

Q_SIGNALS:
    void pluginChanged();

private:
    bool showsPage() const;
    void refresh();
    void showFile(const QByteArray &content);
    void showNote(const QString &note);

    QList<ExportPlugin *> m_plugins;
    const ManuscriptDocument *m_document = nullptr;
    QComboBox *m_formats;
    windowing::MessageLabel *m_note;
    QCheckBox *m_source;
    QTextBrowser *m_page;
    QPlainTextEdit *m_text;
    QTimer m_pause;
};

} // namespace host
