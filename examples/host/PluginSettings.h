#pragma once

#include <OrvaneExportKit/settings/KZExportSettings.h>

#include <QtCore/QString>

namespace host {

/// Replaces a plug-in's settings by those that the user has saved. What the saved ones lack stays as it was, so that
/// settings that are new in a plug-in start with their defaults.
///
/// The result is a sentence that says why saved settings can't be read; empty when they were, and when there are none.
QString loadSavedSettings(KZExportSettings &settings);

/// Saves the settings. Throws `HostError` when that fails.
void saveSettings(const KZExportSettings &settings);

} // namespace host
