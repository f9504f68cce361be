#include "PluginSettings.h"

#include "HostError.h"
#include "Messages.h"

#include <OrvaneExportKit/platform/UserDefaults.h>

using namespace Qt::Literals::StringLiterals;
using platform::UserDefaults;

namespace host {

QString loadSavedSettings(KZExportSettings &settings)
{
    const QVariantMap defaults = settings.defaultDictionary();
    QString error;
    if (!settings.readSettingsFromDefaults(&error)) {
        return error;
    }
    for (auto item = defaults.cbegin(); item != defaults.cend(); ++item) {
        if (!settings.objectForKey(item.key()).isValid()) {
            settings.setObject(item.value(), item.key());
        }
    }
    return {};
}

void saveSettings(const KZExportSettings &settings)
{
    if (!settings.saveToDefaults()) {
        throw HostError(
            ExitCode::Output,
            Texts::tr("the settings can't be saved: %1").arg(UserDefaults::standardUserDefaults().lastError()));
    }
}

} // namespace host
