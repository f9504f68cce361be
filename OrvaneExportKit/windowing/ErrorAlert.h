#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/ErrorAlert.h>

namespace windowing {

/// Shows errors in a modal message box, which waits for the user, over the modal window that is open or the main
/// window. In a `QApplication` it is installed by itself; a host with alerts of its own sets another one with
/// `platform::setErrorAlert`.
///
/// For use on the application's main thread.
class ORVANE_KIT_EXPORT ErrorAlert final : public platform::ErrorAlert
{
public:
    void runModal(const QString &errorDescription) override;
};

} // namespace windowing
