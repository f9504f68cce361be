#include "ManuscriptWindow.h"

#include "Appearance.h"
#include "ExportDialog.h"
#include "HostError.h"
#include "Messages.h"
#include "WelcomePage.h"
#include "WindowDefaults.h"

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/windowing/MainWindow.h>
#include <OrvaneExportKit/windowing/OpenPanel.h>

#include <QtCore/QDir>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

QIcon iconNamed(const QString &name, const QWidget &widget, QStyle::StandardPixmap otherwise)
{
    return QIcon::fromTheme(name, widget.style()->standardIcon(otherwise));
}

} // namespace

ManuscriptWindow::ManuscriptWindow(const QList<ExportPlugin *> &plugins, QWidget *parent)
    : QMainWindow(parent),
      m_plugins(plugins),
      m_documents(new QTreeView),
      m_editor(new EditorPane(m_model)),
      m_preview(new PreviewPane(plugins)),
      m_resultBar(new ResultBar),
      m_panes(new QSplitter),
      m_pages(new QStackedWidget)
{
    setObjectName(u"manuscriptWindow"_s);
    addPanes();
    addFileMenu();
    addGoMenu();
    addViewMenu();
    resize(1100, 700);
    restoreGeometry(keptValue(keys::geometry).toByteArray());
    m_panes->restoreState(keptValue(keys::panes).toByteArray());
    m_preview->setPlugin(keptValue(keys::format).toString());

    connect(m_documents->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &ManuscriptWindow::showCurrentDocument);
    connect(&m_model, &ManuscriptModel::modifiedChanged, this, &ManuscriptWindow::showModified);
    connect(&m_model, &ManuscriptModel::dataChanged, this, [this](const QModelIndex &first) {
        if (first.column() == ManuscriptModel::NameColumn) { // not the words alone
            showPreview();
        }
    });
    connect(m_editor, &EditorPane::typed, this, &ManuscriptWindow::showModified);
    connect(m_preview, &PreviewPane::pluginChanged, this,
            [this] { keepValue(keys::format, m_preview->plugin()->name()); });
    windowing::setMainWindow(this);
    showWelcomePage();
    showModified();
}

void ManuscriptWindow::openManuscript(const QString &folder)
{
    if (!mayDropChanges()) {
        return;
    }
    try {
        m_model.open(folder);
    } catch (const HostError &error) {
        QMessageBox::warning(this, tr("Open Manuscript"), sentence(error.message()));
        return;
    }
    addRecentManuscript(folder);
    setWindowTitle(m_model.manuscript().title + u"[*]"_s);
    m_pages->setCurrentWidget(m_panes);
    for (QAction *action : m_manuscriptActions) {
        action->setEnabled(true);
    }
    m_resultBar->hide();
    moveToDocument(0);
    showCurrentDocument(); // also of a manuscript without documents
    m_documents->setFocus();
}

void ManuscriptWindow::closeEvent(QCloseEvent *event)
{
    if (m_isExporting || !mayDropChanges()) {
        event->ignore();
        return;
    }
    keepValue(keys::geometry, saveGeometry());
    keepValue(keys::panes, m_panes->saveState());
    event->accept();
}

QAction *ManuscriptWindow::addManuscriptAction(QMenu *menu, const QString &text, const QKeySequence &shortcut,
                                               void (ManuscriptWindow::*slot)())
{
    QAction *action = menu->addAction(text, shortcut, this, slot);
    action->setEnabled(false);
    m_manuscriptActions.append(action);
    return action;
}

void ManuscriptWindow::addFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    QAction *open = menu->addAction(iconNamed(u"document-open"_s, *this, QStyle::SP_DialogOpenButton), tr("&Open…"),
                                    QKeySequence::Open, this, &ManuscriptWindow::chooseManuscript);
    m_recentMenu = menu->addMenu(tr("Open &Recent"));
    connect(m_recentMenu, &QMenu::aboutToShow, this, &ManuscriptWindow::listRecentManuscripts);
    m_saveAction = menu->addAction(iconNamed(u"document-save"_s, *this, QStyle::SP_DialogSaveButton), tr("&Save"),
                                   QKeySequence::Save, this, &ManuscriptWindow::save);
    menu->addSeparator();
    QAction *exporting =
        addManuscriptAction(menu, tr("&Export…"), QKeySequence(Qt::CTRL | Qt::Key_E), &ManuscriptWindow::chooseExport);
    exporting->setIcon(iconNamed(u"document-export"_s, *this, QStyle::SP_ArrowRight));
    menu->addSeparator();
    menu->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);

    QToolBar *bar = addToolBar(tr("Tools"));
    bar->setObjectName(u"tools"_s);
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    bar->addActions({open, m_saveAction, exporting});
}

void ManuscriptWindow::addGoMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Go"));
    addManuscriptAction(menu, tr("&Next Document"), QKeySequence(Qt::CTRL | Qt::Key_PageDown),
                        &ManuscriptWindow::moveToNextDocument);
    addManuscriptAction(menu, tr("&Previous Document"), QKeySequence(Qt::CTRL | Qt::Key_PageUp),
                        &ManuscriptWindow::moveToPreviousDocument);
    menu->addSeparator();
    addManuscriptAction(menu, tr("List of &Documents"), QKeySequence(Qt::CTRL | Qt::Key_1),
                        &ManuscriptWindow::focusDocuments);
    addManuscriptAction(menu, tr("&Text"), QKeySequence(Qt::CTRL | Qt::Key_2), &ManuscriptWindow::focusText);
    addManuscriptAction(menu, tr("Pre&view"), QKeySequence(Qt::CTRL | Qt::Key_3), &ManuscriptWindow::focusPreview);
}

void ManuscriptWindow::addViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    QAction *dark = menu->addAction(tr("&Dark Colours"));
    dark->setCheckable(true);
    dark->setChecked(keptValue(keys::darkPalette).toBool());
    connect(dark, &QAction::toggled, this, [](bool isDark) {
        keepValue(keys::darkPalette, isDark);
        useDarkPalette(isDark);
    });
}

void ManuscriptWindow::addPanes()
{
    m_documents->setObjectName(u"documents"_s);
    m_documents->setAccessibleName(tr("Documents of the manuscript"));
    m_documents->setModel(&m_model);
    m_documents->setRootIsDecorated(false);
    m_documents->setUniformRowHeights(true);
    m_documents->setAlternatingRowColors(true);
    m_documents->setTextElideMode(Qt::ElideMiddle);
    QHeaderView *header = m_documents->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(ManuscriptModel::NameColumn, QHeaderView::Stretch);
    const int width = m_documents->fontMetrics().averageCharWidth();
    header->resizeSection(ManuscriptModel::StatusColumn, 14 * width);
    header->resizeSection(ManuscriptModel::LabelColumn, 11 * width);
    header->resizeSection(ManuscriptModel::WordsColumn, 10 * width);

    m_panes->addWidget(m_documents);
    m_panes->addWidget(m_editor);
    m_panes->addWidget(m_preview);
    m_panes->setChildrenCollapsible(false);
    m_panes->setSizes({380, 390, 330});
    m_pages->addWidget(m_panes);

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_resultBar);
    setCentralWidget(content);
}

void ManuscriptWindow::showWelcomePage()
{
    auto *page = new WelcomePage(recentManuscripts());
    connect(page, &WelcomePage::openRequested, this, &ManuscriptWindow::chooseManuscript);
    connect(page, &WelcomePage::manuscriptRequested, this, &ManuscriptWindow::openManuscript);
    m_pages->addWidget(page);
    m_pages->setCurrentWidget(page);
    setWindowTitle(u"[*]"_s + tr("Manuscripts"));
}

void ManuscriptWindow::chooseManuscript()
{
    QFileDialog *panel = windowing::OpenPanel::openPanel().fileDialog(this).release();
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(tr("Open Manuscript"));
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setDirectory(m_model.folder().isEmpty() ? QDir::homePath() : m_model.folder());
    connect(panel, &QFileDialog::fileSelected, this, &ManuscriptWindow::openManuscript);
    panel->open();
}

void ManuscriptWindow::listRecentManuscripts()
{
    m_recentMenu->clear();
    for (const QString &folder : recentManuscripts()) {
        QString text = QDir::toNativeSeparators(folder);
        m_recentMenu->addAction(text.replace(u'&', "&&"_L1), this, [this, folder] { openManuscript(folder); });
    }
    if (m_recentMenu->isEmpty()) {
        m_recentMenu->addAction(tr("No manuscripts yet"))->setEnabled(false);
    }
}

/// False when something is still unsaved; the user knows why then.
bool ManuscriptWindow::save()
{
    m_editor->commit();
    try {
        m_model.save();
        return true;
    } catch (const HostError &error) {
        QMessageBox::warning(this, tr("Save"), sentence(error.message()));
        return false;
    }
}

/// Whether the manuscript can be left: nothing is unsaved, or the user has saved it or does not want it.
bool ManuscriptWindow::mayDropChanges()
{
    m_editor->commit();
    if (!m_model.isModified()) {
        return true;
    }
    QMessageBox question(QMessageBox::Warning, tr("Unsaved Changes"),
                         tr("Save the changes in “%1”?").arg(m_model.manuscript().title),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(tr("What is not saved is lost."));
    question.setDefaultButton(QMessageBox::Save);
    question.setWindowModality(Qt::WindowModal);
    const int answer = question.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void ManuscriptWindow::chooseExport()
{
    if (m_plugins.isEmpty()) {
        showMessage(tr("There is no plug-in to export with."));
        return;
    }
    m_editor->commit();
    auto *dialog = new ExportDialog(m_model.manuscript(), m_plugins, m_preview->plugin()->name(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        ExportPlugin &plugin = dialog->plugin();
        m_preview->setPlugin(plugin.name());
        // The sheet is gone by then.
        QTimer::singleShot(0, this, [this, &plugin, names = dialog->names()] { exportManuscript(plugin, names); });
    });
    connect(dialog, &QDialog::finished, this, &ManuscriptWindow::showPreview);
    dialog->open();
}

void ManuscriptWindow::exportManuscript(const ExportPlugin &plugin, const OutputNames &names)
{
    m_isExporting = true;
    const auto result = exportInWindow(this, m_model.manuscript(), plugin, names);
    m_isExporting = false;
    showExportResult(result, names);
}

void ManuscriptWindow::showExportResult(const std::optional<WindowExportResult> &result, const OutputNames &names)
{
    if (!result) {
        showMessage(tr("Nothing was exported, as the files are not to be replaced."));
        return;
    }
    const auto count = static_cast<int>(result->written.size());
    const QString folder = count > 0 ? destinationFolder(names) : QString();
    if (!result->error.isEmpty()) {
        m_resultBar->showResult(tr("The export ended after %n file(s).", nullptr, count) + u' ' + result->error,
                                folder);
    } else if (result->wasAborted) {
        m_resultBar->showResult(tr("The export was aborted after %n file(s).", nullptr, count), folder);
    } else {
        m_resultBar->showResult(
            tr("%n file(s) exported to “%1”.", nullptr, count).arg(platform::lastPathComponent(folder)), folder);
    }
}

void ManuscriptWindow::showCurrentDocument()
{
    m_editor->showDocument(m_documents->currentIndex().row());
    showPreview();
}

void ManuscriptWindow::showPreview()
{
    const QModelIndex current = m_documents->currentIndex();
    m_preview->showDocument(current.isValid() ? &m_model.document(current.row()) : nullptr);
}

void ManuscriptWindow::showModified()
{
    const bool isModified = m_model.isModified() || m_editor->hasUncommittedText();
    setWindowModified(isModified);
    m_saveAction->setEnabled(isModified);
}

void ManuscriptWindow::moveToNextDocument()
{
    moveToDocument(m_documents->currentIndex().row() + 1);
}

void ManuscriptWindow::moveToPreviousDocument()
{
    moveToDocument(m_documents->currentIndex().row() - 1);
}

void ManuscriptWindow::moveToDocument(int row)
{
    const QModelIndex index = m_model.index(row, 0);
    if (index.isValid()) {
        m_documents->setCurrentIndex(index);
    }
}

void ManuscriptWindow::focusDocuments()
{
    m_documents->setFocus(Qt::ShortcutFocusReason);
}

void ManuscriptWindow::focusText()
{
    m_editor->editor().setFocus(Qt::ShortcutFocusReason);
}

void ManuscriptWindow::focusPreview()
{
    m_preview->focusFile();
}

} // namespace host
