#pragma once

#include <QtCore/QString>

#include <exception>
#include <utility>

namespace defaults {

/// How the program ended, for scripts; `orvane-defaults --help` explains each to the user.
enum class ExitCode {
    Success = 0,
    Usage = 1,
    NotSet = 2,
    Failure = 3,
};

/// Ends the program: what went wrong and what to do about it, in one sentence, and the exit code that stands for it.
class ProgramError : public std::exception
{
public:
    ProgramError(ExitCode exitCode, QString message) : m_exitCode(exitCode), m_message(std::move(message)) {}

    ExitCode exitCode() const { return m_exitCode; }
    const QString &message() const { return m_message; }

private:
    ExitCode m_exitCode;
    QString m_message;
};

/// The command line is wrong, as the start of a sentence says.
inline ProgramError usageError(const QString &message)
{
    return {ExitCode::Usage, message + QStringLiteral("; --help explains all commands.")};
}

} // namespace defaults
