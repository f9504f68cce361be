#include "PluginListing.h"

#include "Messages.h"
#include "Terminal.h"

using namespace Qt::Literals::StringLiterals;

namespace host {

void listPlugins(const PluginFolder &folder)
{
    for (const ExportPlugin *plugin : folder.plugins()) {
        printResult(u"%1: %2 (.%3)\n"_s.arg(plugin->name(), plugin->displayName(), plugin->pathExtension()));
        for (const ExportPlugin::Choice &choice : plugin->choices()) {
            printResult(u"  --set '%1=%2'\n      %3\n"_s.arg(choice.key, choice.defaultValue, choice.description));
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
