#pragma once

#include "OutputNamesModel.h"
#include "SettingsPanel.h"

#include <OrvaneExportKit/run/ExportPlugin.h>
#include <OrvaneExportKit/windowing/MessageLabel.h>
#include <OrvaneExportKit/windowing/TokenField.h>

#include <QtCore/QTimer>
#include <QtCore/QVariantMap>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace host {

/// The sheet in which the user says how a manuscript is exported: the format with its settings, the folder, and the
/// names of the files, all of which it lists.
///
/// Accepting it saves the settings; cancelling it leaves them as they were.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// Keeps the manuscript by reference. Starts with the plug-in of this name, if there is one, and with the other
    /// choices of the last export.
    ExportDialog(const Manuscript &manuscript, const QList<ExportPlugin *> &plugins, const QString &pluginName,
                 QWidget *parent);

    /// The plug-in of the chosen format. There is at least one plug-in.
    ExportPlugin &plugin() const;

    OutputNames names() const;

    void done(int result) override;

private:
    QWidget *formatSide();
    QWidget *filesSide();
    void showFormat();
    void chooseFolder();
    void checkNames();
    QString problem(const OutputPaths &paths) const;
    QString summary() const;
    void keepChoices() const;

    const Manuscript &m_manuscript;
    QList<ExportPlugin *> m_plugins;
    QList<QVariantMap> m_settingsBefore;
    QComboBox *m_format;
    SettingsPanel *m_panel;
    QLineEdit *m_folder;
    windowing::TokenField *m_fileNames;
    QCheckBox *m_convertSpaces;
    OutputNamesModel *m_names;
    windowing::MessageLabel *m_summary;
    QPushButton *m_exportButton = nullptr;
    QTimer m_pause;
};

} // namespace host
