#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/OpenPanel.h>

#include <QtWidgets/QFileDialog>

#include <memory>

namespace windowing {

/// The application's open panel, through which a user picks files or a folder.
///
/// There is one, and the kit's core asks it for the required file type: in a `QApplication` it is installed by itself.
///
///     windowing::OpenPanel::openPanel().setRequiredFileType(u"rtf"_s);
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT OpenPanel final : public platform::OpenPanel
{
public:
    /// The one panel of the application.
    static OpenPanel &openPanel();

    QString requiredFileType() const override;

    /// Restricts the panel to files with this extension (without the dot); empty lifts the restriction.
    void setRequiredFileType(const QString &extension);

    /// A file dialog restricted to the required file type, for the caller to show.
    std::unique_ptr<QFileDialog> fileDialog(QWidget *parent = nullptr) const;

private:
    OpenPanel() = default;

    QString m_requiredFileType;
};

} // namespace windowing
