#include "CommandLine.h"
#include "ExportRun.h"
#include "HostError.h"
#include "PluginFolder.h"
#include "PluginListing.h"
#include "Supervisor.h"
#include "Terminal.h"

#ifdef ORVANE_HOST_WITH_WINDOW
#include "window/WindowProgram.h"
#endif

#include <OrvaneExportKit/version.h>

#include <QtCore/QCoreApplication>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace host;

namespace {

/// Carries out the command, for which no window system is needed. Without one, answers the window to show.
std::optional<WindowRequest> runCommand(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const CommandLine commandLine(QCoreApplication::arguments());
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
    case CommandLine::Task::ShowWindow:
        return commandLine.windowRequest();
    }
    requireAllPrinted();
    return std::nullopt;
}

#ifndef ORVANE_HOST_WITH_WINDOW
int showWindow(int /*argc*/, char * /*argv*/[], const WindowRequest & /*request*/)
{
    throw HostError(ExitCode::Display,
                    u"no window can be shown: the program was built without them; use the command export"_s);
}
#endif

int run(int argc, char *argv[])
{
    try {
        const std::optional<WindowRequest> window = runCommand(argc, argv);
        return window ? showWindow(argc, argv, *window) : static_cast<int>(ExitCode::Success);
    } catch (const HostError &error) {
        printError(error.message());
        return static_cast<int>(error.exitCode());
    }
}

} // namespace

int main(int argc, char *argv[])
{
    return supervised([argc, argv] { return run(argc, argv); });
}
