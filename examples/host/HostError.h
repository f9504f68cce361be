#pragma once

#include <QtCore/QString>

#include <exception>
#include <utility>

namespace host {

/// How a run ended, for scripts; `orvane-host --help` explains each to the user.
enum class ExitCode {
    Success = 0,
    Usage = 1,
    Manuscript = 2,
    Plugin = 3,
    Output = 4,
    Declined = 5,
    Display = 6,
    Interrupted = 130,
};

/// Ends the run: what went wrong and what to do about it, in one sentence, and the exit code that stands for it.
class HostError : public std::exception
{
public:
    HostError(ExitCode exitCode, QString message) : m_exitCode(exitCode), m_message(std::move(message)) {}

    ExitCode exitCode() const { return m_exitCode; }
    const QString &message() const { return m_message; }

private:
    ExitCode m_exitCode;
    QString m_message;
};

} // namespace host
