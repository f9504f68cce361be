#pragma once

#include <QtCore/QString>

/// \file
/// Everything that the program asks of the terminal and of the system's signals. Results go to standard output;
/// messages, questions and progress go to standard error.

namespace host {

/// Writes text to standard output.
void printResult(const QString &text);

/// Makes sure that all results have left the program; throws `HostError` when they could not.
void flushResults();

/// Writes a line to standard error.
void printMessage(const QString &line);

/// Writes a line to standard error that says whose warning it is.
void printWarning(const QString &message);

/// Writes a line to standard error that says whose error it is.
void printError(const QString &message);

/// Whether someone sits at a terminal who can read a question and answer it.
bool canAsk();

/// Asks a question and reads a line; true for "y" and "yes".
bool confirm(const QString &question);

/// One line on standard error that shows how far the run has come; nothing where standard error is not a terminal.
/// The line is gone when the object is destroyed.
class ProgressLine
{
public:
    ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;
    ~ProgressLine();

    /// Replaces the text, cut to the width of the terminal.
    void show(const QString &text) const;

private:
    bool m_isVisible;
};

/// While the object lives, the first interruption (Ctrl-C or a request to terminate) is remembered in place of ending
/// the program; a second one ends it. There is at most one such object.
class InterruptionWatch
{
public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch &) = delete;
    InterruptionWatch &operator=(const InterruptionWatch &) = delete;
    ~InterruptionWatch();

    bool wasInterrupted() const;
};

/// While the object lives, a crash of the program writes a line to standard error before it ends the program. There is
/// at most one such object.
class CrashMessage
{
public:
    CrashMessage();
    CrashMessage(const CrashMessage &) = delete;
    CrashMessage &operator=(const CrashMessage &) = delete;
    ~CrashMessage();

    /// Replaces the line, which says whose error it is.
    void set(const QString &message) const;
};

} // namespace host
