#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtWidgets/QDialog>

namespace windowing {

/// A dialog that goes away only when its owner hides it: Escape, the close button and the window manager's close ask
/// for it with a signal, which the owner answers as it does a click on the cancel button.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT Panel : public QDialog
{
    Q_OBJECT

public:
    /// A panel without content, a sheet of `parent`.
    explicit Panel(QWidget *parent = nullptr);

    void reject() override;

Q_SIGNALS:
    void cancelRequested(); ///< the user wants to cancel, by Escape or the close button
};

} // namespace windowing
