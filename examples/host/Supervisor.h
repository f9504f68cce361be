#pragma once

#include <functional>

/// \file
/// Everything that the program asks of the system's processes and signals.

namespace host {

/// Carries out the program's work, which answers an exit code, in a process of its own, and answers the exit code of
/// the program, in both processes. A plug-in may end the work, by a crash or a call of `exit`: the user then learns
/// which one did, and the code is that of a plug-in that failed. For `main` alone, while there is one thread.
int supervised(const std::function<int()> &work);

/// The end of supervised work from within it, at once and with this code.
[[noreturn]] void endWork(int exitCode);

/// While the object lives, the first interruption (Ctrl-C or a request to terminate) is remembered in place of ending
/// the program; a second one ends it. Nor does the program end when nobody reads what it prints any more. There is at
/// most one such object.
class InterruptionWatch
{
public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch &) = delete;
    InterruptionWatch &operator=(const InterruptionWatch &) = delete;
    ~InterruptionWatch();

    bool wasInterrupted() const;

private:
    void (*m_brokenPipeBefore)(int);
};

} // namespace host
