#include <OrvaneExportKit/run/KZOverwriteCheck.h>

#include <OrvaneExportKit/platform/Paths.h>
#include <OrvaneExportKit/run/FileNameChecks.h>
#include <OrvaneExportKit/windowing/EventGuard.h>
#include <OrvaneExportKit/windowing/MainWindow.h>
#include <OrvaneExportKit/windowing/ModalLoop.h>
#include <OrvaneExportKit/windowing/UiLoader.h>

#include <QtCore/QDir>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QIcon>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using windowing::ModalLoop;
using windowing::Panel;
using windowing::UiLoader;

namespace {

constexpr qint32 replaceTag = 1;

/// The name of a folder as a file browser shows it.
QString displayName(const QString &folder)
{
    const QString name = QDir(QDir(folder).absolutePath()).dirName();
    return name.isEmpty() ? QDir::toNativeSeparators(folder) : name;
}

/// Copies the selected names, a line each.
void copySelection(const QTableView &table)
{
    QModelIndexList rows = table.selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    QStringList names;
    for (const QModelIndex &row : std::as_const(rows)) {
        names.append(row.data().toString());
    }
    QGuiApplication::clipboard()->setText(names.join(u'\n'));
}

/// A label of the sheet that an interface file may lack, or null.
QLabel *label(const QWidget &panel, const char *name)
{
    return panel.findChild<QLabel *>(QLatin1StringView(name));
}

void showWarningIcon(QWidget &panel)
{
    if (QLabel *icon = label(panel, "warningIcon")) {
        const int extent = panel.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &panel);
        const QIcon warning = panel.style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, &panel);
        icon->setPixmap(warning.pixmap(QSize(extent, extent), panel.devicePixelRatioF()));
    }
}

/// Makes the sheet as high as its list needs, up to some rows; longer lists scroll.
void fitToList(QWidget &panel)
{
    constexpr int mostRows = 10;
    auto *table = UiLoader::outlet<QTableView>(panel, u"filesTable"_s);
    const int rows = std::min(table->model()->rowCount(), mostRows);
    int height = 2 * table->frameWidth();
    for (int row = 0; row < rows; ++row) {
        height += table->rowHeight(row);
    }
    table->setMinimumHeight(height);
    panel.ensurePolished();
    panel.resize(panel.width(), panel.layout()->totalMinimumHeightForWidth(panel.width()));
}

} // namespace

bool KZArrayExportAdditions::overwriteExistingFilesCheck(const QStringList &paths)
{
    QStringList existingNames;
    for (const platform::PathFinding &existing : platform::existingPaths(paths)) {
        existingNames.append(platform::lastPathComponent(existing.path));
    }
    if (existingNames.isEmpty()) {
        return true;
    }
    KZOverwriteCheck check;
    check.setFileNames(existingNames);
    check.setNumberOfPaths(paths.size());
    check.setFolder(displayName(platform::deletingLastPathComponent(paths.first())));
    check.showSheetOnWindow(windowing::mainWindow());
    return ModalLoop::modalLoop().runModalForWindow(check.overwritePanel()) == replaceTag;
}

KZOverwriteCheck::KZOverwriteCheck()
    : m_filesController(std::make_unique<windowing::ArrayController>(QStringList{u"filename"_s})),
      m_overwritePanel(UiLoader::load<Panel>(platform::Bundle::kitBundle(), u"ExistingFiles"_s)),
      m_infoField(UiLoader::outlet<QLabel>(*m_overwritePanel, u"infoField"_s))
{
    auto *filesTable = UiLoader::outlet<QTableView>(*m_overwritePanel, u"filesTable"_s);
    filesTable->setModel(m_filesController.get());
    connect(UiLoader::outlet<QAction>(*m_overwritePanel, u"copyAction"_s), &QAction::triggered, filesTable,
            [filesTable] { windowing::guardedAction(*filesTable, [filesTable] { copySelection(*filesTable); }); });

    auto *buttonBox = UiLoader::outlet<QDialogButtonBox>(*m_overwritePanel, u"buttonBox"_s);
    for (QPushButton *button : m_overwritePanel->findChildren<QPushButton *>()) {
        const bool replaces = button->property("tag").toInt() == replaceTag;
        buttonBox->addButton(button, replaces ? QDialogButtonBox::AcceptRole : QDialogButtonBox::RejectRole);
        connect(button, &QPushButton::clicked, this,
                [this, button] { windowing::guardedAction(*qApp, [this, button] { buttonClicked(button); }); });
    }
    auto *cancelButton = UiLoader::outlet<QPushButton>(*m_overwritePanel, u"cancelButton"_s);
    connect(m_overwritePanel.get(), &Panel::cancelRequested, cancelButton, &QPushButton::click);
    cancelButton->setFocus();
    showWarningIcon(*m_overwritePanel);
    if (QLabel *count = label(*m_overwritePanel, "countField")) {
        count->hide(); // until the numbers are known
    }
}

KZOverwriteCheck::~KZOverwriteCheck() = default;

std::unique_ptr<KZOverwriteCheck> KZOverwriteCheck::init()
{
    return std::make_unique<KZOverwriteCheck>();
}

void KZOverwriteCheck::setFileNames(const QStringList &names)
{
    for (const QString &name : names) {
        m_filesController->addObject({{u"filename"_s, name}});
    }
}

void KZOverwriteCheck::setFolder(const QString &folder)
{
    const QString format = m_infoField->text();
    const qsizetype place = format.indexOf("%@"_L1);
    if (place >= 0) {
        m_infoField->setText(QString(format).replace(place, 2, folder));
    }
}

void KZOverwriteCheck::setNumberOfPaths(qsizetype number)
{
    if (QLabel *count = label(*m_overwritePanel, "countField")) {
        const QLocale locale = m_overwritePanel->locale();
        count->setText(count->text().arg(locale.toString(m_filesController->rowCount()), locale.toString(number)));
        count->show();
    }
}

void KZOverwriteCheck::showSheetOnWindow(QWidget *window)
{
    fitToList(*m_overwritePanel);
    ModalLoop::modalLoop().beginSheet(m_overwritePanel.get(), window, [this](qint32 returnCode) {
        sheetDidEnd(m_overwritePanel.get(), returnCode, nullptr);
    });
}

void KZOverwriteCheck::buttonClicked(const QObject *sender)
{
    ModalLoop::modalLoop().endSheet(m_overwritePanel.get(), sender->property("tag").toInt());
}

void KZOverwriteCheck::sheetDidEnd(QDialog *sheet, qint32 returnCode, void * /*contextInfo*/)
{
    sheet->hide();
    ModalLoop::modalLoop().stopModalWithCode(returnCode);
}
