#pragma once

#include <OrvaneExportKit/ExportMacros.h>
#include <OrvaneExportKit/platform/NotificationCenter.h>

namespace platform {

/// Remembers that the user has asked to stop an export: that `KZAbortExportNotification` came from one progress sheet
/// since the flag was made.
///
///     const platform::AbortFlag abort(*progressSheet);
///     for (qsizetype i = 0; i < documents.size() && !abort.isSet(); ++i) {
///         write(*documents[i]);
///         progressSheet->incrementToNextStep();
///     }
///
/// For use on the application's main thread.
class ORVANE_CORE_EXPORT AbortFlag
{
public:
    /// Observes `progress`, the object that posts the notification, from now on.
    explicit AbortFlag(const QObject &progress);
    AbortFlag(const AbortFlag &) = delete;
    AbortFlag &operator=(const AbortFlag &) = delete;

    /// Whether the user has asked to stop.
    bool isSet() const { return m_isSet; }

private:
    bool m_isSet = false;
    Observation m_observation;
};

} // namespace platform
