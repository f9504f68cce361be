#include "CommandLine.h"
#include "ExportRun.h"
#include "HostError.h"
#include "PluginFolder.h"
#include "PluginListing.h"
#include "Terminal.h"

#include <OrvaneExportKit/version.h>

#include <QtCore/QCoreApplication>

using namespace Qt::Literals::StringLiterals;
using namespace host;

namespace {

void run(const CommandLine &commandLine)
{
    switch (commandLine.task()) {
    case CommandLine::Task::ShowHelp:
        printResult(commandLine.helpText());
        break;
    case CommandLine::Task::ShowVersion:
        printResult(u"orvane-host " ORVANE_EXPORT_KIT_VERSION_STRING "\n"_s);
        break;
    case CommandLine::Task::ListPlugins:
        listPlugins(PluginFolder(commandLine.pluginFolder()));
        break;
    case CommandLine::Task::Export:
        runExport(commandLine.exportRequest(), PluginFolder(commandLine.pluginFolder()));
        break;
    }
    flushResults();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    try {
        run(CommandLine(QCoreApplication::arguments()));
        return static_cast<int>(ExitCode::Success);
    } catch (const HostError &error) {
        printError(error.message());
        return static_cast<int>(error.exitCode());
    }
}
