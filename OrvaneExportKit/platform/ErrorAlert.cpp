#include <OrvaneExportKit/platform/ErrorAlert.h>

#include <utility>

namespace platform {

namespace {

ErrorAlert *currentAlert = nullptr;

QString &lastDescription()
{
    static QString description;
    return description;
}

} // namespace

ErrorAlert::~ErrorAlert() = default;

ErrorAlert *setErrorAlert(ErrorAlert *alert)
{
    return std::exchange(currentAlert, alert);
}

void alertError(const QString &errorDescription)
{
    lastDescription() = errorDescription;
    if (currentAlert != nullptr) {
        currentAlert->runModal(errorDescription);
    }
}

QString lastError()
{
    return lastDescription();
}

} // namespace platform
