#include "CommandLine.h"
#include "Commands.h"
#include "InputOutput.h"
#include "ProgramError.h"

#include <OrvaneExportKit/version.h>

#include <QtCore/QCoreApplication>

using namespace Qt::Literals::StringLiterals;
using namespace defaults;

namespace {

void run(const CommandLine &commandLine)
{
    switch (commandLine.task()) {
    case CommandLine::Task::ShowHelp:
        printResult(commandLine.helpText().toUtf8());
        break;
    case CommandLine::Task::ShowVersion:
        printResult("orvane-defaults " ORVANE_EXPORT_KIT_VERSION_STRING "\n");
        break;
    case CommandLine::Task::RunCommand:
        runCommand(commandLine.request(), platform::UserDefaults::standardUserDefaults());
        break;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    try {
        run(CommandLine(QCoreApplication::arguments()));
        return static_cast<int>(ExitCode::Success);
    } catch (const ProgramError &error) {
        printMessage(error.message());
        return static_cast<int>(error.exitCode());
    }
}
