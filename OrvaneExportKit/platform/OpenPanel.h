#pragma once

#include <OrvaneExportKit/ExportMacros.h>

#include <QtCore/QString>

/// \file
/// For use on the application's main thread.

namespace platform {

/// What the kit's core asks of the panel in which a user picks files or folders.
///
/// The library with the windows installs its own panel by itself. A host with another one, or with none, sets an
/// object of its own.
class ORVANE_CORE_EXPORT OpenPanel
{
public:
    OpenPanel() = default;
    OpenPanel(const OpenPanel &) = delete;
    OpenPanel &operator=(const OpenPanel &) = delete;
    virtual ~OpenPanel();

    /// The extension, without the dot, that the panel is restricted to; empty for no restriction.
    virtual QString requiredFileType() const = 0;
};

/// Sets the panel that the kit asks; null for none. The caller keeps ownership and unsets it before destroying it.
///
///     platform::setOpenPanel(myPanel);
ORVANE_CORE_EXPORT void setOpenPanel(OpenPanel *panel);

/// The panel's required file type; empty when no panel is set.
ORVANE_CORE_EXPORT QString requiredFileType();

} // namespace platform
