#pragma once

#include "ManuscriptDocument.h"

#include <OrvaneExportKit/run/ExportPlugin.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>

#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QWidget>

namespace host {

/// Shows the file that a document becomes, in the format that the user picks. Changes of the settings show by
/// themselves.
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

    QPlainTextEdit &text() { return *m_text; }

Q_SIGNALS:
    void pluginChanged();

private:
    void refresh();
    void showFile(const QByteArray &content);
    void showNote(const QString &note);

    QList<ExportPlugin *> m_plugins;
    const ManuscriptDocument *m_document = nullptr;
    QComboBox *m_formats;
    windowing::MessageLabel *m_note;
    QPlainTextEdit *m_text;
    QTimer m_pause;
};

} // namespace host
