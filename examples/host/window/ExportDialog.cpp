#include "ExportDialog.h"

#include "HostError.h"
#include "Messages.h"
#include "PluginSettings.h"
#include "WindowDefaults.h"

#include <OrvaneExportKit/controls/KZTokenFieldDelegate.h>
#include <OrvaneExportKit/windowing/OpenPanel.h>

#include <QtCore/QDir>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTreeView>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

constexpr int millisecondsOfPause = 120;

const QStringList usualFileNames{u"<1>"_s, u" "_s, u"<2>"_s};

/// The user's folder; empty where none is known, for which Qt gives the root folder.
QString userFolder()
{
    const QString home = QDir::homePath();
    return home == QDir::rootPath() ? QString() : home;
}

/// A path as it is typed, with "~" for the user's folder.
QString typedPath(const QString &path)
{
    const QString home = userFolder();
    return !home.isEmpty() && path.startsWith(home + u'/') ? u'~' + path.sliced(home.size()) : path;
}

QString absolutePath(const QString &typed)
{
    const QString home = userFolder();
    const bool startsAtHome = !home.isEmpty() && (typed == u"~" || typed.startsWith("~/"_L1));
    return QDir(startsAtHome ? home + typed.sliced(1) : typed).absolutePath();
}

QLabel *labelFor(QWidget *buddy, const QString &text)
{
    auto *label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

} // namespace

ExportDialog::ExportDialog(const Manuscript &manuscript, const QList<ExportPlugin *> &plugins,
                           const QString &pluginName, QWidget *parent)
    : QDialog(parent, Qt::Sheet),
      m_manuscript(manuscript),
      m_plugins(plugins),
      m_format(new QComboBox),
      m_panel(new SettingsPanel),
      m_folder(new QLineEdit),
      m_fileNames(new windowing::TokenField),
      m_convertSpaces(new QCheckBox(tr("&Underscores in place of spaces"))),
      m_names(new OutputNamesModel(this)),
      m_summary(new windowing::MessageLabel)
{
    setObjectName(u"exportDialog"_s);
    setWindowTitle(tr("Export “%1”").arg(m_manuscript.title));
    setWindowModality(Qt::WindowModal);
    for (ExportPlugin *plugin : m_plugins) {
        m_settingsBefore.append(plugin->settings().defaultDictionary());
        m_format->addItem(plugin->displayName(), plugin->name());
    }
    m_format->setCurrentIndex(qMax(0, m_format->findData(pluginName)));
    m_pause.setSingleShot(true);
    m_pause.setInterval(millisecondsOfPause);

    auto *sides = new QSplitter;
    sides->setChildrenCollapsible(false);
    sides->addWidget(formatSide());
    sides->addWidget(filesSide());
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setAutoDefault(false); // Return never throws choices away
    m_exportButton = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    m_exportButton->setObjectName(u"exportButton"_s);
    m_exportButton->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(sides, 1);
    layout->addWidget(buttons);
    resize(1120, 600);
    m_format->setFocus();

    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportDialog::showFormat);
    connect(m_folder, &QLineEdit::textChanged, &m_pause, qOverload<>(&QTimer::start));
    connect(m_fileNames, &windowing::TokenField::valueChanged, &m_pause, qOverload<>(&QTimer::start));
    connect(m_convertSpaces, &QCheckBox::toggled, this, &ExportDialog::checkNames);
    connect(&m_pause, &QTimer::timeout, this, &ExportDialog::checkNames);
    showFormat();
}

QWidget *ExportDialog::formatSide()
{
    m_format->setObjectName(u"exportFormat"_s);
    auto *side = new QWidget;
    auto *format = new QHBoxLayout;
    format->addWidget(labelFor(m_format, tr("&Format:")));
    format->addWidget(m_format, 1);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(format);
    layout->addWidget(m_panel, 1);
    return side;
}

QWidget *ExportDialog::filesSide()
{
    m_folder->setObjectName(u"exportFolder"_s);
    m_folder->setText(typedPath(keptValue(keys::destination, userFolder()).toString()));
    auto *choose = new QPushButton(tr("&Choose…"));
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, &ExportDialog::chooseFolder);
    auto *folder = new QHBoxLayout;
    folder->addWidget(m_folder, 1);
    folder->addWidget(choose);

    m_fileNames->setObjectName(u"fileNames"_s);
    m_fileNames->setAccessibleName(tr("File names"));
    m_fileNames->setToolTip(tr("Type the first letters of a token, or press the Down key for all tokens"));
    m_fileNames->setDelegate(new KZTokenFieldDelegate({{u"<1>"_s, tr("Number")},
                                                       {u"<2>"_s, tr("Name")},
                                                       {u"<3>"_s, tr("Status")},
                                                       {u"<4>"_s, tr("Label")},
                                                       {u"<5>"_s, tr("Export Name")}},
                                                      this));
    m_fileNames->setValue(keptValue(keys::fileNames, usualFileNames).toStringList());
    m_convertSpaces->setObjectName(u"convertSpaces"_s);
    m_convertSpaces->setChecked(keptValue(keys::convertSpaces).toBool());

    auto *list = new QTreeView;
    list->setObjectName(u"names"_s);
    list->setAccessibleName(tr("Files of the export"));
    list->setModel(m_names);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setTextElideMode(Qt::ElideMiddle);
    list->header()->resizeSection(OutputNamesModel::NameColumn, 32 * list->fontMetrics().averageCharWidth());
    list->setTabKeyNavigation(false);
    m_summary->setObjectName(u"summary"_s);
    m_summary->setWordWrap(true);

    auto *side = new QWidget;
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->addRow(labelFor(m_folder, tr("F&older:")), folder);
    form->addRow(labelFor(m_fileNames, tr("File &names:")), m_fileNames);
    form->addRow(QString(), m_convertSpaces);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(form);
    layout->addWidget(list, 1);
    layout->addWidget(m_summary);
    return side;
}

ExportPlugin &ExportDialog::plugin() const
{
    return *m_plugins[m_format->currentIndex()];
}

OutputNames ExportDialog::names() const
{
    // The slash says that it is a folder, whatever its name looks like.
    return {
        absolutePath(m_folder->text()) + u'/', m_fileNames->value().join(QString()), {}, m_convertSpaces->isChecked()};
}

/// Ends the edit in progress first, so that what is typed counts.
void ExportDialog::done(int result)
{
    m_panel->takePanelOut();
    if (result == Accepted) {
        keepChoices();
    } else {
        for (qsizetype index = 0; index < m_plugins.size(); ++index) {
            m_plugins[index]->settings().setDefaultDictionary(m_settingsBefore[index]);
        }
    }
    QDialog::done(result);
}

void ExportDialog::showFormat()
{
    m_panel->showPanel(plugin());
    checkNames();
}

void ExportDialog::chooseFolder()
{
    QFileDialog *panel = windowing::OpenPanel::openPanel().fileDialog(this).release();
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setWindowTitle(tr("Choose the Folder for the Files"));
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    panel->setDirectory(absolutePath(m_folder->text()));
    connect(panel, &QFileDialog::fileSelected, m_folder,
            [this](const QString &path) { m_folder->setText(typedPath(path)); });
    panel->open();
}

void ExportDialog::checkNames()
{
    m_pause.stop();
    QString found;
    try {
        const OutputPaths paths = outputPaths(names(), m_manuscript, plugin());
        m_names->setPaths(paths.all());
        found = problem(paths);
    } catch (const HostError &error) {
        found = sentence(error.message());
    }
    m_summary->setText(found.isEmpty() ? summary() : found);
    m_exportButton->setEnabled(found.isEmpty());
}

/// Why these files can't be written; empty when they can. Throws `HostError` for a reason that the window does not know
/// better.
QString ExportDialog::problem(const OutputPaths &paths) const
{
    if (m_folder->text().isEmpty()) {
        return tr("Choose a folder for the files.");
    }
    if (m_names->count(OutputNamesModel::Finding::Repeated) > 0) {
        return tr("Several documents would become the same file. Add “%1” to the file names.").arg(tr("Number"));
    }
    checkOutputPaths(names(), paths, m_manuscript);
    return {};
}

QString ExportDialog::summary() const
{
    QStringList sentences{tr("%n file(s) will be written.", nullptr, m_names->rowCount())};
    if (const int existing = m_names->count(OutputNamesModel::Finding::Existing); existing > 0) {
        sentences.append(tr("%n of them exist(s) already.", nullptr, existing));
    }
    if (const int refused = m_names->count(OutputNamesModel::Finding::Refused); refused > 0) {
        sentences.append(tr("Some systems refuse %n of the names.", nullptr, refused));
    }
    return sentences.join(u' ');
}

void ExportDialog::keepChoices() const
{
    keepValue(keys::destination, absolutePath(m_folder->text()));
    keepValue(keys::fileNames, m_fileNames->value());
    keepValue(keys::convertSpaces, m_convertSpaces->isChecked());
    try {
        saveSettings(plugin().settings());
    } catch (const HostError &error) {
        QMessageBox::warning(parentWidget(), windowTitle(), sentence(error.message()));
    }
}

} // namespace host
