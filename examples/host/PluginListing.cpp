#include "PluginListing.h"

#include "Messages.h"
#include "Terminal.h"

using namespace Qt::Literals::StringLiterals;

namespace host {

namespace {

/// "plain-text: Plain Text (.txt), version 1.0", and what it is for, as far as its metadata says so.
QString heading(const ExportPlugin &plugin, const QJsonObject &metadata)
{
    const QString version = printable(metadata.value("version"_L1).toString());
    const QString description = printable(metadata.value("description"_L1).toString());
    return u"%1: %2 (.%3)"_s.arg(printable(plugin.name()), printable(plugin.displayName()),
                                 printable(plugin.pathExtension())) +
           (version.isEmpty() ? QString() : u", version "_s + version) + u'\n' +
           (description.isEmpty() ? QString() : u"  "_s + description + u'\n');
}

} // namespace

void listPlugins(const PluginFolder &folder)
{
    for (const ExportPlugin *plugin : folder.plugins()) {
        printResult(heading(*plugin, folder.metadataOf(*plugin)));
        for (const ExportPlugin::Choice &choice : plugin->choices()) {
            printResult(u"  --set '%1=%2'\n      %3\n"_s.arg(printable(choice.key), printable(choice.defaultValue),
                                                             printable(choice.description)));
        }
    }
    if (folder.plugins().isEmpty()) {
        printMessage(u"There are no plug-ins in %1."_s.arg(quoted(folder.path())));
    }
    for (const QString &problem : folder.problems()) {
        printWarning(problem);
    }
}

} // namespace host
