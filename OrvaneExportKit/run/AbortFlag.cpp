#include <OrvaneExportKit/run/AbortFlag.h>

#include <OrvaneExportKit/settings/SettingsKeys.h>

namespace platform {

AbortFlag::AbortFlag(const QObject &progress)
    : m_observation(NotificationCenter::defaultCenter().addObserver(KZAbortExportNotification, &progress,
                                                                    [this](const Notification &) { m_isSet = true; }))
{
}

} // namespace platform
