#pragma once

#include "HostError.h"
#include "Messages.h"

#include <OrvaneExportKit/run/ExportPlugin.h>

#include <exception>

namespace host {

/// What a plug-in answers. An exception of its own becomes a `HostError` that names it and the part of the export.
///
///     const QStringList names = answerOf(plugin, Texts::tr("the names of its files"),
///                                        [&] { return plugin.additionalFileNames(); });
template <typename Call>
auto answerOf(const ExportPlugin &plugin, const QString &part, const Call &call)
{
    const auto failure = [&](const QString &reason) {
        return HostError(ExitCode::Plugin,
                         Texts::tr("the plug-in %1 failed on %2: %3; change the document or the plug-in's choices, and "
                                   "export again")
                             .arg(printable(plugin.name()), part, reason));
    };
    try {
        return call();
    } catch (const std::exception &exception) {
        throw failure(printable(QString::fromUtf8(exception.what())));
    } catch (...) {
        throw failure(Texts::tr("it does not say why"));
    }
}

} // namespace host
