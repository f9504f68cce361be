#pragma once

#include "EditorPane.h"
#include "ManuscriptModel.h"
#include "PreviewPane.h"
#include "ResultBar.h"
#include "WindowExport.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <QtGui/QAction>
#include <QtGui/QKeySequence>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QTreeView>

namespace host {

/// The window of the program: a manuscript as a list of documents, an editor and a preview of one of them, and the
/// export of all of them.
class ManuscriptWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The plug-ins outlive the window.
    explicit ManuscriptWindow(const QList<ExportPlugin *> &plugins, QWidget *parent = nullptr);

    /// Opens the manuscript of a folder in place of the one before, whose changes the user is asked about. Says why
    /// when it can't be opened.
    void openManuscript(const QString &folder);

    /// Shows a sentence at the foot of the window.
    void showMessage(const QString &sentence) { m_resultBar->showResult(sentence, {}); }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QAction *addManuscriptAction(QMenu *menu, const QString &text, const QKeySequence &shortcut,
                                 void (ManuscriptWindow::*slot)());
    void addFileMenu();
    void addGoMenu();
    void addViewMenu();
    void addPanes();
    void showWelcomePage();
    void chooseManuscript();
    void listRecentManuscripts();
    bool save();
    bool mayDropChanges();
    void chooseExport();
    void exportManuscript(const ExportPlugin &plugin, const OutputNames &names);
    void showExportResult(const std::optional<WindowExportResult> &result, const OutputNames &names);
    void showCurrentDocument();
    void showPreview();
    void showModified();
    void moveToNextDocument();
    void moveToPreviousDocument();
    void moveToDocument(int row);
    void focusDocuments();
    void focusText();
    void focusPreview();

    QList<ExportPlugin *> m_plugins;
    ManuscriptModel m_model;
    QTreeView *m_documents;
    EditorPane *m_editor;
    PreviewPane *m_preview;
    ResultBar *m_resultBar;
    QSplitter *m_panes;
    QStackedWidget *m_pages;
    QMenu *m_recentMenu = nullptr;
    QAction *m_saveAction = nullptr;
    QList<QAction *> m_manuscriptActions; ///< those that need a manuscript
    bool m_isExporting = false;
};

} // namespace host
