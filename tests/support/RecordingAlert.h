#pragma once

#include <OrvaneExportKit/platform/ErrorAlert.h>

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <functional>

namespace support {

/// The application's alert for as long as the object lives: keeps the errors and shows none.
class RecordingAlert final : public platform::ErrorAlert
{
public:
    RecordingAlert() : m_before(platform::setErrorAlert(this)) {}
    RecordingAlert(const RecordingAlert &) = delete;
    RecordingAlert &operator=(const RecordingAlert &) = delete;
    ~RecordingAlert() override { platform::setErrorAlert(m_before); }

    void runModal(const QString &errorDescription) override
    {
        errors.append(errorDescription);
        if (whileOpen) {
            whileOpen();
        }
    }

    QStringList errors;
    std::function<void()> whileOpen; ///< what the program does before the user closes the alert; may be none

private:
    platform::ErrorAlert *m_before;
};

} // namespace support
