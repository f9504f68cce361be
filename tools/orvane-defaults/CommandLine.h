#pragma once

#include "InputOutput.h"
#include "Values.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace defaults {

enum class Command {
    Read,
    Write,
    Delete,
    Domains,
    Export,
    Import,
};

/// What the program is to do.
struct Request {
    Command command;
    QString domain;       ///< empty for a command that takes none
    QStringList operands; ///< what follows the domain, as many as the command takes
    ValueType type;
    ListSeparator separator; ///< of the list of domains
};

/// The arguments of the program. Throws a `ProgramError` when they are wrong.
class CommandLine
{
public:
    enum class Task {
        ShowHelp,
        ShowVersion,
        RunCommand,
    };

    explicit CommandLine(const QStringList &arguments);

    Task task() const;
    QString helpText() const;
    Request request() const;

private:
    QCommandLineParser m_parser;
};

} // namespace defaults
