#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/windowing/ArrayController.h>
#include <OrvaneExportKit/windowing/Panel.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QLabel>

#include <memory>

/// \file
/// For use on the application's main thread.

namespace KZArrayExportAdditions {

/// Whether an export may write all of these paths: true when none of them exists, as a file or as a folder, or when the
/// user agrees to replace those that do.
///
/// The question stands in a sheet on the application's main window (`windowing::mainWindow`). It lists the names that
/// exist in the order of the paths, and names one folder, that of the first path. The call returns when the user has
/// answered; Escape, closing the sheet and quitting the application answer no.
///
///     if (!overwriteExistingFilesCheck(paths)) { return; }
ORVANE_KIT_EXPORT bool overwriteExistingFilesCheck(const QStringList &paths);

} // namespace KZArrayExportAdditions

/// The sheet that `overwriteExistingFilesCheck` asks with, from the interface file "ExistingFiles" of the kit's bundle.
///
/// It lives for one question: created, filled, shown and answered once. In the interface file, every push button
/// answers with its property "tag", a whole number: the one with tag 1 confirms, the others cancel. A label
/// `warningIcon` gets the style's warning icon.
class ORVANE_KIT_EXPORT KZOverwriteCheck : public QObject
{
    Q_OBJECT

public:
    /// Throws `platform::InvalidArgumentException` when the kit's bundle has been replaced by one whose interface file
    /// is missing or lacks something.
    KZOverwriteCheck();
    ~KZOverwriteCheck() override;

    /// The same, owned by the caller.
    static std::unique_ptr<KZOverwriteCheck> init();

    /// Adds the names to the list, in their order, behind those that are there.
    void setFileNames(const QStringList &names);

    /// Says how many of all the paths that will be written exist: as many as there are names in the list. That place in
    /// the message is gone afterwards. An interface file without a label `countField` says nothing.
    void setNumberOfPaths(qsizetype number);

    /// Puts the folder's name into the message, in the place of "%@". That place is gone afterwards.
    void setFolder(const QString &folder);

    /// Shows the sheet on the window, or by itself where that is null, and returns at once.
    void showSheetOnWindow(QWidget *window);

    /// Ends the sheet with the tag of the button that was clicked; one without a tag has 0.
    void buttonClicked(const QObject *sender);

    /// Hides the sheet and stops the modal loop with the code.
    void sheetDidEnd(QDialog *sheet, qint32 returnCode, void *contextInfo);

    /// The sheet itself, which the object owns.
    windowing::Panel *overwritePanel() const { return m_overwritePanel.get(); }

private:
    std::unique_ptr<windowing::ArrayController> m_filesController; ///< dictionaries with the one key "filename"
    std::unique_ptr<windowing::Panel> m_overwritePanel;
    QLabel *m_infoField;
};
