#include "PluginChoices.h"

#include "HostError.h"
#include "Messages.h"
#include "PluginSettings.h"
#include "Terminal.h"

#include <OrvaneExportKit/platform/ErrorAlert.h>

#include <QtCore/QFile>

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// Keeps the errors that the kit alerts to while the object lives.
class AlertedErrors final : public platform::ErrorAlert
{
public:
    AlertedErrors() : m_before(platform::setErrorAlert(this)) {}
    AlertedErrors(const AlertedErrors &) = delete;
    AlertedErrors &operator=(const AlertedErrors &) = delete;
    ~AlertedErrors() override { platform::setErrorAlert(m_before); }

    void runModal(const QString &errorDescription) override { m_errors.append(errorDescription); }
    const QStringList &errors() const { return m_errors; }

private:
    platform::ErrorAlert *m_before;
    QStringList m_errors;
};

void importSettings(KZExportSettings &settings, const QString &path)
{
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        throw HostError(ExitCode::Manuscript,
                        u"the settings file %1 can't be read: %2; see to that and export again"_s.arg(
                            quoted(path), file.errorString()));
    }
    const AlertedErrors alerted;
    settings.setDefaultData(content);
    if (!alerted.errors().isEmpty()) {
        throw HostError(ExitCode::Manuscript,
                        u"the settings file %1 can't be used: %2; mend it or name another one"_s.arg(
                            quoted(path), printable(alerted.errors().first())));
    }
}

void makeSetting(ExportPlugin &plugin, const QString &key, const QString &value, const QString &origin)
{
    try {
        plugin.setChoice(key, value);
    } catch (const std::exception &exception) {
        throw HostError(ExitCode::Usage, origin + u": "_s + printable(QString::fromUtf8(exception.what())));
    }
}

QStringList keysOf(const ExportPlugin &plugin)
{
    QStringList keys;
    for (const ExportPlugin::Choice &choice : plugin.choices()) {
        keys.append(choice.key);
    }
    return keys;
}

/// Values that were saved or imported are as much in need of a check as those on the command line. What the plug-in
/// does not know stays as it is.
void checkStoredChoices(ExportPlugin &plugin, const QString &origin)
{
    for (const QString &key : keysOf(plugin)) {
        const QVariant stored = plugin.settings().objectForKey(key);
        if (stored.isValid()) {
            makeSetting(plugin, key, stored.toString(), origin);
        }
    }
}

void makeSettings(ExportPlugin &plugin, const QList<ExportRequest::Setting> &settings)
{
    const QStringList keys = keysOf(plugin);
    for (const ExportRequest::Setting &setting : settings) {
        if (!keys.contains(setting.key)) {
            throw HostError(ExitCode::Usage,
                            u"the plug-in %1 has no choice %2; it has: %3"_s.arg(
                                printable(plugin.name()), quoted(setting.key), printable(keys.join(", "_L1))));
        }
        makeSetting(plugin, setting.key, setting.value, u"--set "_s + setting.key);
    }
}

} // namespace

void prepareSettings(ExportPlugin &plugin, const ExportRequest &request)
{
    if (request.settingsFile) {
        importSettings(plugin.settings(), *request.settingsFile);
        checkStoredChoices(plugin, u"the settings file %1"_s.arg(quoted(*request.settingsFile)));
    } else {
        const QString problem = loadSavedSettings(plugin.settings());
        if (!problem.isEmpty()) {
            printWarning(problem);
        }
        checkStoredChoices(plugin, u"the saved settings of the plug-in %1"_s.arg(printable(plugin.name())));
    }
    makeSettings(plugin, request.settings);
    if (request.saveSettings) {
        saveSettings(plugin.settings());
    }
}

} // namespace host
